// SPDX-License-Identifier: MIT
#include "VyCocoaHostEvents.h"

#include <QCoreApplication>

#include <exception>
#include <utility>

namespace VyCocoaHostEvents {

namespace {
// A pointer, null at start-up.
std::exception_ptr thrown; // clazy:exclude=non-pod-global-static
} // namespace

bool process()
{
    if (thrown)
        return false;
    try {
        QCoreApplication::processEvents();
    } catch (...) {
        thrown = std::current_exception();
    }
    return !thrown;
}

void rethrow()
{
    if (thrown)
        std::rethrow_exception(std::exchange(thrown, nullptr));
}

} // namespace VyCocoaHostEvents
