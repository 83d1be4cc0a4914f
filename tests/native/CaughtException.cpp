// SPDX-License-Identifier: MIT
#include "CaughtException.h"

#include <exception>

std::string caughtException(const std::function<void()>& work)
{
    try {
        work();
    } catch (const std::exception& exception) {
        return exception.what();
    }
    return {};
}
