// SPDX-License-Identifier: MIT
#include "AcmeString.h"

#include <algorithm>
#include <utility>

namespace {

// Not QString::toStdWString(): that changes half a surrogate pair, and the name of
// a file may have one.
std::wstring wide(const QString& text)
{
    std::wstring result;
    for (const QChar unit : text) {
        const auto last = result.empty() ? 0 : static_cast<uint>(result.back());
        if (unit.isLowSurrogate() && last <= 0xffff && QChar::isHighSurrogate(last))
            result.back() =
                static_cast<wchar_t>(QChar::surrogateToUcs4(ushort(last), unit.unicode()));
        else
            result += static_cast<wchar_t>(unit.unicode());
    }
    return result;
}

std::wstring latin1(const char* text)
{
    return QString::fromLatin1(text).toStdWString();
}

std::size_t position(int number)
{
    return static_cast<std::size_t>(std::max(number, 0));
}

} // namespace

AcmeString::AcmeString(const wchar_t* text)
    : m_text(text ? text : L"")
{}

AcmeString::AcmeString(const QString& text)
    : m_text(wide(text))
{}

AcmeString::AcmeString(std::wstring text)
    : m_text(std::move(text))
{}

std::vector<AcmeString> AcmeString::SplitA(char separator) const
{
    std::vector<AcmeString> parts;
    const auto wanted = static_cast<wchar_t>(static_cast<unsigned char>(separator));
    std::size_t start = 0;
    for (std::size_t end = 0; end != std::wstring::npos; start = end + 1) {
        end = m_text.find(wanted, start);
        parts.emplace_back(m_text.substr(start, end - start));
    }
    return parts;
}

int AcmeString::findA(const char* text, int from) const
{
    return static_cast<int>(m_text.find(latin1(text), position(from)));
}

int AcmeString::reverseFindA(const char* text) const
{
    return static_cast<int>(m_text.rfind(latin1(text)));
}

AcmeString AcmeString::left(int count) const
{
    return AcmeString(m_text.substr(0, position(count)));
}

AcmeString AcmeString::mid(int first, int count) const
{
    const std::size_t start = std::min(position(first), m_text.size());
    return AcmeString(m_text.substr(start, count < 0 ? std::wstring::npos : position(count)));
}

AcmeString& AcmeString::trimRight()
{
    while (!m_text.empty() && QChar::isSpace(static_cast<uint>(m_text.back())))
        m_text.pop_back();
    return *this;
}

AcmeString& AcmeString::replaceA(const char* before, const char* after)
{
    return *this = QString(*this).replace(QLatin1String(before), QLatin1String(after));
}

bool AcmeString::equalNoCase(const AcmeString& other) const
{
    return QString(*this).compare(other, Qt::CaseInsensitive) == 0;
}

AcmeString& AcmeString::operator+=(const AcmeString& other)
{
    m_text += other.m_text;
    return *this;
}
