// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Marks what the host kernel library shows to its users.
#ifdef VY_BUILDING_HOSTKERNEL
#define VY_HOSTKERNEL_EXPORT Q_DECL_EXPORT
#else
#define VY_HOSTKERNEL_EXPORT Q_DECL_IMPORT
#endif
