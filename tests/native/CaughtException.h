// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

/// Does \a work and answers what() of the standard exception that came out of it,
/// empty for none. Plain C++: Objective-C++ cannot catch a C++ exception with every
/// runtime.
std::string caughtException(const std::function<void()>& work);
