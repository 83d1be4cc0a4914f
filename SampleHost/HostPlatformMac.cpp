// SPDX-License-Identifier: MIT
#include "HostPlatform.h"

namespace HostPlatform {

CVyFileDialog::_Style defaultStyle()
{
    return CVyFileDialog::StyleNative;
}

// The window server needs no variable to be found.
bool hasDisplay()
{
    return true;
}

} // namespace HostPlatform
