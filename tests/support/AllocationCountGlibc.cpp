// SPDX-License-Identifier: MIT
// Takes the place of the C library's functions, which it exports a second time
// for this purpose.
#include "AllocationCount.h"

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
}

namespace {

thread_local std::size_t blocks;
thread_local std::size_t bytes;

void note(std::size_t size)
{
    ++blocks;
    bytes += size;
}

} // namespace

extern "C" [[gnu::visibility("default")]] void* malloc(std::size_t size)
{
    note(size);
    return __libc_malloc(size);
}

extern "C" [[gnu::visibility("default")]] void* calloc(std::size_t count, std::size_t size)
{
    note(count * size);
    return __libc_calloc(count, size);
}

extern "C" [[gnu::visibility("default")]] void* realloc(void* block, std::size_t size)
{
    note(size);
    return __libc_realloc(block, size);
}

AllocationCount::Taken AllocationCount::total()
{
    return {blocks, bytes};
}
