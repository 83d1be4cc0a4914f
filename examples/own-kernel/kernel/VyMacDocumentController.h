// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

/// Is told which files were chosen in a native panel, for the File menu.
__attribute__((visibility("default")))
@interface VyMacDocumentController : NSObject

/// The only one; never nil.
+ (VyMacDocumentController*)sharedDocumentController;

/// \a url may be no file's, or nil.
- (void)createBookmark:(NSURL*)url;

@end
