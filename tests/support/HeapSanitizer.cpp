// SPDX-License-Identifier: MIT
#include "Heap.h"

#include <sanitizer/allocator_interface.h>

double heapInUse()
{
    return static_cast<double>(__sanitizer_get_current_allocated_bytes()) / 1024;
}
