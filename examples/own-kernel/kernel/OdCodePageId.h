// SPDX-License-Identifier: MIT
#pragma once

/// The code pages that Acme reads drawings in, with the numbers of its own.
enum class OdCodePageId
{
    Undefined,
    Ansi1252,
    Ansi1251,
    Ansi932,
    Utf8,
};
