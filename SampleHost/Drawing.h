// SPDX-License-Identifier: MIT
#pragma once

#include "OdCodePageId.h"
#include "VyUserIO.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QImage>
#include <QString>
#include <QStringList>

/// A drawing that the sample has open: what its file holds, as it is.
struct Drawing
{
    QString path;     ///< empty until it is saved
    QString name;     ///< of its file, or what stands for one
    QByteArray bytes; ///< of its file
    QImage picture;   ///< the preview in it; null where there is none
    bool readOnly = false;
    OdCodePageId codePage = OdCodePageId::Undefined;
    CVyUserIO::_FileNameRetVal mode = CVyUserIO::Open; ///< how it came about
};

/// Reads and writes drawings. What can fail answers why it did, as the rest of a
/// sentence after the file's name, or nothing.
class DrawingFiles
{
    Q_DECLARE_TR_FUNCTIONS(DrawingFiles)

public:
    /// Reads the file at \a path into \a drawing, which is left alone on failure.
    static QString read(const QString& path, Drawing& drawing);

    /// Writes the drawing to \a path, where nothing is changed on failure; on
    /// success it is the drawing of that file from now on.
    static QString write(const QString& path, Drawing& drawing);

    /// A drawing without anything in it, as NewImperial and NewMetric ask for: a
    /// text DXF file, which other programs read.
    static Drawing empty(CVyUserIO::_FileNameRetVal mode);

    /// The extensions that \a drawing can be saved under: those of its format, the
    /// preferred one first, for nothing here converts. Empty where it has none.
    static QStringList extensions(const Drawing& drawing);

    /// What files with \a extension are called.
    static QString typeName(const QString& extension);
};
