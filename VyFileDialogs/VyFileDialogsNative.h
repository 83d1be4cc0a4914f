// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialogImpl.h"
#include "VyFileDialogsExport.h"

/// The one entry point of libVyFileDialogsNative, the module that holds the
/// native panels where their AppKit is not part of the system: as
/// CVyFileDialogImpl::createMac(), which loads the module and calls this. The
/// dialogs that it makes are code of the module, which is never unloaded.
extern "C" VY_FILEDIALOGS_EXPORT CVyFileDialogImpl*
VyCreateNativeDialog(CVyUserIO::_FileNameType type, bool multiple, bool modeChoices);
