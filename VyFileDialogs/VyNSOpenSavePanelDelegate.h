// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/AppKit.h>

/// The delegate of open panels: shows folders, and the files with one of the
/// allowed extensions.
@interface CVyNSOpenSavePanelDelegate : NSObject <NSOpenSavePanelDelegate> {
    NSArray* m_arrayFileTypes;
    BOOL m_restricted; ///< whether the types leave any name out
}

/// Takes copies of \a types, extensions without dots; "*" stands for any. Nil,
/// none, and what a new delegate starts with: every file.
- (void)setAllowedFileTypes:(NSArray*)types;

/// YES for folders and for names with an allowed extension, in any case,
/// whether there is such a file or not. NO for the empty path. A panel asks
/// this of every name in a folder, so the file system is asked only where the
/// name does not decide, and then once.
- (BOOL)panel:(id)sender shouldShowFilename:(NSString*)filename;

@end
