// SPDX-License-Identifier: MIT
#include "VyMacDocumentController.h"

#include "AcmeSettings.h"

@implementation VyMacDocumentController

+ (VyMacDocumentController*)sharedDocumentController
{
    static VyMacDocumentController* const only = [[self alloc] init];
    return only;
}

- (void)createBookmark:(NSURL*)url
{
    if ([url isFileURL])
        AcmeSettings::addRecentFile(QString::fromUtf8([[url path] UTF8String]));
}

@end
