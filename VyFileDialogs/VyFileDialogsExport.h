// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// \file
/// What the library shows to its users.

/// Marks the entry points that a host calls. Nothing else leaves the library.
#define VY_FILEDIALOGS_EXPORT Q_DECL_EXPORT
