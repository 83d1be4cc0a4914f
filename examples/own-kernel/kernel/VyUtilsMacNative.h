// SPDX-License-Identifier: MIT
#pragma once

/// Questions about macOS.
struct CVyUtilsMacNative
{
    /// 140201 for 14.2.1; 0 where it is another system.
    static int getSystemVersion();
};
