// SPDX-License-Identifier: MIT
#include "VyDwgPreview.h"

#include "VyPreviewImage.h"
#include "VyPreviewLimits.h"
#include "VyPreviewSource.h"

#include <QtEndian>

#include <vector>

namespace VyDwgPreview {

namespace {

constexpr int seekerAt = 0x0D;
constexpr int headerSize = seekerAt + 4;
constexpr int sentinelSize = 16;
constexpr int countAt = sentinelSize + 4; // the overall size between them differs by writer
constexpr int sectionHeadSize = countAt + 1;
constexpr int recordSize = 9;

constexpr char startSentinel[] = "\x1F\x25\x6D\x07\xD4\x36\x28\x28\x9D\x57\xCA\x3F\x9D\x44\x10\x2B";

enum Kind : uchar
{
    Bitmap = 2,
    Png = 6
};

struct Record
{
    uchar kind;
    qint64 start;        // as the record says it
    qint64 startInOrder; // behind the records and the images before
    qint64 size;
};

quint32 number(const QByteArray& bytes, int at)
{
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

// Files older than AC1012 have counts where the section's position stands now.
bool pointsToPreviews(const QByteArray& header)
{
    return header.startsWith("AC10") && header.mid(4, 2).toInt() >= 12;
}

std::vector<Record> pictureRecords(CVyPreviewSource& file, qint64 section)
{
    const QByteArray head = file.read(section, sectionHeadSize);
    if (!head.startsWith(startSentinel))
        return {};
    const int length = recordSize * static_cast<uchar>(head.at(countAt));
    const QByteArray records = file.read(section + sectionHeadSize, length);

    std::vector<Record> result;
    qint64 startInOrder = section + sectionHeadSize + length;
    for (int at = 0; at < records.size(); at += recordSize) {
        const auto kind = static_cast<uchar>(records.at(at));
        const qint64 size = number(records, at + 5);
        if ((kind == Bitmap || kind == Png) && VyPreviewLimits::allowsImage(size))
            result.push_back({kind, number(records, at + 1), startInOrder, size});
        startInOrder += size;
    }
    return result;
}

// Where a record's image may be. Some writers move the section without
// correcting the starts, which count from the file's beginning; the images then
// still follow in order. A start outside the file is no such case but damage.
std::vector<qint64> places(const Record& record, qint64 fileSize)
{
    if (record.start >= fileSize)
        return {};
    if (record.start == record.startInOrder)
        return {record.start};
    return {record.start, record.startInOrder};
}

} // namespace

QImage read(CVyPreviewSource& file)
{
    const QByteArray header = file.read(0, headerSize);
    if (!pointsToPreviews(header))
        return {};
    int tries = 0;
    for (const Record& record : pictureRecords(file, number(header, seekerAt))) {
        for (const qint64 place : places(record, file.size())) {
            if (++tries > VyPreviewLimits::mostTries)
                return {};
            const QByteArray stored = file.read(place, record.size);
            QImage picture = record.kind == Png ? VyPreviewImage::fromPng(stored)
                                                : VyPreviewImage::fromDib(stored);
            if (!picture.isNull())
                return picture;
        }
    }
    return {};
}

} // namespace VyDwgPreview
