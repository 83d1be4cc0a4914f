// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// What the fuzzers share. Each source of this folder is one, and defines
/// LLVMFuzzerTestOneInput(), which libFuzzer (of LLVM) calls with bytes of its own
/// making until something goes wrong.
namespace Fuzz {

/// The bytes as text: UTF-8, in which faults become U+FFFD.
inline QString text(const std::uint8_t* data, std::size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
}

/// Ends the program when \a holds is false, with \a what on standard error, so that
/// the input is kept as a finding.
inline void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

} // namespace Fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
