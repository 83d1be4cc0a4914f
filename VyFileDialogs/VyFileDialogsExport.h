// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Marks the entry points that a host calls. Nothing else leaves the library.
#define VY_FILEDIALOGS_EXPORT Q_DECL_EXPORT
