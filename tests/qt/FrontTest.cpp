// SPDX-License-Identifier: MIT
// The two requests against a fake back-end: which calls they make, in which
// order, what they write, and what they leave alone.
#include "FakeFamily.h"
#include "HostRequest.h"
#include "VyAppModalLock.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <climits>
#include <stdexcept>

using FakeFamily::calls;
using FakeFamily::script;

namespace {

const QString untouched = QStringLiteral("untouched");

// Works the encoding dialog: its page, its check box, and Ok or Cancel.
DialogDriver::Step onEncodingDialog(int row, bool readOnly, bool accept, QString* shownName = nullptr)
{
    return [=](QDialog& dialog) {
        if (shownName)
            *shownName = dialog.findChild<QLabel*>(QStringLiteral("fileName"))->text();
        dialog.findChild<QListWidget*>()->setCurrentRow(row);
        dialog.findChild<QCheckBox*>()->setChecked(readOnly);
        auto* buttons = dialog.findChild<QDialogButtonBox*>();
        const auto button = accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel;
        QTest::mouseClick(buttons->button(button), Qt::LeftButton);
    };
}

HostRequest saveRequest()
{
    HostRequest request;
    request.type = CVyUserIO::FileNameSave;
    request.filter = QStringLiteral("Drawing&*.dwg&Both&*.dwg;*.dxf&Any&*&Archive&*.tar.gz");
    return request;
}

} // namespace

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
    void cancelledWritesTheModeAlone_data();
    void cancelledWritesTheModeAlone();
    void passesOtherStatusOn();
    void translatesTheMode_data();
    void translatesTheMode();
    void completesTheExtension_data();
    void completesTheExtension();
    void severalFilesGetNoExtension();
    void nothingSelected();
    void appendsToTheVector();
    void asksForTheEncoding_data();
    void asksForTheEncoding();
    void encodingDialogNamesTheFiles_data();
    void encodingDialogNamesTheFiles();
    void encodingWithoutOutputs();
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
    QCOMPARE(CVyFileDialog::GetFileName(&mode, nullptr, 0, CVyUserIO::FileNameOpen, text, text, text,
                                        text, nullptr, nullptr, CVyUserIO::FileNameNoFlags, nullptr),
             VyStatus::Failed);
    QCOMPARE(CVyFileDialog::GetFileNames(&mode, nullptr, 0, CVyUserIO::FileNameOpen, text, text, text,
                                         text, nullptr, nullptr, CVyUserIO::FileNameNoFlags, nullptr),
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
    QTest::newRow("other flags are ignored") << 2 << 0x2U << 0xfffffffeU << false << "createQt(2,0,0)";
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
    QCOMPARE(calls(), (QStringList{
                          "createQt(2,0,0)", "setTitle(Title)", "setDefaultExtension(dwg)",
                          "setFileTypes(A&*.a)", "setDefaultFolder(" + folder.path() + ")",
                          "setDefaultFileName(missing.dwg)", "setFileTypeIndex(5)",
                          "setDefaultTemplateName(iso.dwt)", "show(77)", "getResult",
                          "getFileTypeIndex", "getTemplateName", "getOpenMode", "getOpenMode",
                          "delete"}));
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

void FrontTest::cancelledWritesTheModeAlone_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<unsigned>("mode");
    QTest::newRow("new") << 0x1U << 2U;
    QTest::newRow("open") << 0x2U << 0x300U;
    QTest::newRow("save") << 0x4U << 0x10000U;
}

void FrontTest::cancelledWritesTheModeAlone()
{
    QFETCH(unsigned, type);
    QFETCH(unsigned, mode);
    script().showStatus = VyStatus::Cancelled;
    script().openMode = 1;
    script().newMode = 1;
    script().typeIndex = 3;
    script().results = QStringList{QStringLiteral("/left/over.dwg")};
    for (const bool several : {false, true}) {
        HostRequest request;
        request.type = type;
        request.typeIndex = 9;
        const int status = several ? request.getFileNames({}) : request.getFileName({});
        QCOMPARE(status, VyStatus::Cancelled);
        QCOMPARE(static_cast<unsigned>(request.mode), mode);
        QVERIFY(request.paths.isEmpty());
        QCOMPARE(request.typeIndex, 9);
        QCOMPARE(request.codePage, nullptr);
    }
}

void FrontTest::passesOtherStatusOn()
{
    script().showStatus = 4711;
    HostRequest request;
    QCOMPARE(request.getFileName({}), 4711);
    QCOMPARE(request.getFileNames({}), 4711);
    QVERIFY(request.paths.isEmpty());
}

