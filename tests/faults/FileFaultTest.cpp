// SPDX-License-Identifier: MIT
// What happens to the file under the cursor while its preview is shown.
#include "DrawingFolder.h"
#include "UnharmedHost.h"

#include <QLabel>
#include <QProcess>
#include <QThread>
#include <QtTest>

#include <cstdio>
#include <memory>
#include <optional>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// What is done to the file at this path.
using Fault = void (*)(const QString&);

void truncate(const QString& file)
{
    QVERIFY(QFile::resize(file, 20));
}

void removeFile(const QString& file)
{
    QVERIFY(QFile::remove(file));
}

void replaceByFifo(const QString& file)
{
    const QByteArray fifo = QFile::encodeName(file + ".new");
    QCOMPARE(mkfifo(fifo.constData(), 0600), 0);
    QCOMPARE(::rename(fifo.constData(), QFile::encodeName(file).constData()), 0);
}

void replaceByFolder(const QString& file)
{
    QVERIFY(QFile::remove(file) && QDir().mkdir(file));
}

QColor shownColor(QFileDialog& dialog)
{
    const QPixmap shown =
        dialog.findChild<QLabel*>(QStringLiteral("previewLabel"))->pixmap(Qt::ReturnByValue);
    return shown.isNull() ? QColor() : shown.toImage().pixelColor(1, 1);
}

// Another program that has locked a file, in both ways that there are.
class Locker
{
public:
    explicit Locker(const QString& file)
    {
        m_process.start(QCoreApplication::applicationFilePath(), {"--lock", file});
        if (!m_process.waitForReadyRead() || m_process.readAll() != "locked\n")
            QTest::qFail("the file is not locked", __FILE__, __LINE__);
    }
    ~Locker()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY(Locker)

    static int run(const char* path)
    {
        const int file = open(path, O_RDWR | O_CLOEXEC);
        struct flock whole = {};
        whole.l_type = F_WRLCK;
        if (flock(file, LOCK_EX | LOCK_NB) != 0 || fcntl(file, F_SETLK, &whole) != 0)
            return 1;
        std::puts("locked");
        std::fflush(stdout);
        return std::getchar() == EOF ? 0 : 1;
    }

private:
    QProcess m_process;
};

} // namespace

Q_DECLARE_METATYPE(Fault)

class FileFaultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }
    void init();
    void cleanup();

    void cancelled_data();
    void cancelled();
    void truncatedAgainAndAgain();
    void shownWhenItHasBeenWritten();
    void chosenThoughLocked();

private:
    std::optional<UnharmedHost> m_host;
    std::optional<DrawingFolder> m_folder;
    QString m_red;
};

void FileFaultTest::init()
{
    m_host.emplace();
    m_folder.emplace();
    m_red = m_folder->addPicture("red.png", QSize(100, 60), Qt::red);
    m_folder->addPicture("blue.png", QSize(60, 100), Qt::blue);
}

void FileFaultTest::cleanup()
{
    m_host->expectUnharmed();
    m_folder.reset();
    m_host.reset();
}

void FileFaultTest::cancelled_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<bool>("stays"); // in the list
    QTest::newRow("truncated") << Fault(truncate) << true;
    QTest::newRow("removed") << Fault(removeFile) << false;
    QTest::newRow("replaced by a FIFO") << Fault(replaceByFifo) << false;
    QTest::newRow("replaced by a folder") << Fault(replaceByFolder) << true;
}

// The picture of the file before stays when the file has none any more.
void FileFaultTest::cancelled()
{
    QFETCH(Fault, fault);
    QFETCH(bool, stays);
    HostRequest request = openRequest(m_folder->path());
    QElapsedTimer since;
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, "red.png"));
        QTRY_COMPARE(shownColor(dialog), QColor(Qt::red));
        fault(m_red);
        QVERIFY(clickFile(dialog, "blue.png"));
        QTRY_COMPARE(shownColor(dialog), QColor(Qt::blue));
        if (stays)
            QVERIFY(clickFile(dialog, "red.png"));
        QTest::qWait(300);
        QCOMPARE(shownColor(dialog), QColor(Qt::blue));
        since.start();
        clickButton(dialog, QDialogButtonBox::Cancel);
    })});
    QVERIFY2(since.elapsed() < 2000, qPrintable(QString::number(since.elapsed())));
    expectCancelled(request);
}

// Between any two of the steps by which it is read.
void FileFaultTest::truncatedAgainAndAgain()
{
    QFile file(m_red);
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QByteArray content = file.readAll();
    std::atomic<bool> ends{false};
    const std::unique_ptr<QThread> writer(QThread::create([&] {
        for (int i = 0; !ends; ++i) {
            file.resize(i % content.size());
            file.seek(0);
            file.write(content);
            file.flush();
        }
    }));
    writer->start();
    HostRequest request = openRequest(m_folder->path());
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        for (int i = 0; i < 20; ++i) {
            QVERIFY(clickFile(dialog, "red.png"));
            QTest::qWait(70); // it is being read
            QVERIFY(clickFile(dialog, "blue.png"));
            QTRY_COMPARE(shownColor(dialog), QColor(Qt::blue));
        }
        clickButton(dialog, QDialogButtonBox::Cancel);
    })});
    ends = true;
    writer->wait();
    expectCancelled(request);
}

// Written in pieces, it has no preview until it is complete.
void FileFaultTest::shownWhenItHasBeenWritten()
{
    QFile file(m_red);
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QByteArray content = file.readAll();
    QVERIFY(file.resize(0) && file.seek(0));
    HostRequest request = openRequest(m_folder->path());
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        const int pieces = 5;
        for (int i = 0; i < pieces; ++i) {
            QVERIFY(clickFile(dialog, "blue.png"));
            QTRY_COMPARE(shownColor(dialog), QColor(Qt::blue));
            const int from = content.size() * i / pieces;
            const int to = content.size() * (i + 1) / pieces;
            file.write(content.mid(from, to - from));
            QVERIFY(file.flush());
            QVERIFY(clickFile(dialog, "red.png"));
            QTest::qWait(150);
            QTRY_COMPARE(shownColor(dialog), QColor(to < content.size() ? Qt::blue : Qt::red));
        }
        clickButton(dialog, QDialogButtonBox::Open);
    })});
    expectChosen(request, m_red);
}

void FileFaultTest::chosenThoughLocked()
{
    const Locker locker(m_red);
    HostRequest request = openRequest(m_folder->path());
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, "red.png"));
        QTRY_COMPARE(shownColor(dialog), QColor(Qt::red));
        clickButton(dialog, QDialogButtonBox::Open);
    })});
    expectChosen(request, m_red);
}

int main(int argc, char* argv[])
{
    if (argc == 3 && qstrcmp(argv[1], "--lock") == 0)
        return Locker::run(argv[2]);
    QApplication application(argc, argv);
    FileFaultTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FileFaultTest.moc"
