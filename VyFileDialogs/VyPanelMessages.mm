// SPDX-License-Identifier: MIT
#include "VyPanelMessages.h"

#include "VyCocoa.h"
#include "VyNativeStrings.h"

#include <QtDebug>

namespace VyPanelMessages {

// macOS raises at an empty array. In macOS 12 the message was deprecated in
// favour of uniform type identifiers, which a host's extensions need not have.
void allowedFileTypes(NSSavePanel* panel, NSArray* types)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    [panel setAllowedFileTypes:[types count] ? types : nil];
    QT_WARNING_POP
}

// setDirectory: was deprecated in macOS 10.6 and is sent to older systems only.
void directory(NSSavePanel* panel, NSString* path)
{
    if (VyCocoa::isNewerPlatform()) {
        [panel performSelectorOnMainThread:NSSelectorFromString(@"setDirectoryURL:")
                                withObject:[NSURL fileURLWithPath:path]
                             waitUntilDone:YES];
        return;
    }
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    [panel setDirectory:path];
    QT_WARNING_POP
}

void warn(id thrown)
{
    QString text = qStringfromNSString([thrown description]);
    if ([thrown isKindOfClass:[NSException class]])
        text = qStringfromNSString([thrown name]) + QLatin1String(": ") +
               qStringfromNSString([thrown reason]);
    qWarning("VyFileDialogs: the native panel raised %s", qPrintable(text));
}

} // namespace VyPanelMessages
