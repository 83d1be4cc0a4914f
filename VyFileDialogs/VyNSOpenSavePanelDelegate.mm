// SPDX-License-Identifier: MIT
#include "VyNSOpenSavePanelDelegate.h"

namespace {

BOOL isFolder(NSString* path)
{
    BOOL isDirectory = NO;
    return [[NSFileManager defaultManager] fileExistsAtPath:path isDirectory:&isDirectory] &&
           isDirectory;
}

BOOL hasExtensionIn(NSString* path, NSArray* types)
{
    NSString* const extension = [path pathExtension];
    for (NSString* type in types) {
        if ([extension caseInsensitiveCompare:type] == NSOrderedSame)
            return YES;
    }
    return NO;
}

} // namespace

@implementation CVyNSOpenSavePanelDelegate

- (void)dealloc
{
    [m_arrayFileTypes release];
    [super dealloc];
}

- (BOOL)panel:(id)sender shouldShowFilename:(NSString*)filename
{
    if ([filename length] == 0)
        return NO;
    return !m_restricted || hasExtensionIn(filename, m_arrayFileTypes) || isFolder(filename);
}

- (BOOL)panel:(id)sender shouldEnableURL:(NSURL*)url
{
    return [self panel:sender shouldShowFilename:[url path]];
}

- (BOOL)panel:(id)sender validateURL:(NSURL*)url error:(NSError**)error
{
    return YES;
}

- (void)setAllowedFileTypes:(NSArray*)types
{
    [m_arrayFileTypes release];
    m_arrayFileTypes = types ? [[NSArray alloc] initWithArray:types copyItems:YES] : nil;
    m_restricted = [m_arrayFileTypes count] > 0 && ![m_arrayFileTypes containsObject:@"*"];
}

- (void)panel:(id)sender didChangeToDirectoryURL:(NSURL*)url
{}

- (NSString*)panel:(id)sender userEnteredFilename:(NSString*)filename confirmed:(BOOL)confirmed
{
    return filename;
}

- (void)panel:(id)sender willExpand:(BOOL)expanding
{}

- (void)panelSelectionDidChange:(id)sender
{}

@end
