// SPDX-License-Identifier: MIT
// Previews are read beside the user interface. A kernel's reader of our own stands
// in for the real one; its files can take as long as we like.
#include "DrawingFolder.h"
#include "HostRequest.h"
#include "VyPreviewBitmap.h"
#include "VyPreviewReader.h"

#include <QLabel>
#include <QThread>
#include <QTreeView>
#include <QtTest>

#include <condition_variable>
#include <mutex>

namespace {

// What the stand-in has been asked for, and when it may answer. With the standard
// library's locks, as the thread sanitizer does not see Qt's.
struct Disk
{
    std::mutex mutex;
    std::condition_variable answered;
    QStringList started;
    QStringList slow; ///< files that wait until they are taken from here
    bool inInterface = false;

    static QString nameOf(const QString& path) { return path.section('/', -1); }

    void read(const QString& path)
    {
        std::unique_lock lock(mutex);
        inInterface = inInterface || QThread::currentThread() == qApp->thread();
        started.append(nameOf(path));
        answered.wait(lock, [&] { return !slow.contains(nameOf(path)); });
    }
    void answer(const QString& name)
    {
        const std::lock_guard lock(mutex);
        slow.removeAll(name);
        answered.notify_all();
    }
    QStringList startedSoFar()
    {
        const std::lock_guard lock(mutex);
        return started;
    }
};

Disk s_disk;

// Each file is a picture as wide as its name's number; "none" has no preview, and
// for "large" there is no memory.
class FakePreview : public CVyPreviewBitmap
{
public:
    bool ReadPreview(const CVyString& path) override
    {
        s_disk.read(path);
        if (Disk::nameOf(path) == "large.dwg")
            throw std::bad_alloc();
        m_width = Disk::nameOf(path).section('.', 0, 0).toInt();
        return m_width > 0;
    }
    void CopyTo(QImage& image) const override
    {
        image = QImage(m_width, 1, QImage::Format_RGB32);
        image.fill(Qt::red);
    }

private:
    int m_width = 0;
};

QStringList drawings(int count)
{
    QStringList names;
    for (int i = 1; i <= count; ++i)
        names.append(QStringLiteral("%1.dwg").arg(i, 2, 10, QLatin1Char('0')));
    return names;
}

// At work on a file whose disk does not answer.
class BusyReader : public CVyPreviewReader
{
public:
    BusyReader()
    {
        s_disk.slow = QStringList{"1.dwg"};
        read("1.dwg");
        if (!QTest::qWaitFor([] { return s_disk.startedSoFar().size() == 1; }))
            QTest::qFail("the file is not being read", __FILE__, __LINE__);
    }

    QSignalSpy found{this, &CVyPreviewReader::found};
};

} // namespace

CVyPreviewBitmap* CVyPreviewBitmap::Create()
{
    return new FakePreview;
}

class PreviewReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void readsAtOnceAndElsewhere();
    void heldKeyReadsTheEnds();
    void slowFileDelaysNoOther();
    void lateAnswerIsDropped();
    void fileWithoutPreviewAnnouncesNothing();
    void outlivesAnException();
    void cancelled();
    void goesWithoutWaiting();
    void unansweredFilesAreFew();
    void heldKeyInTheDialog();
};

void PreviewReaderTest::init()
{
    const std::lock_guard lock(s_disk.mutex);
    s_disk.started.clear();
    s_disk.slow.clear();
    s_disk.inInterface = false;
}

void PreviewReaderTest::cleanup()
{
    {
        const std::lock_guard lock(s_disk.mutex);
        s_disk.slow.clear();
        s_disk.answered.notify_all();
    }
    QTest::qWait(20); // the threads end what they do
}

void PreviewReaderTest::readsAtOnceAndElsewhere()
{
    CVyPreviewReader reader;
    QSignalSpy found(&reader, &CVyPreviewReader::found);
    reader.read("7.dwg");
    QTRY_COMPARE(found.size(), 1);
    QCOMPARE(found.at(0).at(0).value<QImage>().width(), 7);
    QVERIFY(!s_disk.inInterface);
}

void PreviewReaderTest::heldKeyReadsTheEnds()
{
    CVyPreviewReader reader;
    QSignalSpy found(&reader, &CVyPreviewReader::found);
    for (int i = 1; i <= 100; ++i)
        reader.read(QStringLiteral("%1.dwg").arg(i));
    QTRY_VERIFY(!found.isEmpty() && found.last().at(0).value<QImage>().width() == 100);
    const QStringList started = s_disk.startedSoFar();
    QVERIFY(QStringList({"1.dwg", "100.dwg"}) == started || QStringList{"100.dwg"} == started);
}

