// SPDX-License-Identifier: MIT
#include "VyPreviewSource.h"

#include <QIODevice>

CVyPreviewSource::CVyPreviewSource(QIODevice& device)
    : m_device(device)
    , m_size(device.size())
{}

QByteArray CVyPreviewSource::read(qint64 start, qint64 length)
{
    if (start < 0 || length <= 0 || start >= m_size || length > m_size - start)
        return {};
    if (!m_device.seek(start))
        return {};
    const QByteArray bytes = m_device.read(length);
    return bytes.size() == length ? bytes : QByteArray();
}
