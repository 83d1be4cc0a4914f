// SPDX-License-Identifier: MIT
#pragma once

#include "AcmeString.h"

/// The dialogs' string is Acme's own.
using CVyString = AcmeString;
