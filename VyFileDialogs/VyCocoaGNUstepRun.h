// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/AppKit.h>

/// How GNUstep's panels are run among a Qt application's windows.
namespace VyCocoaGNUstep {

/// Runs the panel modally with its present folder and name, and answers its
/// response. \a nameField is the view from which the Tab key goes on to the
/// popups of the accessory view. An exception that the host's own code throws
/// meanwhile closes the panel and passes through.
NSInteger run(NSSavePanel* panel, NSView* nameField);

} // namespace VyCocoaGNUstep
