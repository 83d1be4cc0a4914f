// SPDX-License-Identifier: MIT
#pragma once

/// The host's events while an event loop that is not Qt's runs. Plain C++: the
/// panels' language cannot catch a C++ exception with every runtime.
namespace VyCocoaHostEvents {

/// Handles the events that are pending. False when the host's code has thrown,
/// now or before; the exception is kept for rethrow().
bool process();

/// Throws what was kept, if anything.
void rethrow();

} // namespace VyCocoaHostEvents
