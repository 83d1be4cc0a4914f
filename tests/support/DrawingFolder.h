// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

/// A temporary folder to fill with what a test lists.
class DrawingFolder
{
public:
    QString path() const { return QDir(m_folder.path()).canonicalPath(); }
    QString filePath(const QString& name) const { return path() + QLatin1Char('/') + name; }

    QString addFile(const QString& name, const QByteArray& content = "drawing")
    {
        QFile file(filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }
    QString addFolder(const QString& name)
    {
        QDir(path()).mkpath(name);
        return filePath(name);
    }
    /// A file whose preview is a picture of one colour.
    QString addPicture(const QString& name, const QSize& size, Qt::GlobalColor color)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        image.save(filePath(name), "PNG");
        return filePath(name);
    }

private:
    QTemporaryDir m_folder;
};
