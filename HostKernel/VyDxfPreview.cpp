// SPDX-License-Identifier: MIT
#include "VyDxfPreview.h"

#include "VyDxfThumbnail.h"
#include "VyPreviewImage.h"
#include "VyPreviewSource.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace VyDxfPreview {

namespace {

constexpr qint64 firstLineSize = 32;

// The lines of a text, without the blanks around them; most refer to its bytes.
class Lines
{
public:
    explicit Lines(const QByteArray& text)
        : m_text(text)
    {}

    bool atEnd() const { return m_at >= m_text.size(); }

    QByteArray next()
    {
        if (atEnd())
            return {};
        const char* line = m_text.constData() + m_at;
        const int left = m_text.size() - m_at;
        const void* newline = std::memchr(line, '\n', static_cast<std::size_t>(left));
        const int length =
            newline ? static_cast<int>(static_cast<const char*>(newline) - line) : left;
        m_at += length + 1;
        return QByteArray::fromRawData(line, length).trimmed();
    }

private:
    const QByteArray& m_text;
    int m_at = 0;
};

// Every text DXF file begins with the number that says what the second line is.
bool beginsWithGroupCode(CVyPreviewSource& file)
{
    const QByteArray start = file.read(0, std::min(firstLineSize, file.size()));
    bool isNumber = false;
    start.left(start.indexOf('\n')).toInt(&isNumber);
    return isNumber;
}

// What each character is worth as a hexadecimal digit; -1 for all others.
constexpr std::array<signed char, 256> digitValues()
{
    std::array<signed char, 256> values = {};
    for (auto& value : values)
        value = -1;
    for (std::size_t i = 0; i < 10; ++i)
        values['0' + i] = static_cast<signed char>(i);
    for (std::size_t i = 0; i < 6; ++i)
        values['A' + i] = values['a' + i] = static_cast<signed char>(10 + i);
    return values;
}

// Adds the bytes that \a digits spell to \a bytes; false when they are no
// hexadecimal digits or an odd number of them.
bool addHex(QByteArray& bytes, const QByteArray& digits)
{
    static constexpr std::array<signed char, 256> values = digitValues();
    const int before = bytes.size();
    bytes.resize(before + digits.size() / 2);
    char* byte = bytes.data() + before;
    int wrong = digits.size() % 2 != 0 ? -1 : 0;
    for (const char* digit = digits.begin(); digits.end() - digit > 1; digit += 2) {
        const int value =
            values[static_cast<uchar>(digit[0])] * 16 | values[static_cast<uchar>(digit[1])];
        wrong |= value;
        *byte++ = static_cast<char>(value);
    }
    return wrong >= 0;
}

// The bytes that a section's \a groups spell, from code 90 (how many) and codes
// 310 (which); nothing when they are not as many or the section does not end.
QByteArray sectionBytes(const QByteArray& groups)
{
    Lines lines(groups);
    qint64 declared = 0;
    QByteArray bytes;
    bytes.reserve(groups.size() / 2);
    while (!lines.atEnd()) {
        const int code = lines.next().toInt(); // 0, and so the end, when it is no number
        const QByteArray value = lines.next();
        if (code == 310 && !addHex(bytes, value))
            return {};
        if (code == 0)
            return value == "ENDSEC" && bytes.size() == declared ? bytes : QByteArray();
        if (code == 90)
            declared = value.toLongLong();
    }
    return {};
}

} // namespace

QImage read(CVyPreviewSource& file)
{
    if (!beginsWithGroupCode(file))
        return {};
    return VyPreviewImage::fromDib(sectionBytes(VyDxfThumbnail::groups(file)));
}

} // namespace VyDxfPreview
