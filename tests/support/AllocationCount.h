// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// What the calling thread takes from the heap, C++ and Qt included. Only a
/// program that is linked with VyAllocationCount counts.
namespace AllocationCount {

struct Taken
{
    std::size_t blocks = 0; ///< calls that gave memory
    std::size_t bytes = 0;  ///< asked for by these calls, freed since or not
};

/// Since the thread began.
Taken total();

/// By one call of \a action.
template <typename Action>
Taken during(Action action)
{
    const Taken before = total();
    action();
    const Taken after = total();
    return {after.blocks - before.blocks, after.bytes - before.bytes};
}

} // namespace AllocationCount
