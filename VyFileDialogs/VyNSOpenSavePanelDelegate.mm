// SPDX-License-Identifier: MIT
#include "VyNSOpenSavePanelDelegate.h"

namespace {

BOOL isFolder(NSString* path)
{
    BOOL isDirectory = NO;
    return [[NSFileManager defaultManager] fileExistsAtPath:path isDirectory:&isDirectory] &&
           isDirectory;
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
    if (isFolder(filename) || [m_arrayFileTypes count] == 0)
        return YES;
    NSString* const extension = [filename pathExtension];
    for (NSString* type in m_arrayFileTypes) {
        if ([type isEqualToString:@"*"] || [extension caseInsensitiveCompare:type] == NSOrderedSame)
            return YES;
    }
    return NO;
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
