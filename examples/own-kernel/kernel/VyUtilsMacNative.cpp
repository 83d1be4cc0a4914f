// SPDX-License-Identifier: MIT
#include "VyUtilsMacNative.h"

#include <QOperatingSystemVersion>

int CVyUtilsMacNative::getSystemVersion()
{
    const auto now = QOperatingSystemVersion::current();
    return now.type() == QOperatingSystemVersion::MacOS
               ? (now.majorVersion() * 100 + now.minorVersion()) * 100 + now.microVersion()
               : 0;
}
