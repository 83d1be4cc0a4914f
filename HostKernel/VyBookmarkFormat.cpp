// SPDX-License-Identifier: MIT
#include "VyBookmarkFormat.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <optional>

namespace {

const QLatin1String formatName("bookmarks");

QString timeText(const QDateTime& time)
{
    return time.toString(Qt::ISODateWithMs);
}

QDateTime time(const QJsonValue& value)
{
    return QDateTime::fromString(value.toString(), Qt::ISODateWithMs).toUTC();
}

QByteArray lineText(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QJsonObject factsObject(const VyFileFacts& facts)
{
    QJsonObject object{{QStringLiteral("device"), QString::number(facts.device)},
                       {QStringLiteral("inode"), QString::number(facts.inode)},
                       {QStringLiteral("size"), facts.size},
                       {QStringLiteral("modified"), timeText(facts.modified)}};
    if (facts.born.isValid())
        object.insert(QStringLiteral("born"), timeText(facts.born));
    return object;
}

QJsonObject entryObject(const VyBookmarkEntry& entry)
{
    const VyBookmark& bookmark = entry.bookmark;
    QJsonObject object{{QStringLiteral("path"), bookmark.path},
                       {QStringLiteral("chosen"), timeText(bookmark.chosen)}};
    if (!bookmark.bytes.isEmpty())
        object.insert(QStringLiteral("bytes"),
                      QString::fromLatin1(bookmark.bytes.toPercentEncoding("/")));
    if (entry.file.isKnown())
        object.insert(QStringLiteral("file"), factsObject(entry.file));
    if (!entry.system.isEmpty())
        object.insert(QStringLiteral("bookmark"), QString::fromLatin1(entry.system.toBase64()));
    return object;
}

// Of the three fields that an entry can do without: whether it is as it should be.
bool readFacts(const QJsonValue& value, VyFileFacts& facts)
{
    if (value.isUndefined())
        return true;
    const QJsonObject object = value.toObject();
    bool deviceOk = false;
    bool inodeOk = false;
    VyFileFacts read;
    read.device = object.value(QLatin1String("device")).toString().toULongLong(&deviceOk);
    read.inode = object.value(QLatin1String("inode")).toString().toULongLong(&inodeOk);
    read.size =
        static_cast<qint64>(qBound(-1.0, object.value(QLatin1String("size")).toDouble(-1), 9e18));
    read.modified = time(object.value(QLatin1String("modified")));
    const QJsonValue born = object.value(QLatin1String("born"));
    read.born = time(born);
    if (!deviceOk || !inodeOk || read.size < 0 || !read.isKnown() ||
        read.born.isValid() == born.isUndefined())
        return false;
    facts = read;
    return true;
}

bool readBytes(const QJsonValue& value, QByteArray& bytes)
{
    if (value.isUndefined())
        return true;
    static const QRegularExpression percentEncoded(
        QStringLiteral("\\A([!-$&-~]|%[0-9A-Fa-f]{2})+\\z"));
    const QString text = value.toString();
    if (!percentEncoded.match(text).hasMatch())
        return false;
    const QByteArray read = QByteArray::fromPercentEncoding(text.toLatin1());
    if (read.size() > VyBookmarkLimits::path || read.contains('\0'))
        return false;
    bytes = read;
    return true;
}

bool readSystemRecord(const QJsonValue& value, QByteArray& record)
{
    if (value.isUndefined())
        return true;
    const auto read = QByteArray::fromBase64Encoding(value.toString().toLatin1(),
                                                     QByteArray::AbortOnBase64DecodingErrors);
    if (!read || (*read).isEmpty() || (*read).size() > VyBookmarkLimits::systemRecord)
        return false;
    record = *read;
    return true;
}

struct Entry
{
    VyBookmarkEntry entry;
    bool isWhole = false;
};

std::optional<Entry> readEntry(const QJsonObject& object)
{
    Entry read;
    VyBookmark& bookmark = read.entry.bookmark;
    bookmark.path = object.value(QLatin1String("path")).toString();
    bookmark.chosen = time(object.value(QLatin1String("chosen")));
    if (bookmark.path.isEmpty() || bookmark.path.size() > VyBookmarkLimits::path ||
        !bookmark.chosen.isValid())
        return {};
    const bool factsOk = readFacts(object.value(QLatin1String("file")), read.entry.file);
    const bool bytesOk = readBytes(object.value(QLatin1String("bytes")), bookmark.bytes);
    const bool recordOk =
        readSystemRecord(object.value(QLatin1String("bookmark")), read.entry.system);
    read.isWhole = factsOk && bytesOk && recordOk;
    return read;
}

QJsonObject lineObject(const QByteArray& line)
{
    if (line.size() > VyBookmarkFormat::mostLineBytes)
        return {};
    return QJsonDocument::fromJson(line).object();
}

// The version that a first line declares; 0 for one that is no such line.
int declaredVersion(const QJsonObject& header)
{
    if (header.value(QLatin1String("format")).toString() != formatName)
        return 0;
    return qMax(0, header.value(QLatin1String("version")).toInt());
}

// The lines that are not empty, at most one more than are read.
QList<QByteArray> lines(const QByteArray& text)
{
    QList<QByteArray> result;
    for (int start = 0; start < text.size() && result.size() <= VyBookmarkFormat::mostLines;) {
        const int end = text.indexOf('\n', start);
        const QByteArray line = text.mid(start, end < 0 ? -1 : end - start);
        if (!line.trimmed().isEmpty())
            result.append(line);
        start = end < 0 ? text.size() : end + 1;
    }
    return result;
}

// What the lines after the first have in common.
struct Counts
{
    int read = 0;
    int wrong = 0;
    int partly = 0;
};

void appendEntry(const QByteArray& line, VyBookmarkFormat::Contents& contents, Counts& counts)
{
    ++counts.read;
    const std::optional<Entry> read = readEntry(lineObject(line));
    if (!read) {
        ++counts.wrong;
        return;
    }
    counts.partly += read->isWhole ? 0 : 1;
    contents.entries.append(read->entry);
}

QStringList damage(const Counts& counts, int declared)
{
    QStringList damage;
    if (counts.wrong > 0)
        damage += QStringLiteral("has %1 lines that are no entries").arg(counts.wrong);
    if (counts.partly > 0)
        damage += QStringLiteral("has %1 entries that are wrong in part").arg(counts.partly);
    if (declared > counts.read)
        damage += QStringLiteral("is cut by %1 entries").arg(declared - counts.read);
    if (counts.read - counts.wrong > VyBookmarkLimits::entries)
        damage += QStringLiteral("has more than %1 entries").arg(VyBookmarkLimits::entries);
    return damage;
}

} // namespace

namespace VyBookmarkFormat {

QByteArray write(const QList<VyBookmarkEntry>& entries)
{
    QByteArray text = lineText({{QStringLiteral("format"), formatName},
                                {QStringLiteral("version"), version},
                                {QStringLiteral("entries"), entries.size()}});
    for (const VyBookmarkEntry& entry : entries)
        text += lineText(entryObject(entry));
    return text;
}

Contents read(const QByteArray& text)
{
    Contents contents;
    QList<QByteArray> rest = lines(text);
    if (rest.isEmpty()) {
        contents.damage += QStringLiteral("is empty");
        return contents;
    }
    if (rest.size() > mostLines) {
        contents.damage += QStringLiteral("has more than %1 lines").arg(mostLines);
        rest.removeLast();
    }
    const QJsonObject header = lineObject(rest.constFirst());
    const int found = declaredVersion(header);
    if (found > version) {
        contents.damage += QStringLiteral("is of version %1, which is not known yet").arg(found);
        return contents;
    }
    if (found == version)
        rest.removeFirst();
    else
        contents.damage += QStringLiteral("does not begin as a file of bookmarks");
    Counts counts;
    for (const QByteArray& line : qAsConst(rest))
        appendEntry(line, contents, counts);
    contents.damage += damage(counts, header.value(QLatin1String("entries")).toInt());
    return contents;
}

} // namespace VyBookmarkFormat
