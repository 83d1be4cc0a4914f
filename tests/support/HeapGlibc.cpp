// SPDX-License-Identifier: MIT
#include "Heap.h"

#include <malloc.h>

double heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / 1024;
}
