// SPDX-License-Identifier: MIT
// The two requests against a fake back-end: which calls they make, in which
// order, and what they leave as it was.
#include "FakeFamily.h"
#include "HostRequest.h"

#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <climits>
#include <stdexcept>

using FakeFamily::calls;
using FakeFamily::script;

class FrontTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        FakeFamily::reset();
        CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    }
    void cleanup() { QCOMPARE(FakeFamily::alive(), 0); }

    void failsWithoutBackEnd_data();
    void failsWithoutBackEnd();
    void nullOutputFails();
    void choosesTheFamily_data();
    void choosesTheFamily();
    void callsInOrder();
    void callsInOrderForSeveral();
    void newRequestPresetsTheTemplate_data();
    void newRequestPresetsTheTemplate();
    void passesOtherStatusOn();
    void keepsTheWorkingDirectory();
    void locksTheHostsWindows();
    void releasesEverythingOnException_data();
    void releasesEverythingOnException();
    void styleChangeDuringARequest();
    void nestedRequest();
};

void FrontTest::failsWithoutBackEnd_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("makesImpl");
    QTest::newRow("style at load") << 0 << true;
    QTest::newRow("unknown style") << 1 << true;
    QTest::newRow("another unknown style") << 4 << true;
    QTest::newRow("negative style") << -1 << true;
    QTest::newRow("largest style") << INT_MAX << true;
    QTest::newRow("no Qt back-end for the kind") << 2 << false;
    QTest::newRow("no native back-end for the kind") << 3 << false;
}

void FrontTest::failsWithoutBackEnd()
{
    QFETCH(int, style);
    QFETCH(bool, makesImpl);
    QVERIFY(CVyFileDialog::SetStyle(static_cast<CVyFileDialog::_Style>(style)));
    script().makesImpl = makesImpl;
    for (const bool several : {false, true}) {
        HostRequest request;
        request.typeIndex = 7;
        const int status = several ? request.getFileNames({}) : request.getFileName({});
        QCOMPARE(status, VyStatus::Failed);
        QCOMPARE(request.mode, HostRequest::untouchedMode());
        QVERIFY(request.paths.isEmpty());
        QCOMPARE(request.typeIndex, 7);
        QCOMPARE(request.codePage, nullptr);
    }
}

void FrontTest::nullOutputFails()
{
    auto mode = HostRequest::untouchedMode();
    const CVyString text;
    QCOMPARE(CVyFileDialog::GetFileName(&mode, nullptr, 0, CVyUserIO::FileNameOpen, text, text,
                                        text, text, nullptr, nullptr, CVyUserIO::FileNameNoFlags,
                                        nullptr),
             VyStatus::Failed);
    QCOMPARE(CVyFileDialog::GetFileNames(&mode, nullptr, 0, CVyUserIO::FileNameOpen, text, text,
                                         text, text, nullptr, nullptr, CVyUserIO::FileNameNoFlags,
                                         nullptr),
             VyStatus::Failed);
    QCOMPARE(mode, HostRequest::untouchedMode());
    QVERIFY(calls().isEmpty());
}

void FrontTest::choosesTheFamily_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<unsigned>("flags");
    QTest::addColumn<bool>("several");
    QTest::addColumn<QString>("factoryCall");
    QTest::newRow("Qt, one") << 2 << 0x2U << 0U << false << "createQt(2,0,0)";
    QTest::newRow("Qt, several") << 2 << 0x2U << 0U << true << "createQt(2,1,0)";
    QTest::newRow("native, one") << 3 << 0x4U << 1U << false << "createMac(4,0,1)";
    QTest::newRow("native, several") << 3 << 0x1U << 1U << true << "createMac(1,1,1)";
    QTest::newRow("qualifiers go along") << 2 << 0x702U << 1U << false << "createQt(702,0,1)";
    QTest::newRow("other flags are ignored")
        << 2 << 0x2U << 0xfffffffeU << false << "createQt(2,0,0)";
    QTest::newRow("one of many flags") << 2 << 0x2U << 0xffffffffU << false << "createQt(2,0,1)";
}

void FrontTest::choosesTheFamily()
{
    QFETCH(int, style);
    QFETCH(unsigned, type);
    QFETCH(unsigned, flags);
    QFETCH(bool, several);
    QFETCH(QString, factoryCall);
    CVyFileDialog::SetStyle(static_cast<CVyFileDialog::_Style>(style));
    HostRequest request;
    request.type = type;
    request.flags = flags;
    several ? request.getFileNames({}) : request.getFileName({});
    QCOMPARE(calls().constFirst(), factoryCall);
}

void FrontTest::callsInOrder()
{
    QTemporaryDir folder;
    HostRequest request;
    request.title = QStringLiteral("Title");
    request.defaultExtension = QStringLiteral("dwg");
    request.filter = QStringLiteral("A&*.a");
    request.start = folder.filePath(QStringLiteral("missing.dwg"));
    request.typeIndex = 5;
    request.templateName = QStringLiteral("iso.dwt");
    request.parent = 77;
    script().results = QStringList{QStringLiteral("/x.dwg")};
    request.getFileName({});
    QCOMPARE(calls(), (QStringList{"createQt(2,0,0)", "setTitle(Title)", "setDefaultExtension(dwg)",
                                   "setFileTypes(A&*.a)", "setDefaultFolder(" + folder.path() + ")",
                                   "setDefaultFileName(missing.dwg)", "setFileTypeIndex(5)",
                                   "setDefaultTemplateName(iso.dwt)", "show(77)", "getResult",
                                   "getFileTypeIndex", "getTemplateName", "getOpenMode",
                                   "getOpenMode", "delete"}));
}

