// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <type_traits>
#include <unistd.h>

/// What scripts/mutate writes around conditions and constants, and includes into
/// every source: each is a mutant with a number. All are built at once; the variable
/// VY_MUTANT of a process's environment says which one lives in it. In the file that
/// VY_MUTANT_REACHED names, the byte with a mutant's number becomes 1 when a process
/// comes by it, so that only tests that do are run against it.
namespace VyMutant {

constexpr int Most = 8192;

inline int living()
{
    static const int number = [] {
        const char* text = std::getenv("VY_MUTANT");
        return text ? std::atoi(text) : 0;
    }();
    return number;
}

// Shared with the file, so that it holds however the process ends.
inline char* reached()
{
    static char* const bytes = [] {
        static char nowhere[Most];
        const char* name = std::getenv("VY_MUTANT_REACHED");
        const int file = name ? open(name, O_RDWR | O_CREAT | O_CLOEXEC, 0666) : -1;
        if (file < 0 || ftruncate(file, Most) != 0)
            return nowhere;
        void* const shared = mmap(nullptr, Most, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
        close(file);
        return shared == MAP_FAILED ? nowhere : static_cast<char*>(shared);
    }();
    return bytes;
}

inline bool lives(int number)
{
    reached()[number] = 1;
    return number == living();
}

/// The opposite.
template <class Condition>
bool flip(int number, const Condition& condition)
{
    return static_cast<bool>(condition) != lives(number);
}

/// One more.
template <class Number>
std::remove_cv_t<Number> more(int number, Number value)
{
    return lives(number) ? static_cast<std::remove_cv_t<Number>>(value + 1) : value;
}

// "and" for "or", "or" for "and"; the second operand only where it counts.
template <class First, class Second>
bool both(int number, const First& first, Second second)
{
    const bool holds = static_cast<bool>(first);
    return lives(number) ? holds || second() : holds && second();
}
template <class First, class Second>
bool either(int number, const First& first, Second second)
{
    const bool holds = static_cast<bool>(first);
    return lives(number) ? holds && second() : holds || second();
}

// The bound belongs to the other side.
template <class First, class Second>
bool less(int number, const First& first, const Second& second)
{
    return lives(number) ? first <= second : first < second;
}
template <class First, class Second>
bool lessOrEqual(int number, const First& first, const Second& second)
{
    return lives(number) ? first < second : first <= second;
}
template <class First, class Second>
bool greater(int number, const First& first, const Second& second)
{
    return lives(number) ? first >= second : first > second;
}
template <class First, class Second>
bool greaterOrEqual(int number, const First& first, const Second& second)
{
    return lives(number) ? first > second : first >= second;
}

} // namespace VyMutant
