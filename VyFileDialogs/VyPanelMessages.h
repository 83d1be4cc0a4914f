// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/AppKit.h>

/// Messages to a panel that need care, each at its only home.
namespace VyPanelMessages {

/// Restricts the panel to \a types, extensions without dots; nil or none for any.
void allowedFileTypes(NSSavePanel* panel, NSArray* types);

/// Moves the panel to the folder \a path in the way of the system's generation.
void directory(NSSavePanel* panel, NSString* path);

/// Reports what a panel has thrown, an NSException as a rule, through Qt's
/// logging.
void warn(id thrown);

} // namespace VyPanelMessages