void FrontTest::translatesTheMode_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<int>("openMode");
    QTest::addColumn<int>("newMode");
    QTest::addColumn<unsigned>("mode");
    QTest::newRow("open") << 0x2U << 0 << 2 << 0x100U;
    QTest::newRow("open read-only") << 0x2U << 1 << 2 << 0x300U;
    QTest::newRow("unexpected open mode") << 0x2U << 7 << 2 << 0x100U;
    QTest::newRow("open with qualifiers") << 0x702U << 1 << 0 << 0x300U;
    QTest::newRow("save") << 0x4U << 1 << 1 << 0x10000U;
    QTest::newRow("save bit and open bit") << 0x6U << 1 << 1 << 0x300U;
    QTest::newRow("new") << 0x1U << 1 << 0 << 1U;
    QTest::newRow("new imperial") << 0x1U << 1 << 1 << 2U;
    QTest::newRow("new metric") << 0x1U << 1 << 2 << 3U;
    QTest::newRow("unexpected new mode") << 0x1U << 1 << 5 << 1U;
    QTest::newRow("no kind") << 0x800U << 1 << 1 << unsigned(HostRequest::untouchedMode());
}

void FrontTest::translatesTheMode()
{
    QFETCH(unsigned, type);
    QFETCH(int, openMode);
    QFETCH(int, newMode);
    QFETCH(unsigned, mode);
    script().openMode = openMode;
    script().newMode = newMode;
    script().results = QStringList{QStringLiteral("/x.dwg")};
    for (const bool several : {false, true}) {
        HostRequest request;
        request.type = type;
        several ? request.getFileNames({}) : request.getFileName({});
        QCOMPARE(static_cast<unsigned>(request.mode), mode);
    }
}

void FrontTest::completesTheExtension_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<int>("typeIndex");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("saved");
    const unsigned save = CVyUserIO::FileNameSave;
    QTest::newRow("no extension") << save << 0 << "/d/plan" << "/d/plan.dwg";
    QTest::newRow("its extension") << save << 0 << "/d/plan.dwg" << "/d/plan.dwg";
    QTest::newRow("in upper case") << save << 0 << "/d/plan.DWG" << "/d/plan.DWG";
    QTest::newRow("another extension") << save << 0 << "/d/plan.dxf" << "/d/plan.dxf.dwg";
    QTest::newRow("folder with a dot") << save << 0 << "/d.dwg/plan" << "/d.dwg/plan.dwg";
    QTest::newRow("several extensions") << save << 1 << "/d/plan" << "/d/plan.dwg;dxf";
    QTest::newRow("one of several") << save << 1 << "/d/plan.dwg" << "/d/plan.dwg.dwg;dxf";
    QTest::newRow("all of several") << save << 1 << "/d/plan.dwg;dxf" << "/d/plan.dwg;dxf";
    QTest::newRow("type without extension") << save << 2 << "/d/plan" << "/d/plan";
    QTest::newRow("double extension") << save << 3 << "/d/plan" << "/d/plan.tar.gz";
    QTest::newRow("double extension is never a suffix")
        << save << 3 << "/d/plan.tar.gz" << "/d/plan.tar.gz.tar.gz";
    QTest::newRow("index behind the list") << save << 5 << "/d/plan" << "/d/plan";
    QTest::newRow("largest index") << save << INT_MAX << "/d/plan" << "/d/plan";
    QTest::newRow("negative index") << save << -1 << "/d/plan" << "/d/plan";
    QTest::newRow("smallest index") << save << INT_MIN << "/d/plan" << "/d/plan";
    QTest::newRow("save with a qualifier") << 0x104U << 0 << "/d/plan" << "/d/plan";
    QTest::newRow("open") << 0x2U << 0 << "/d/plan" << "/d/plan";
    QTest::newRow("new") << 0x1U << 0 << "/d/plan" << "/d/plan";
}

// The index is the caller's where the back-end finds no type.
void FrontTest::completesTheExtension()
{
    QFETCH(unsigned, type);
    QFETCH(int, typeIndex);
    QFETCH(QString, chosen);
    QFETCH(QString, saved);
    HostRequest request = saveRequest();
    request.type = type;
    request.typeIndex = typeIndex;
    script().results = QStringList{chosen};
    QCOMPARE(request.getFileName({}), VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList{saved});

    HostRequest fromBackEnd = saveRequest();
    fromBackEnd.type = type;
    fromBackEnd.typeIndex = 0;
    script().typeIndex = typeIndex;
    if (typeIndex >= 0) {
        QCOMPARE(fromBackEnd.getFileName({}), VyStatus::Accepted);
        QCOMPARE(fromBackEnd.typeIndex, typeIndex);
        QCOMPARE(fromBackEnd.paths, QStringList{saved});
    }

    HostRequest withoutIndex = saveRequest();
    withoutIndex.type = type;
    withoutIndex.withTypeIndex = false;
    QCOMPARE(withoutIndex.getFileName({}), VyStatus::Accepted);
    QCOMPARE(withoutIndex.paths, QStringList{chosen});
}

