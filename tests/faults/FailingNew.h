// SPDX-License-Identifier: MIT
#pragma once

/// Memory that runs out in this library's code, and in nobody else's: the program that
/// links this has an operator new of its own, which fails when it is told to. Qt, the
/// system and the test itself always get what they ask for.
///
/// Whose code asks is told by the shared library that it lies in, so the program is
/// linked with the shared libraries and not with the archive they are made from. What
/// the C++ library asks for on behalf of a string or a container counts as its caller's.
namespace FailingNew {

/// From now on the \a number-th request of this library's for memory fails, counted
/// from 1, in whichever thread; those after it succeed.
void arm(int number);

/// Nothing fails any more. Answers whether something has.
bool disarm();

/// The stack of the request that failed last, innermost first, one line for each frame.
/// Only those of this library's frames are named that it exports.
const char* failedAt();

} // namespace FailingNew
