// SPDX-License-Identifier: MIT
#pragma once

/// What C, C++ and Qt have taken from the heap and not given back, in KiB.
double heapInUse();
