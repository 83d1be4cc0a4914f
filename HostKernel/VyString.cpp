// SPDX-License-Identifier: MIT
#include "VyString.h"

#include <algorithm>
#include <cstring>

static_assert(sizeof(wchar_t) == 4, "one wide character holds one character of Unicode");

namespace {

wchar_t wide(uint codePoint)
{
    return static_cast<wchar_t>(codePoint);
}

// The texts that callers search for fit into the string itself, without memory
// of their own.
std::wstring fixedText(const char* text)
{
    const auto* const first = reinterpret_cast<const unsigned char*>(text);
    return std::wstring(first, first + std::strlen(text));
}

// QString::toStdWString() is not used for callers' text: it replaces unpaired
// surrogates, and a file name may hold one.
std::wstring fromUtf16(const QString& text)
{
    std::wstring result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (int i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
            result += wide(QChar::surrogateToUcs4(unit, text.at(i)));
        } else {
            result += wide(unit.unicode());
        }
    }
    return result;
}

} // namespace

CVyString::CVyString(const wchar_t* text)
    : m_text(text ? text : L"")
{}

CVyString::CVyString(const QString& text)
    : m_text(fromUtf16(text))
{}

CVyString::operator QString() const
{
    QString result;
    result.reserve(getLength());
    for (const wchar_t character : m_text) {
        // The check takes every signed character type for one of eight bits.
        // NOLINTNEXTLINE(bugprone-signed-char-misuse)
        const uint codePoint = static_cast<uint>(character);
        if (codePoint > QChar::LastValidCodePoint) {
            result += QChar(QChar::ReplacementCharacter);
        } else if (QChar::requiresSurrogates(codePoint)) {
            result += QChar(QChar::highSurrogate(codePoint));
            result += QChar(QChar::lowSurrogate(codePoint));
        } else {
            result += QChar(static_cast<ushort>(codePoint));
        }
    }
    return result;
}

std::vector<CVyString> CVyString::SplitA(char separator) const
{
    const wchar_t wideSeparator = wide(static_cast<unsigned char>(separator));
    const auto separators = std::count(m_text.begin(), m_text.end(), wideSeparator);
    std::vector<CVyString> parts(static_cast<std::size_t>(separators) + 1);
    std::size_t start = 0;
    for (CVyString& part : parts) {
        const std::size_t end = std::min(m_text.find(wideSeparator, start), m_text.size());
        part.m_text.assign(m_text, start, end - start);
        start = end + 1;
    }
    return parts;
}

int CVyString::findA(const char* text, int from) const
{
    return static_cast<int>(
        m_text.find(fixedText(text), static_cast<std::size_t>(std::max(from, 0))));
}

int CVyString::reverseFindA(const char* text) const
{
    return static_cast<int>(m_text.rfind(fixedText(text)));
}

CVyString CVyString::left(int count) const
{
    return mid(0, std::max(count, 0));
}

CVyString CVyString::mid(int first, int count) const
{
    const int start = std::clamp(first, 0, getLength());
    CVyString part;
    part.m_text = m_text.substr(static_cast<std::size_t>(start),
                                count < 0 ? std::wstring::npos : static_cast<std::size_t>(count));
    return part;
}

CVyString& CVyString::trimRight()
{
    const auto isText = [](wchar_t character) {
        return !QChar::isSpace(static_cast<uint>(character));
    };
    m_text.erase(std::find_if(m_text.rbegin(), m_text.rend(), isText).base(), m_text.end());
    return *this;
}

CVyString& CVyString::replaceA(const char* before, const char* after)
{
    const std::wstring wanted = fixedText(before);
    std::size_t at = wanted.empty() ? std::wstring::npos : m_text.find(wanted);
    if (at == std::wstring::npos)
        return *this;
    const std::wstring replacement = fixedText(after);
    std::wstring result;
    result.reserve(m_text.size());
    std::size_t done = 0;
    for (; at != std::wstring::npos; at = m_text.find(wanted, done)) {
        result.append(m_text, done, at - done).append(replacement);
        done = at + wanted.size();
    }
    result.append(m_text, done);
    m_text = std::move(result);
    return *this;
}

bool CVyString::equalNoCase(const CVyString& other) const
{
    return QString(*this).compare(QString(other), Qt::CaseInsensitive) == 0;
}

CVyString& CVyString::operator+=(const CVyString& other)
{
    m_text += other.m_text;
    return *this;
}
