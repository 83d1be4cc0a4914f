// SPDX-License-Identifier: MIT
#include "VyDxfThumbnail.h"

#include "VyDxfPreview.h"
#include "VyPreviewLimits.h"
#include "VyPreviewSource.h"

#include <algorithm>
#include <cctype>
#include <utility>
#include <vector>

namespace VyDxfThumbnail {

namespace {

constexpr qint64 blockSize = 1024;
constexpr qint64 headSize = 512;    // in which a section's beginning is looked for
constexpr int longestWord = 32;     // of a line that is to be understood
constexpr int longestComment = 512; // or of another line that is no digits
constexpr int longestCode = 12;     // of the line with the code of data that are skipped

enum class Place
{
    Within, // the groups so far may be a thumbnail section's
    Found,  // the section has begun
    Outside
};

// Goes through the groups of a section from its end to its beginning. It is given
// one piece after the other and looks at each byte once, however long the lines are.
class SectionWalk
{
public:
    // From the group that ends where a line begins at \a end.
    explicit SectionWalk(qint64 end)
        : m_at(end - 1)
        , m_front(end)
    {}

    Place place() const { return m_place; }
    qint64 at() const { return m_at; }       // where the next piece ends
    qint64 front() const { return m_front; } // where the first of the groups begins
    // Where the first of the groups with data begins, and the next one; 0 for none.
    qint64 data() const { return m_data; }
    qint64 nextData() const { return m_nextData; }

    void leave() { m_place = Place::Outside; }

    void take(const QByteArray& piece)
    {
        for (int i = piece.size(); --i >= 0 && m_place == Place::Within;) {
            --m_at;
            if (piece.at(i) == '\n')
                endLine(m_at + 1);
            else
                takeByte(piece.at(i));
        }
        if (m_at == 0 && m_place == Place::Within) {
            endLine(0);
            m_place = m_place == Place::Found ? Place::Found : Place::Outside;
        }
    }

private:
    void takeByte(char byte)
    {
        ++m_length;
        if (m_length <= longestWord)
            m_line += byte;
        const auto character = static_cast<uchar>(byte);
        m_isHex = m_isHex && (std::isxdigit(character) != 0 || std::isspace(character) != 0);
        if ((!m_isHex && m_length > longestComment) || (m_isCode && m_length > longestWord))
            m_place = Place::Outside;
    }

    // The line begins at \a start.
    void endLine(qint64 start)
    {
        std::reverse(m_line.begin(), m_line.end());
        if (m_isCode) {
            takeGroup(m_line.trimmed(), start);
        } else {
            m_value = m_length <= longestWord ? m_line.trimmed() : QByteArray();
            m_isValueHex = m_isHex;
        }
        m_isCode = !m_isCode;
        m_line.clear();
        m_length = 0;
        m_isHex = true;
    }

    void takeGroup(const QByteArray& code, qint64 start)
    {
        if (m_isNamed) {
            m_place = code == "0" && m_value == "SECTION" ? Place::Found : Place::Outside;
            return;
        }
        m_isNamed = code == "2" && m_value == "THUMBNAILIMAGE";
        if (m_isNamed)
            return;
        const int number = code.toInt();
        if (number != 90 && number != 999 && !(number == 310 && m_isValueHex))
            m_place = Place::Outside;
        m_front = start;
        if (number == 310)
            m_nextData = std::exchange(m_data, start);
    }

    Place m_place = Place::Within;
    qint64 m_at;
    qint64 m_front;
    qint64 m_data = 0;
    qint64 m_nextData = 0;
    bool m_isNamed = false;

    QByteArray m_line; // the last bytes of the line that is gone through, backwards
    int m_length = 0;
    bool m_isCode = false;
    bool m_isHex = true;

    QByteArray m_value; // of the group whose code comes next
    bool m_isValueHex = false;
};

// The last bytes of a file.
struct Tail
{
    qint64 start;
    QByteArray text;
};

// Where the group begins that ends a section with the word at \a word; 0 for none.
int endGroup(const QByteArray& text, int word)
{
    const int line = text.lastIndexOf('\n', word) + 1;
    if (line < 2)
        return 0;
    const int newline = text.indexOf('\n', word);
    const int length = newline < 0 ? -1 : newline - line;
    const int group = text.lastIndexOf('\n', line - 2) + 1;
    const bool isEnd = text.mid(line, length).trimmed() == "ENDSEC" &&
                       text.mid(group, line - group).trimmed() == "0";
    return isEnd ? group : 0;
}

// The way back from a tail to the section's beginning.
class Way
{
public:
    // Goes on where \a walk has come to.
    explicit Way(const SectionWalk& walk)
        : m_walk(walk)
        , m_start(walk.at())
    {}

    Place place() const { return m_walk.place(); }