void FrontTest::callsInOrderForSeveral()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("plan.dwg")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    HostRequest request;
    request.start = file.fileName();
    request.withTypeIndex = false;
    script().results = QStringList{QStringLiteral("/x.dwg")};
    request.getFileNames({});
    QCOMPARE(calls(), (QStringList{"createQt(2,1,0)", "setTitle(Choose)", "setDefaultExtension()",
                                   "setFileTypes(" + request.filter + ")",
                                   "setDefaultFileName(" + file.fileName() + ")", "show(0)",
                                   "getResults", "getOpenMode", "getOpenMode", "delete"}));
}

void FrontTest::newRequestPresetsTheTemplate_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<bool>("several");
    QTest::addColumn<bool>("presetsTheName");
    QTest::newRow("new") << 0x1U << false << true;
    QTest::newRow("new with a qualifier") << 0x101U << false << false;
    QTest::newRow("open") << 0x2U << false << false;
    QTest::newRow("save") << 0x4U << false << false;
    QTest::newRow("new, several") << 0x1U << true << false;
}

void FrontTest::newRequestPresetsTheTemplate()
{
    QFETCH(unsigned, type);
    QFETCH(bool, several);
    QFETCH(bool, presetsTheName);
    HostRequest request;
    request.type = type;
    request.templateName = QStringLiteral("iso.dwt");
    several ? request.getFileNames({}) : request.getFileName({});
    const int stored = calls().indexOf(QStringLiteral("setDefaultTemplateName(iso.dwt)"));
    const int preset = calls().indexOf(QStringLiteral("setDefaultFileName(iso.dwt)"));
    QVERIFY(stored > 0);
    QCOMPARE(preset, presetsTheName ? stored + 1 : -1);
}

void FrontTest::passesOtherStatusOn()
{
    script().showStatus = 4711;
    HostRequest request;
    QCOMPARE(request.getFileName({}), 4711);
    QCOMPARE(request.getFileNames({}), 4711);
    QVERIFY(request.paths.isEmpty());
}

void FrontTest::keepsTheWorkingDirectory()
{
    const QString before = QDir::currentPath();
    const QTemporaryDir elsewhere;
    const QString there = QDir(elsewhere.path()).canonicalPath();
    script().duringShow = [&] { QDir::setCurrent(there); };
    for (const int status : {VyStatus::Accepted, VyStatus::Cancelled}) {
        script().showStatus = status;
        HostRequest().getFileName({});
        QCOMPARE(QDir::currentPath(), before);
    }
    HostRequest().getFileNames({});
    QCOMPARE(QDir::currentPath(), there);
    QVERIFY(QDir::setCurrent(before));
}

void FrontTest::locksTheHostsWindows()
{
    QPushButton hostButton;
    QSignalSpy clicks(&hostButton, SIGNAL(clicked()));
    hostButton.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hostButton));
    const auto click = [&] { QTest::mouseClick(hostButton.windowHandle(), Qt::LeftButton); };
    script().duringShow = click;
    HostRequest().getFileName({});
    HostRequest().getFileNames({});
    QCOMPARE(clicks.size(), 0);
    click();
    QCOMPARE(clicks.size(), 1);
}

void FrontTest::releasesEverythingOnException_data()
{
    QTest::addColumn<QString>("throwingCall");
    for (const char* call : {"setTitle(Choose)", "setDefaultExtension()", "setDefaultFolder(/)",
                             "setFileTypeIndex(0)", "show(0)", "getFileTypeIndex", "getOpenMode"})
        QTest::newRow(call) << call;
}

void FrontTest::releasesEverythingOnException()
{
    QFETCH(QString, throwingCall);
    const QString before = QDir::currentPath();
    QPushButton hostButton;
    QSignalSpy clicks(&hostButton, SIGNAL(clicked()));
    hostButton.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hostButton));
    script().onCall = [&](const QString& call) {
        if (call == throwingCall) {
            QDir::setCurrent(QDir::rootPath());
            throw std::runtime_error("back-end");
        }
    };
    HostRequest request;
    request.start = QDir::rootPath();
    QVERIFY_EXCEPTION_THROWN(request.getFileName({}), std::runtime_error);
    const bool afterRestoring = throwingCall.startsWith(QLatin1String("get"));
    QCOMPARE(QDir::currentPath(), afterRestoring ? QDir::rootPath() : before);
    QDir::setCurrent(before);
    QVERIFY_EXCEPTION_THROWN(request.getFileNames({}), std::runtime_error);
    QDir::setCurrent(before);
    QCOMPARE(FakeFamily::alive(), 0);
    QTest::mouseClick(hostButton.windowHandle(), Qt::LeftButton);
    QCOMPARE(clicks.size(), 1);
}

void FrontTest::styleChangeDuringARequest()
{
    script().duringShow = [] { CVyFileDialog::SetStyle(CVyFileDialog::StyleNative); };
    script().results = QStringList{QStringLiteral("/x.dwg")};
    HostRequest request;
    QCOMPARE(request.getFileName({}), VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList{QStringLiteral("/x.dwg")});
    HostRequest().getFileName({});
    QVERIFY(calls().contains(QStringLiteral("createMac(2,0,0)")));
}

void FrontTest::nestedRequest()
{
    HostRequest inner;
    script().duringShow = [&] {
        script().duringShow = nullptr;
        QCOMPARE(FakeFamily::alive(), 1);
        inner.getFileName({});
        QCOMPARE(FakeFamily::alive(), 1);
    };
    script().results = QStringList{QStringLiteral("/x.dwg")};
    HostRequest outer;
    QCOMPARE(outer.getFileName({}), VyStatus::Accepted);
    QCOMPARE(inner.status, VyStatus::Accepted);
    QCOMPARE(inner.paths, outer.paths);
}

QTEST_MAIN(FrontTest)
#include "FrontTest.moc"
