// SPDX-License-Identifier: MIT
#include "VyDxfText.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace VyDxfText {

namespace {

constexpr int text = 1;
constexpr int moreText = 3;

// A group of the file: the number that says what the value on the next line is.
struct Group
{
    int code = 0;
    QByteArray value;
};

class Groups
{
public:
    explicit Groups(const QByteArray& bytes)
        : m_bytes(bytes)
    {}

    bool next(Group& group)
    {
        QByteArray number;
        bool isNumber = false;
        if (!nextLine(number) || !nextLine(group.value))
            return false;
        group.code = number.trimmed().toInt(&isNumber);
        return isNumber;
    }

private:
    bool nextLine(QByteArray& line)
    {
        const int end = m_bytes.indexOf('\n', m_at);
        if (end < 0)
            return false;
        line = m_bytes.mid(m_at, end - m_at);
        if (line.endsWith('\r'))
            line.chop(1);
        m_at = end + 1;
        return true;
    }

    const QByteArray& m_bytes;
    int m_at = 0;
};

bool isText(int code)
{
    return (code >= 1 && code <= 9) || (code >= 300 && code <= 309) ||
           (code >= 410 && code <= 419) || (code >= 430 && code <= 439) ||
           (code >= 470 && code <= 479) || (code >= 999 && code <= 1009);
}

bool isAscii(const QByteArray& bytes)
{
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

// The values that count, and the chunks of a long text put together: a character
// of several bytes may be cut by the end of a chunk.
class Collector
{
public:
    QList<QByteArray> found;

    void take(const Group& group)
    {
        if (group.code == moreText) {
            m_chunks += group.value;
            return;
        }
        if (group.code == text) {
            add(m_chunks + group.value);
        } else {
            add(m_chunks);
            if (isText(group.code))
                add(group.value);
        }
        m_chunks.clear();
    }

private:
    void add(const QByteArray& value)
    {
        if (found.size() < mostValues && !isAscii(value) && !found.contains(value))
            found.append(value);
    }

    QByteArray m_chunks;
};

} // namespace

QList<QByteArray> values(const QByteArray& beginning)
{
    Collector collector;
    Groups groups(beginning);
    Group group;
    while (collector.found.size() < mostValues && groups.next(group))
        collector.take(group);
    return collector.found;
}

QList<QByteArray> read(const QString& path)
{
    if (path.contains(QChar(QChar::Null)))
        return {}; // Qt would warn about it on the host's log
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || file.isSequential())
        return {};
    return values(file.read(windowSize));
}

} // namespace VyDxfText
