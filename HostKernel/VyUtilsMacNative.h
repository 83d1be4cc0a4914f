// SPDX-License-Identifier: MIT
#pragma once

#include "VyHostKernelExport.h"

/// \file
/// The version of macOS.

/// Questions about macOS.
struct VY_HOSTKERNEL_EXPORT CVyUtilsMacNative
{
    /// The version of macOS as major * 10000 + minor * 100 + patch: 100700 for
    /// 10.7, 110000 for 11.0, 140201 for 14.2.1. 0 on other systems.
    ///
    /// To a program linked with an SDK before 11, macOS 11 and later call
    /// themselves 10.16: 101600.
    static int getSystemVersion();
};
