// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"

/// One line for each thing in \a options that the dialogs tolerate and that the
/// user will hardly have meant: it would go unnoticed otherwise.
QStringList warnings(const Options& options);
