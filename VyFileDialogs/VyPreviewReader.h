// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QObject>
#include <QTimer>

#include <atomic>
#include <memory>

/// Reads the previews of files beside the user interface, which a slow disk or
/// share must not hold up. Only the file that was asked for last counts: while
/// the user runs through a list, the files in between are not read.
class CVyPreviewReader : public QObject
{
    Q_OBJECT

public:
    explicit CVyPreviewReader(QObject* parent = nullptr);
    /// Does not wait for a file that is being read.
    ~CVyPreviewReader() override;

    /// Reads the preview of the file at \a path and announces it with found(), at
    /// once or, if another one was asked for just before, when no more are.
    void read(const QString& path);

    /// Announces nothing until read() is called again.
    void cancel();

Q_SIGNALS:
    /// The file has a preview, \a image, which is not null. A file without one
    /// is not announced.
    void found(const QImage& image);

private:
    void start();

    /// The number of the newest request, which the threads at work compare with
    /// their own.
    const std::shared_ptr<std::atomic<int>> m_newest;
    QString m_waiting; ///< the file to read when the user comes to rest
    QTimer m_rest;
};
