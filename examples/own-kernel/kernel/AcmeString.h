// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>
#include <vector>

/// Acme's string: wide characters, one character of Unicode an element.
class AcmeString
{
public:
    AcmeString() = default;
    /// Null is the empty string.
    AcmeString(const wchar_t* text);
    AcmeString(const QString& text);
    explicit AcmeString(std::wstring text);

    operator QString() const { return QString::fromStdWString(m_text); }

    bool isEmpty() const { return m_text.empty(); }

    /// The parts between the separators; empty ones count.
    std::vector<AcmeString> SplitA(char separator) const;
    /// Where the Latin-1 \a text comes first, at or after \a from, or last; else -1.
    int findA(const char* text, int from = 0) const;
    int reverseFindA(const char* text) const;
    /// A part of it; what lies outside counts for nothing, and of mid() a
    /// negative \a count means all.
    AcmeString left(int count) const;
    AcmeString mid(int first, int count = -1) const;
    /// Takes white space off the end.
    AcmeString& trimRight();
    /// Puts the Latin-1 \a after in the place of each \a before.
    AcmeString& replaceA(const char* before, const char* after);
    bool equalNoCase(const AcmeString& other) const;

    AcmeString& operator+=(const AcmeString& other);
    friend AcmeString operator+(AcmeString a, const AcmeString& b) { return a += b; }

private:
    std::wstring m_text;
};
