// SPDX-License-Identifier: MIT
#include "PanelFaultTest.h"

#include "VyBookmarks.h"

void PanelFaultTest::initTestCase()
{
    QVERIFY(VySetBookmarkFile(QString()));
    NativeTest::initTestCase();
}

void PanelFaultTest::init()
{
    NativeTest::init();
    m_host = std::make_unique<HostState>();
}

void PanelFaultTest::cleanup()
{
    m_host->expectUnchanged();
    if (!QTest::currentTestFailed())
        compareNextRequest();
    m_host.reset();
    NativeTest::cleanup();
}

HostRequest PanelFaultTest::faultyRequest(unsigned type)
{
    m_type = type;
    HostRequest result = request(type);
    result.filter = QStringLiteral("Drawing&*.dwg&Template&*.dwt&All files&*.*");
    result.withTypeIndex = false; // a saved name is answered as it is
    return result;
}

void PanelFaultTest::compareCancelled(const HostRequest& request)
{
    QCOMPARE(request.status, VyStatus::Cancelled);
    QCOMPARE(request.paths, QStringList());
    QCOMPARE(request.typeIndex, 0);
    QVERIFY(!request.codePage);
    QCOMPARE(request.mode, request.type == CVyUserIO::FileNameSave  ? CVyUserIO::Save
                           : request.type == CVyUserIO::FileNameNew ? CVyUserIO::NewFromTemplate
                                                                    : CVyUserIO::Open);
}

void PanelFaultTest::compareAccepted(const HostRequest& request, const QString& path)
{
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList(path));
}

// In a folder of its own, whatever became of the test's.
void PanelFaultTest::compareNextRequest() const
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("plan.dwg")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const bool saves = m_type == CVyUserIO::FileNameSave;
    const QString answer =
        folder.filePath(saves ? QStringLiteral("new.dwg") : QStringLiteral("plan.dwg"));
    HostRequest next;
    next.type = m_type;
    next.withTypeIndex = false;
    next.start = saves ? answer : folder.path();
    CVyFileDialog::SetStyle(CVyFileDialog::StyleNative);
    run(next, {onPanel([=](NSSavePanel* panel) {
                   QCOMPARE(shownNames(panel), QStringList("plan.dwg"));
                   if (!saves)
                       selectNames(panel, {"plan.dwg"});
               }),
               accept()});
    compareAccepted(next, answer);
}

#include "moc_PanelFaultTest.cpp"
