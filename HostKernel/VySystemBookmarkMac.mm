// SPDX-License-Identifier: MIT
// NSURL's bookmark data.
#include "VySystemBookmark.h"

#import <Foundation/Foundation.h>

#include <cstdlib>

namespace {

// The system sets the variable in sandboxed applications. In others a
// security scope is no use and may be refused.
bool isSandboxed()
{
    return std::getenv("APP_SANDBOX_CONTAINER_ID") != nullptr;
}

} // namespace

QByteArray CVySystemBookmark::of(const QByteArray& path)
{
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    NSURL* const url = [NSURL fileURLWithFileSystemRepresentation:path.constData()
                                                      isDirectory:NO
                                                    relativeToURL:nil];
    const NSURLBookmarkCreationOptions options =
        isSandboxed() ? NSURLBookmarkCreationWithSecurityScope : 0;
    NSData* const data = [url bookmarkDataWithOptions:options
                       includingResourceValuesForKeys:nil
                                        relativeToURL:nil
                                                error:nullptr];
    const QByteArray record(static_cast<const char*>([data bytes]),
                            static_cast<int>([data length]));
    [pool drain];
    return record;
}

CVySystemBookmark::CVySystemBookmark(const QByteArray& record)
{
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    NSURLBookmarkResolutionOptions options =
        NSURLBookmarkResolutionWithoutUI | NSURLBookmarkResolutionWithoutMounting;
    if (isSandboxed())
        options |= NSURLBookmarkResolutionWithSecurityScope;
    BOOL isStale = NO;
    NSData* const data = [NSData dataWithBytes:record.constData()
                                        length:static_cast<NSUInteger>(record.size())];
    NSURL* const url = [NSURL URLByResolvingBookmarkData:data
                                                 options:options
                                           relativeToURL:nil
                                     bookmarkDataIsStale:&isStale
                                                   error:nullptr];
    if ([url isFileURL]) {
        m_path = QByteArray([url fileSystemRepresentation]);
        m_isStale = isStale != NO;
        if ([url startAccessingSecurityScopedResource])
            m_url = [url retain];
    }
    [pool drain];
}

CVySystemBookmark::~CVySystemBookmark()
{
    NSURL* const url = static_cast<NSURL*>(m_url);
    [url stopAccessingSecurityScopedResource];
    [url release];
}
