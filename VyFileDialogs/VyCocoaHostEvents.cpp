// SPDX-License-Identifier: MIT
#include "VyCocoaHostEvents.h"

#include <QCoreApplication>

#include <exception>
#include <utility>

namespace VyCocoaHostEvents {

namespace {
std::exception_ptr thrown;
}

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
