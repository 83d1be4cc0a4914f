// SPDX-License-Identifier: MIT
#include "Heap.h"

#include <malloc/malloc.h>

double heapInUse()
{
    malloc_statistics_t all = {};
    malloc_zone_statistics(nullptr, &all);
    return static_cast<double>(all.size_in_use) / 1024;
}
