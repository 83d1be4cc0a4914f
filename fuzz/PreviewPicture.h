// SPDX-License-Identifier: MIT
#pragma once

#include "Fuzz.h"
#include "VyPreviewLimits.h"
#include "VyPreviewSource.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>

#include <cstring>

/// The preview that \a read finds in the bytes. Fails when it is larger than
/// previews may be.
inline QImage previewOf(const std::uint8_t* data, std::size_t size,
                        QImage (*read)(CVyPreviewSource& file))
{
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    static const QGuiApplication application(count, arguments); // for texts in drawings
    QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    CVyPreviewSource source(buffer);
    const QImage picture = read(source);
    Fuzz::require(picture.isNull() ||
                      VyPreviewLimits::allowsPicture(picture.width(), picture.height()),
                  "a preview is as large as previews may be");
    return picture;
}
