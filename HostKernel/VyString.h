// SPDX-License-Identifier: MIT
#pragma once

#include "VyHostKernelExport.h"

#include <QString>

#include <string>
#include <utility>
#include <vector>

/// \file
/// The host's string.

/// The host's string: a value of wide characters, one character of Unicode an
/// element.
///
/// Conversion from and to QString keeps every character: characters beyond the
/// basic plane become one wide character and come back as a surrogate pair; a
/// surrogate without its partner stays the unit that it is. (A wide string that
/// spells a character as two surrogate elements comes back with that character
/// as one element. An element above U+10FFFF is no character; it becomes
/// U+FFFD.) Positions and counts are in wide characters.
///
/// The operations ending in A take their fixed text as a plain Latin-1 string.
class VY_HOSTKERNEL_EXPORT CVyString
{
public:
    /// The empty string.
    CVyString() = default;
    /// Copies \a text up to its terminating zero; null gives the empty string.
    CVyString(const wchar_t* text); // NOLINT(google-explicit-constructor)
    /// Copies \a text, zeros inside it too.
    CVyString(const QString& text); // NOLINT(google-explicit-constructor)

    /// The same text, zeros inside it too.
    operator QString() const; // NOLINT(google-explicit-constructor)

    /// Whether it has no characters.
    bool isEmpty() const { return m_text.empty(); }
    /// The number of its characters.
    int getLength() const { return static_cast<int>(m_text.size()); }
    /// The characters with a terminating zero; valid until the string changes.
    const wchar_t* c_str() const { return m_text.c_str(); }

    /// The parts between the separators, empty ones included: a string with n
    /// separators gives n + 1 parts, the empty string gives one empty part.
    std::vector<CVyString> SplitA(char separator) const;

    /// Position of the first occurrence of \a text at or after \a from; -1 when
    /// there is none.
    int findA(const char* text, int from = 0) const;
    /// Position of the last occurrence of \a text; -1 when there is none.
    int reverseFindA(const char* text) const;

    /// The first \a count characters, or all when there are fewer; a negative
    /// count gives none.
    CVyString left(int count) const;
    /// \a count characters from \a first on, or those that there are; a
    /// negative count means up to the end, a negative \a first the beginning.
    CVyString mid(int first, int count = -1) const;

    /// Removes white space (Unicode's) from the end.
    CVyString& trimRight();
    /// Replaces every occurrence of \a before, which is not empty, by \a after.
    CVyString& replaceA(const char* before, const char* after);

    /// Whether both are equal when letter case is ignored (Unicode's simple
    /// case folding, independent of the locale).
    bool equalNoCase(const CVyString& other) const;

    /// Appends \a other, which may be this string.
    CVyString& operator+=(const CVyString& other);

    /// Both texts, one behind the other.
    friend CVyString operator+(CVyString left, const CVyString& right) { return left += right; }
    /// Whether both hold the same characters.
    friend bool operator==(const CVyString& a, const CVyString& b) { return a.m_text == b.m_text; }
    /// Whether they differ.
    friend bool operator!=(const CVyString& a, const CVyString& b) { return !(a == b); }

private:
    friend struct CVyUtils; // makes its answers from text of any characters, zeros included
    explicit CVyString(std::wstring&& text)
        : m_text(std::move(text))
    {}

    std::wstring m_text;
};
