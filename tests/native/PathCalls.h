// SPDX-License-Identifier: MIT
#pragma once

/// Counts the process's calls of the C library's functions that ask the file
/// system about a path: stat(), lstat(), access(), opendir() and readlink(),
/// which are those that the Foundation of GNUstep asks with. Each is one system
/// call (opendir() is several, and counts as one).
namespace PathCalls {

/// Since the process began.
int total();

} // namespace PathCalls
