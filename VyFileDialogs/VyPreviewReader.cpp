// SPDX-License-Identifier: MIT
#include "VyPreviewReader.h"

#include "VyPreviewBitmap.h"

#include <QRunnable>
#include <QThreadPool>

#include <new>

namespace {

// Longer than the pause between two repetitions of a key that is held down, and
// too short to be noticed.
constexpr int restMs = 60;

QImage previewOf(const QString& path)
{
    QImage image;
    const std::unique_ptr<CVyPreviewBitmap> bitmap(CVyPreviewBitmap::Create());
    if (bitmap->ReadPreview(CVyString(path)))
        bitmap->CopyTo(image);
    return image;
}

// A share that does not answer keeps its threads for good. So a few may wait
// there while others work, and nobody ever waits for them: the pool is not
// destroyed, not even when the process ends.
QThreadPool& threads()
{
    static QThreadPool* const pool = [] {
        auto* created = new QThreadPool;
        created->setMaxThreadCount(4);
        return created;
    }();
    return *pool;
}

} // namespace

/// One file to read, in a thread of the pool, which deletes it.
class CVyPreviewJob : public QObject, public QRunnable
{
    Q_OBJECT

public:
    CVyPreviewJob(const QString& path, const std::shared_ptr<std::atomic<int>>& newest)
        : m_path(path)
        , m_newest(newest)
        , m_number(++*newest)
    {}

    // An exception that left the thread would end the host. Memory may be short, and a
    // kernel of the host's own may throw what it likes: then there is no preview.
    void run() override
    try {
        if (*m_newest != m_number)
            return;
        const QImage image = previewOf(m_path);
        if (!image.isNull())
            Q_EMIT done(m_number, image);
    } catch (...) {
    }

Q_SIGNALS:
    void done(int number, const QImage& image);

private:
    const QString m_path;
    const std::shared_ptr<std::atomic<int>> m_newest;
    const int m_number;
};

CVyPreviewReader::CVyPreviewReader(QObject* parent)
    : QObject(parent)
    , m_newest(std::make_shared<std::atomic<int>>(0))
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(restMs);
    connect(&m_rest, &QTimer::timeout, this, &CVyPreviewReader::start);
}

CVyPreviewReader::~CVyPreviewReader()
{
    cancel();
}

void CVyPreviewReader::read(const QString& path)
{
    cancel();
    m_waiting = path;
    if (!m_rest.isActive())
        start();
    m_rest.start();
}

void CVyPreviewReader::cancel()
{
    ++*m_newest;
    m_waiting.clear();
}

// Nothing may leave it into the event loop; what memory is too short for is no preview.
void CVyPreviewReader::start()
try {
    if (m_waiting.isEmpty())
        return;
    auto job = std::make_unique<CVyPreviewJob>(m_waiting, m_newest);
    m_waiting.clear();
    connect(
        job.get(), &CVyPreviewJob::done, this,
        [this](int number, const QImage& image) {
            if (number == *m_newest)
                Q_EMIT found(image);
        },
        Qt::QueuedConnection);
    QThreadPool& pool = threads();
    pool.start(job.release());
} catch (const std::bad_alloc&) {
}

#include "VyPreviewReader.moc"