void PreviewReaderTest::slowFileDelaysNoOther()
{
    BusyReader reader;
    reader.read("2.dwg");
    QTRY_COMPARE(reader.found.size(), 1);
    QCOMPARE(reader.found.at(0).at(0).value<QImage>().width(), 2);
}

void PreviewReaderTest::lateAnswerIsDropped()
{
    BusyReader reader;
    reader.read("2.dwg");
    QTRY_COMPARE(reader.found.size(), 1);
    s_disk.answer("1.dwg");
    QTest::qWait(100);
    QCOMPARE(reader.found.size(), 1);
}

void PreviewReaderTest::fileWithoutPreviewAnnouncesNothing()
{
    CVyPreviewReader reader;
    QSignalSpy found(&reader, &CVyPreviewReader::found);
    reader.read("none.dwg");
    QTRY_COMPARE(s_disk.startedSoFar(), QStringList{"none.dwg"});
    QTest::qWait(50);
    QVERIFY(found.isEmpty());
}

void PreviewReaderTest::outlivesAnException()
{
    CVyPreviewReader reader;
    QSignalSpy found(&reader, &CVyPreviewReader::found);
    reader.read("large.dwg");
    QTRY_COMPARE(s_disk.startedSoFar(), QStringList{"large.dwg"});
    QTest::qWait(50);
    reader.read("3.dwg");
    QTRY_COMPARE(found.size(), 1);
    QCOMPARE(found.at(0).at(0).value<QImage>().width(), 3);
}

void PreviewReaderTest::cancelled()
{
    BusyReader reader;
    reader.read("2.dwg");
    reader.cancel();
    s_disk.answer("1.dwg");
    QTest::qWait(150);
    QVERIFY(reader.found.isEmpty());
    QCOMPARE(s_disk.startedSoFar(), QStringList{"1.dwg"});
}

void PreviewReaderTest::goesWithoutWaiting()
{
    s_disk.slow = QStringList{"1.dwg"};
    {
        CVyPreviewReader reader;
        reader.read("1.dwg");
        QTRY_COMPARE(s_disk.startedSoFar().size(), 1);
    } // would block for ever
    s_disk.answer("1.dwg");
    QTest::qWait(50);
}

// A share that has gone away gets no more than four threads, and their number is
// not passed by files that nobody looks at any more.
void PreviewReaderTest::unansweredFilesAreFew()
{
    const QStringList files = drawings(8);
    s_disk.slow = files;
    CVyPreviewReader reader;
    QSignalSpy found(&reader, &CVyPreviewReader::found);
    for (const QString& file : files) {
        reader.read(file);
        QTest::qWait(100);
    }
    QTRY_COMPARE(s_disk.startedSoFar(), files.mid(0, 4));
    for (const QString& file : files)
        s_disk.answer(file);
    QTRY_COMPARE(found.size(), 1);
    QCOMPARE(found.at(0).at(0).value<QImage>().width(), 8);
    QCOMPARE(s_disk.startedSoFar(), files.mid(0, 4) + files.mid(7));
}

void PreviewReaderTest::heldKeyInTheDialog()
{
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    DrawingFolder folder;
    for (const QString& name : drawings(15))
        folder.addFile(name);
    s_disk.slow = QStringList{"01.dwg"};
    HostRequest request;
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        dialog.setViewMode(QFileDialog::Detail);
        QVERIFY(waitForFile(dialog, "15.dwg"));
        QTest::qWait(100); // the list is sorted
        QVERIFY(clickFile(dialog, "01.dwg"));
        auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
        for (int i = 2; i <= 15; ++i)
            QTest::keyClick(list, Qt::Key_Down);
        auto* label = dialog.findChild<QLabel*>(QStringLiteral("previewLabel"));
        QTRY_VERIFY(!label->pixmap(Qt::ReturnByValue).isNull());
        QCOMPARE(list->currentIndex().data().toString(), QStringLiteral("15.dwg"));
        dialog.reject();
    })});
    const QStringList started = s_disk.startedSoFar();
    QCOMPARE(started.last(), QStringLiteral("15.dwg"));
    QCOMPARE(s_disk.slow, QStringList{"01.dwg"}); // still not answered
    QVERIFY(!s_disk.inInterface);
}

QTEST_MAIN(PreviewReaderTest)
#include "PreviewReaderTest.moc"
