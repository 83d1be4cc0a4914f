// SPDX-License-Identifier: MIT
// The file under the cursor is on a file system that has stopped to answer: a library
// that is loaded beforehand delays whatever concerns the file VY_SLOW_SHARE by
// VY_SLOW_SHARE_MS.
#include "UnharmedHost.h"

#include <QLabel>
#include <QtTest>

#include <cstdio>

namespace {

// Well below the delay of each call.
constexpr int AtOnceMs = 1000;

QFileInfo slowFile()
{
    return QFileInfo(qEnvironmentVariable("VY_SLOW_SHARE"));
}

// The thread that reads the preview is in it for a while.
void goToSlowFile(QFileDialog& dialog)
{
    QTRY_VERIFY_WITH_TIMEOUT(listedNames(dialog).contains(slowFile().fileName()), 60000);
    QElapsedTimer since;
    since.start();
    QVERIFY(clickFile(dialog, slowFile().fileName()));
    QTest::qWait(100);
    QVERIFY2(since.elapsed() < AtOnceMs, qPrintable(QString::number(since.elapsed())));
}

} // namespace

class StalledFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cancelledAtOnce();
    void anotherFileIsShown();
};

void StalledFileTest::initTestCase()
{
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    QVERIFY(qEnvironmentVariableIntValue("VY_SLOW_SHARE_MS") > 2 * AtOnceMs);
    const QDir folder = slowFile().dir();
    QVERIFY(QDir().mkpath(folder.path()));
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    const QByteArray quick = QFile::encodeName(folder.filePath("quick.png"));
    const QByteArray slow = QFile::encodeName(slowFile().filePath());
    QVERIFY(picture.save(quick, "PNG"));
    QCOMPARE(std::rename(quick.constData(), slow.constData()), 0); // not delayed
    QVERIFY(picture.save(quick, "PNG"));
}

void StalledFileTest::cancelledAtOnce()
{
    UnharmedHost host;
    HostRequest request = openRequest(slowFile().path());
    QElapsedTimer since;
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        goToSlowFile(dialog);
        since.start();
        clickButton(dialog, QDialogButtonBox::Cancel);
    })});
    QVERIFY2(since.elapsed() < AtOnceMs, qPrintable(QString::number(since.elapsed())));
    expectCancelled(request);
    host.expectUnharmed();
}

void StalledFileTest::anotherFileIsShown()
{
    UnharmedHost host;
    HostRequest request = openRequest(slowFile().path());
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        goToSlowFile(dialog);
        QVERIFY(clickFile(dialog, "quick.png"));
        const auto* label = dialog.findChild<QLabel*>(QStringLiteral("previewLabel"));
        QTRY_VERIFY_WITH_TIMEOUT(!label->pixmap(Qt::ReturnByValue).isNull(), AtOnceMs);
        clickButton(dialog, QDialogButtonBox::Open);
    })});
    expectChosen(request, slowFile().dir().filePath("quick.png"));
    host.expectUnharmed();
}

QTEST_MAIN(StalledFileTest)
#include "StalledFileTest.moc"
