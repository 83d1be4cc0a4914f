// SPDX-License-Identifier: MIT
#pragma once

#include "Answer.h"

/// Shows the dialog that \a options describe and waits for the user. Needs a
/// QApplication.
Answer ask(const Options& options);
