// SPDX-License-Identifier: MIT
#include "VyDxfPreview.h"

#include "VyPreviewImage.h"
#include "VyPreviewSource.h"

#include <QByteArrayMatcher>

#include <algorithm>
#include <vector>

namespace VyDxfPreview {

namespace {

constexpr qint64 firstLineSize = 32;

// The lines of a text from some place on, without the blanks around them.
class Lines
{
public:
    Lines(const QByteArray& text, int start)
        : m_text(text)
        , m_at(start)
    {}

    bool atEnd() const { return m_at >= m_text.size(); }

    QByteArray next()
    {
        const int newline = m_text.indexOf('\n', m_at);
        const int end = newline < 0 ? m_text.size() : newline;
        QByteArray line = m_text.mid(m_at, end - m_at).trimmed();
        m_at = end + 1;
        return line;
    }

private:
    const QByteArray& m_text;
    int m_at;
};

// Every text DXF file begins with the number that says what the second line is.
bool beginsWithGroupCode(CVyPreviewSource& file)
{
    const QByteArray start = file.read(0, std::min(firstLineSize, file.size()));
    bool isNumber = false;
    start.left(start.indexOf('\n')).toInt(&isNumber);
    return isNumber;
}

// Start of the line before the one at \a start; 0 when there is none.
int previousLine(const QByteArray& text, int start)
{
    return start < 2 ? 0 : text.lastIndexOf('\n', start - 2) + 1;
}

// The word may also be the text of an entity or the name of a layer: it is the
// section only as the name (2) right behind a section's beginning (0).
bool isSectionName(const QByteArray& text, int start)
{
    int first = start;
    for (int i = 0; i < 3; ++i)
        first = previousLine(text, first);
    Lines lines(text, first);
    return lines.next() == "0" && lines.next() == "SECTION" && lines.next() == "2" &&
           lines.next() == "THUMBNAILIMAGE";
}

// Where the name of the last preview section stands; -1 without a section. The
// places are looked for forwards: a matcher skips most of the text, which a
// search from the end would go through byte by byte.
int sectionName(const QByteArray& text)
{
    const QByteArrayMatcher line("\nTHUMBNAILIMAGE");
    std::vector<int> starts;
    for (int at = line.indexIn(text); at >= 0; at = line.indexIn(text, at + 1))
        starts.push_back(at + 1);
    const auto last = std::find_if(starts.rbegin(), starts.rend(),
                                   [&text](int start) { return isSectionName(text, start); });
    return last == starts.rend() ? -1 : *last;
}

bool isHexadecimal(const QByteArray& text)
{
    return text.size() % 2 == 0 && std::all_of(text.begin(), text.end(), [](char digit) {
               return (digit >= '0' && digit <= '9') || (digit >= 'A' && digit <= 'F') ||
                      (digit >= 'a' && digit <= 'f');
           });
}

// The bytes that the section's groups spell, from code 90 (how many) and codes
// 310 (which); nothing when they are not as many or the section does not end.
QByteArray sectionBytes(Lines lines)
{
    qint64 declared = 0;
    QByteArray bytes;
    while (!lines.atEnd()) {
        const int code = lines.next().toInt(); // 0, and so the end, when it is no number
        const QByteArray value = lines.next();
        if (code == 310 && !isHexadecimal(value))
            return {};
        if (code == 0)
            return value == "ENDSEC" && bytes.size() == declared ? bytes : QByteArray();
        if (code == 90)
            declared = value.toLongLong();
        if (code == 310)
            bytes += QByteArray::fromHex(value);
    }
    return {};
}

} // namespace

QImage read(CVyPreviewSource& file)
{
    if (!beginsWithGroupCode(file))
        return {};
    const qint64 length = std::min(windowSize, file.size());
    const QByteArray window = file.read(file.size() - length, length);
    const int name = sectionName(window);
    if (name < 0)
        return {};
    Lines lines(window, name);
    lines.next();
    return VyPreviewImage::fromDib(sectionBytes(lines));
}

} // namespace VyDxfPreview
