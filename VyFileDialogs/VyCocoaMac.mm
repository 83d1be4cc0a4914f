// SPDX-License-Identifier: MIT
// The system's own AppKit. Its panels need no mending.
#include "VyCocoa.h"

#import <AppKit/AppKit.h>
#import <CoreGraphics/CoreGraphics.h>

namespace VyCocoa {

// Qt's platform plug-in has made the application object, unless the host chose
// one that shows no windows; without a session of the window server there is
// nobody to show a panel.
const char* bringUpAppKit()
{
    const CFDictionaryRef session = CGSessionCopyCurrentDictionary();
    if (!session)
        return "there is no session with a window server";
    CFRelease(session);
    [NSApplication sharedApplication];
    return nullptr;
}

} // namespace VyCocoa
