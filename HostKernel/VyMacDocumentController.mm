// SPDX-License-Identifier: MIT
#include "VyMacDocumentController.h"

#include "VyBookmarks.h"

@implementation VyMacDocumentController

+ (VyMacDocumentController*)sharedDocumentController
{
    static VyMacDocumentController* const controller = [[VyMacDocumentController alloc] init];
    return controller;
}

- (void)createBookmark:(NSURL*)url
{
    if ([url isFileURL])
        VyAddBookmark(QString::fromUtf8([[url path] UTF8String]));
}

@end
