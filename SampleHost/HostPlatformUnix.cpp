// SPDX-License-Identifier: MIT
#include "HostPlatform.h"

#include <QtGlobal>

#include <algorithm>
#include <iterator>

namespace HostPlatform {

CVyFileDialog::_Style defaultStyle()
{
    return CVyFileDialog::StyleQt;
}

bool hasDisplay()
{
    const char* const variables[] = {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"};
    return !std::all_of(std::begin(variables), std::end(variables), qEnvironmentVariableIsEmpty);
}

} // namespace HostPlatform
