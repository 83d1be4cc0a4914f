// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

#include "VyHostKernelExport.h"

/// \file
/// The bookmarks of opened files, for the native panels.

/// The native panels' way to the host's list of the files that the user chose
/// (VyBookmarks.h). On the main thread alone.
VY_HOSTKERNEL_EXPORT
@interface VyMacDocumentController : NSObject

/// The process's controller; never nil, not owned by the caller.
+ (VyMacDocumentController*)sharedDocumentController;

/// Puts the file of \a url first in the list, as VyAddBookmark() does with its
/// path. The file need not exist. Other URLs and nil are ignored.
- (void)createBookmark:(NSURL*)url;

@end