    void step(CVyPreviewSource& file, qint64 size)
    {
        const qint64 limit = std::max(qint64(0), file.size() - VyPreviewLimits::longestSection);
        const qint64 start = std::max(limit, m_walk.at() - size);
        m_blocks.push_back(file.read(start, m_walk.at() - start));
        if (m_blocks.back().isEmpty()) // also for the limit
            m_walk.leave();
        m_walk.take(m_blocks.back());
    }

    // The groups found, with what is between them and \a tail, and \a tail.
    QByteArray groups(CVyPreviewSource& file, const Tail& tail) const
    {
        if (place() != Place::Found)
            return {};
        const qint64 left = tail.start - m_start;
        const QByteArray skipped = file.read(m_start, left);
        if (skipped.size() != left)
            return {};
        QByteArray text;
        text.reserve(static_cast<int>(file.size() - m_walk.at()));
        std::for_each(m_blocks.rbegin(), m_blocks.rend(),
                      [&text](const QByteArray& block) { text += block; });
        text += skipped;
        text += tail.text;
        return text.right(static_cast<int>(file.size() - m_walk.front()));
    }

private:
    SectionWalk m_walk;
    qint64 m_start;
    std::vector<QByteArray> m_blocks; // from the last one to the first
};

// The groups of data in front of the first one in a tail, as long as they have its
// length and the same code's line; nearly all of a section.
class SimilarGroups
{
public:
    SimilarGroups(CVyPreviewSource& file, const SectionWalk& walk, const Tail& tail)
        : m_file(file)
        , m_data(walk.data())
        , m_period(walk.nextData() - walk.data())
    {
        const int at = static_cast<int>(m_data - tail.start);
        if (at > 0 && walk.nextData() != 0)
            m_code = tail.text.mid(at - 1, tail.text.indexOf('\n', at) + 1 - (at - 1));
    }

    // How many there are, or 0 where the lines are not alike. The data of another
    // object may stand in front: its groups, though as long, hardly ever begin a
    // multiple of that length away.
    qint64 count() const
    {
        if (m_code.isEmpty() || m_code.size() > longestCode)
            return 0;
        const qint64 most = (VyPreviewLimits::longestSection - (m_file.size() - m_data)) / m_period;
        qint64 similar = 0;
        qint64 other = firstStep / m_period;
        while (other <= most && isSimilar(other))
            similar = std::exchange(other, other * 4);
        return countBetween(similar, std::min(other, most + 1));
    }

    // The same when \a similar of them are there and \a other are not.
    qint64 countBetween(qint64 similar, qint64 other) const
    {
        while (other - similar > 1 && (other - similar) * m_period > headSize / 2) {
            const qint64 middle = (similar + other) / 2;
            (isSimilar(middle) ? similar : other) = middle;
        }
        return similar;
    }

    // The way from the first of \a groups on.
    Way wayFrom(qint64 groups) const { return Way(SectionWalk(m_data - groups * m_period)); }

private:
    static constexpr qint64 firstStep = 16LL * 1024;

    bool isSimilar(qint64 groups) const
    {
        return m_file.read(m_data - 1 - groups * m_period, m_code.size()) == m_code;
    }

    CVyPreviewSource& m_file;
    const qint64 m_data;
    const qint64 m_period;
    QByteArray m_code; // the line, with the end of the line before
};

// The section that \a walk has followed to the start of \a tail.
QByteArray groupsBefore(CVyPreviewSource& file, const SectionWalk& walk, const Tail& tail)
{
    Way way(walk);
    const SimilarGroups similar(file, walk, tail);
    if (const qint64 count = similar.count()) {
        way = similar.wayFrom(count);
        way.step(file, headSize);
        // Other data may stand where these groups would.
        const bool isFound = way.place() == Place::Found;
        if (const qint64 fewer = isFound ? 0 : similar.countBetween(0, count)) {
            Way shorter = similar.wayFrom(fewer);
            shorter.step(file, headSize);
            if (shorter.place() == Place::Found)
                way = shorter;
        }
    }
    while (way.place() == Place::Within)
        way.step(file, blockSize);
    return way.groups(file, tail);
}

} // namespace

QByteArray groups(CVyPreviewSource& file)
{
    const qint64 length = std::min(VyDxfPreview::windowSize, file.size());
    const Tail tail = {file.size() - length, file.read(file.size() - length, length)};
    for (int word = tail.text.size(); word > 0;) {
        word = tail.text.lastIndexOf("ENDSEC", word - 1);
        const int end = word > 0 ? endGroup(tail.text, word) : 0;
        if (end == 0)
            continue;
        SectionWalk walk(tail.start + end);
        walk.take(tail.text.left(end - 1));
        if (walk.place() == Place::Found)
            return tail.text.mid(static_cast<int>(walk.front() - tail.start));
        if (walk.place() == Place::Within)
            return groupsBefore(file, walk, tail);
    }
    return {};
}

} // namespace VyDxfThumbnail
