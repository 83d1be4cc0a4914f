// SPDX-License-Identifier: MIT
#include "VyUtilsMacNative.h"

#include <QOperatingSystemVersion>

int CVyUtilsMacNative::getSystemVersion()
{
    const QOperatingSystemVersion system = QOperatingSystemVersion::current();
    if (system.type() != QOperatingSystemVersion::MacOS)
        return 0;
    return system.majorVersion() * 10000 + system.minorVersion() * 100 + system.microVersion();
}