void FrontTest::severalFilesGetNoExtension()
{
    HostRequest request = saveRequest();
    script().results = QStringList{QStringLiteral("/d/plan")};
    QCOMPARE(request.getFileNames({}), VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList{QStringLiteral("/d/plan")});
}

void FrontTest::nothingSelected()
{
    HostRequest one = saveRequest();
    QCOMPARE(one.getFileName({}), VyStatus::Accepted);
    QVERIFY(one.paths.isEmpty());

    HostRequest several;
    several.paths = QStringList{QStringLiteral("/kept.dwg")};
    QCOMPARE(several.getFileNames({}), VyStatus::NothingSelected);
    QCOMPARE(several.paths, QStringList{QStringLiteral("/kept.dwg")});
}

void FrontTest::appendsToTheVector()
{
    HostRequest request;
    request.paths = QStringList{QStringLiteral("/1.dwg"), QStringLiteral("/2.dwg")};
    script().results = QStringList{QStringLiteral("/b.dwg"), QStringLiteral("/a.dwg")};
    QCOMPARE(request.getFileNames({}), VyStatus::Accepted);
    QCOMPARE(request.paths, (QStringList{"/1.dwg", "/2.dwg", "/b.dwg", "/a.dwg"}));
}

void FrontTest::asksForTheEncoding_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<bool>("accept");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<unsigned>("mode");
    for (const unsigned type : {0x1U, 0x2U, 0x4U}) {
        for (const bool accept : {true, false}) {
            for (const bool readOnly : {true, false})
                QTest::addRow("kind %u, %s, %s", type, accept ? "accepted" : "cancelled",
                              readOnly ? "read-only" : "writable")
                    << type << accept << readOnly << (readOnly ? 0x300U : 0x100U);
        }
    }
}

void FrontTest::asksForTheEncoding()
{
    QFETCH(unsigned, type);
    QFETCH(bool, accept);
    QFETCH(bool, readOnly);
    QFETCH(unsigned, mode);
    script().openMode = 2;
    script().results = QStringList{QStringLiteral("/d/plan.dwg")};
    for (const bool several : {false, true}) {
        HostRequest request;
        request.type = type;
        const std::vector<DialogDriver::Step> steps{onEncodingDialog(36, readOnly, accept)};
        const int status = several ? request.getFileNames(steps) : request.getFileName(steps);
        QCOMPARE(status, VyStatus::Accepted);
        QCOMPARE(static_cast<unsigned>(request.mode), mode);
        QCOMPARE(request.codePage != nullptr, accept);
        if (accept) // the dialog that handed it out is gone
            QCOMPARE(*request.codePage, VyCodePages().at(36).id);
    }
}

void FrontTest::encodingDialogNamesTheFiles_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QStringList>("chosen");
    QTest::addColumn<QString>("shown");
    const QString one = QStringLiteral("/d/one.dwg");
    const QString two = QStringLiteral("/d/two.dwg");
    QTest::newRow("one") << QStringList() << QStringList{one} << "one.dwg";
    QTest::newRow("two") << QStringList() << QStringList{one, two} << "Multiple files";
    QTest::newRow("one behind the caller's") << QStringList{two} << QStringList{one} << "Multiple files";
    QTest::newRow("none") << QStringList() << QStringList() << "";
    QTest::newRow("none behind the caller's") << QStringList{two} << QStringList() << "two.dwg";
}

void FrontTest::encodingDialogNamesTheFiles()
{
    QFETCH(QStringList, before);
    QFETCH(QStringList, chosen);
    QFETCH(QString, shown);
    script().openMode = 2;
    script().results = chosen;
    HostRequest request;
    request.paths = before;
    QString name = untouched;
    request.getFileNames({onEncodingDialog(0, false, true, &name)});
    QCOMPARE(name, shown);
}

void FrontTest::encodingWithoutOutputs()
{
    script().openMode = 2;
    script().results = QStringList{QStringLiteral("/d/plan.dwg")};
    const DialogDriver driver({onEncodingDialog(0, true, true)});
    const CVyString text;
    CVyString path;
    QCOMPARE(CVyFileDialog::GetFileName(nullptr, &path, 0, CVyUserIO::FileNameOpen, text, text, text,
                                        text, nullptr, nullptr, CVyUserIO::FileNameNoFlags, nullptr),
             VyStatus::Accepted);
    QCOMPARE(QString(path), QStringLiteral("/d/plan.dwg"));
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
