// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/AppKit.h>

/// An open panel that the Escape key leaves, when it is released. +openPanel
/// gives an instance of the class that it is sent to, with a panel's defaults.
@interface NSOpenPanelExt : NSOpenPanel
@end

/// The same with Command-A, which selects all in the panel's first responder.
@interface NSOpenPanelExtWithSelectAll : NSOpenPanelExt
@end
