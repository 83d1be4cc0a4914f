// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialog.h"

/// What differs between the platforms; the build picks the source.
namespace HostPlatform {

/// The dialogs to show when the user names none.
CVyFileDialog::_Style defaultStyle();

/// Whether the environment names something to show windows on. Qt ends the
/// process where there is nothing.
bool hasDisplay();

} // namespace HostPlatform
