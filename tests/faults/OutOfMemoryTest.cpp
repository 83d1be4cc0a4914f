// SPDX-License-Identifier: MIT
// Memory that runs out in a request: of whatever this library asks for in its course,
// once for each, nothing is to be had. The request works all the same, or the host gets
// std::bad_alloc with nothing left behind, and asks again.
#include "FailingNew.h"
#include "HostLog.h"
#include "HostRequest.h"
#include "HostState.h"

#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <new>

namespace {

using Entry = int (HostRequest::*)(std::vector<DialogDriver::Step>);

// What Qt says when an exception passes through its event loop, and its platform of
// every window.
bool isKnown(const QString& message)
{
    return message.startsWith(
               QLatin1String("Qt has caught an exception thrown from an event handler.")) ||
           message.startsWith(QLatin1String("This plugin does not support"));
}

void triggerMode(QFileDialog& dialog, int index)
{
    dialog.findChild<QMenu*>(QStringLiteral("modeMenu"))->actions().at(index)->trigger();
}

void clickFolder(QFileDialog& dialog, const QString& name)
{
    const auto buttons = dialog.findChildren<QPushButton*>(QStringLiteral("folderButton"));
    for (QPushButton* button : buttons) {
        if (button->accessibleName() == name) {
            button->click();
            return;
        }
    }
    QTest::qFail("there is no such folder button", __FILE__, __LINE__);
}

// A preview that there is no memory for does not come.
void lookAtPreview(QFileDialog& dialog, const QString& name)
{
    clickFile(dialog, name);
    const auto* preview = dialog.findChild<QLabel*>(QStringLiteral("previewLabel"));
    for (int times = 0; times < 10 && preview->pixmap(Qt::ReturnByValue).isNull(); ++times)
        QTest::qWait(5);
}

void openWithEncoding(QFileDialog& dialog)
{
    lookAtPreview(dialog, QStringLiteral("plan.png"));
    chooseType(dialog, 0);
    chooseType(dialog, 2);
    clickFolder(dialog, QDir(dialog.directory().absolutePath()).dirName());
    typeName(dialog, QStringLiteral("plan.png"));
    triggerMode(dialog, 2);
}

void openReadOnly(QFileDialog& dialog)
{
    typeName(dialog, QStringLiteral("\"plan.png\" \"more.png\""));
    triggerMode(dialog, 1);
}

void startWithoutTemplate(QFileDialog& dialog)
{
    triggerMode(dialog, 2);
}

void saveElsewhere(QFileDialog& dialog)
{
    typeName(dialog, QStringLiteral("new"));
    chooseType(dialog, 0);
    dialog.setDirectory(dialog.directory().absoluteFilePath(QStringLiteral("inside")));
    typeAndAccept(dialog, QStringLiteral("new.dwg"));
}

void accept(QDialog& dialog)
{
    dialog.accept();
}

void chooseEncoding(QDialog& dialog)
{
    QTest::keyClicks(dialog.findChild<QLineEdit*>(QStringLiteral("search")), "cyr");
    dialog.accept();
}

void reject(QDialog& dialog)
{
    dialog.reject();
}

} // namespace

Q_DECLARE_METATYPE(Entry)

class OutOfMemoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void requestWorksOrTellsTheHost_data();
    void requestWorksOrTellsTheHost();

private:
    HostRequest requestFor(unsigned type) const;
    void expectWorkingRequest() const;

    QTemporaryDir m_folder;
};

void OutOfMemoryTest::initTestCase()
{
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("inside")));
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::red);
    for (const char* name : {"plan.png", "more.png"})
        QVERIFY(picture.save(m_folder.filePath(QLatin1String(name))));
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
}

HostRequest OutOfMemoryTest::requestFor(unsigned type) const
{
    HostRequest request;
    request.type = type;
    request.flags = CVyUserIO::FileNameModeChoices;
    request.filter = QStringLiteral("Drawings&*.dwg;*.dxf&Templates&*.dwt&Pictures&*.png");
    request.start = m_folder.path();
    request.typeIndex = type & CVyUserIO::FileNameSave ? 1 : 2;
    return request;
}

void OutOfMemoryTest::expectWorkingRequest() const
{
    HostRequest request = requestFor(CVyUserIO::FileNameOpen);
    request.start = m_folder.filePath(QStringLiteral("plan.png"));
    request.getFileName({accept});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList{m_folder.filePath(QStringLiteral("plan.png"))});
}

void OutOfMemoryTest::requestWorksOrTellsTheHost_data()
{
    using Steps = std::vector<DialogDriver::Step>;
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<Entry>("ask");
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<int>("status");
    const Entry one = &HostRequest::getFileName;
    const Entry several = &HostRequest::getFileNames;
    const int accepted = VyStatus::Accepted;
    QTest::newRow("open with encoding")
        << unsigned(CVyUserIO::FileNameOpen) << one
        << Steps{onFileDialog(openWithEncoding), chooseEncoding} << accepted;
    QTest::newRow("open several") << unsigned(CVyUserIO::FileNameOpen) << several
                                  << Steps{onFileDialog(openReadOnly)} << accepted;
    QTest::newRow("new") << unsigned(CVyUserIO::FileNameNew) << one
                         << Steps{onFileDialog(startWithoutTemplate)} << accepted;
    QTest::newRow("save") << unsigned(CVyUserIO::FileNameSave) << one
                          << Steps{onFileDialog(saveElsewhere)} << accepted;
    QTest::newRow("cancelled") << unsigned(CVyUserIO::FileNameSave) << several << Steps{reject}
                               << int(VyStatus::Cancelled);
}

void OutOfMemoryTest::requestWorksOrTellsTheHost()
{
    QFETCH(unsigned, type);
    QFETCH(Entry, ask);
    QFETCH(std::vector<DialogDriver::Step>, steps);
    QFETCH(int, status);
    HostState host;
    bool failed = true;
    int number = 0;
    while (failed && !QTest::currentTestFailed()) {
        HostRequest request = requestFor(type);
        const HostRequest before = request;
        const HostLog log;
        bool thrown = false;
        FailingNew::arm(++number);
        try {
            (request.*ask)(steps);
        } catch (const std::bad_alloc&) {
            thrown = true;
        }
        failed = FailingNew::disarm();
        [&] {
            for (const QString& message : log.messages())
                QVERIFY2(isKnown(message), qPrintable(message));
            if (thrown) {
                QVERIFY(failed);
                QCOMPARE(request.paths, before.paths);
                QCOMPARE(request.typeIndex, before.typeIndex);
                QCOMPARE(request.mode, before.mode);
                QCOMPARE(request.codePage, before.codePage);
            } else {
                QCOMPARE(request.status, status);
            }
            host.expectUnchanged();
            expectWorkingRequest();
        }();
    }
    if (QTest::currentTestFailed())
        qInfo("request %d for memory failed at\n%s", number, FailingNew::failedAt());
    qInfo("%d requests for memory", number - 1);
}

QTEST_MAIN(OutOfMemoryTest)
#include "OutOfMemoryTest.moc"
