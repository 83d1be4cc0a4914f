// SPDX-License-Identifier: MIT
// What the two requests make of a fake back-end's answer: mode, paths, extension
// and code page.
#include "CodePages.h"
#include "FakeFamily.h"
#include "HostRequest.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <climits>

using FakeFamily::script;

namespace {

// Works the encoding dialog: its page, its check box, and Ok or Cancel.
DialogDriver::Step onEncodingDialog(OdCodePageId page, bool readOnly, bool accept,
                                    QString* shownName = nullptr)
{
    return [=](QDialog& dialog) {
        if (shownName)
            *shownName = dialog.findChild<QLabel*>(QStringLiteral("fileName"))->text();
        chooseCodePage(dialog, page);
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

class FrontAnswerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        FakeFamily::reset();
        CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    }
    void cleanup() { QCOMPARE(FakeFamily::alive(), 0); }

    void cancelledWritesTheModeAlone_data();
    void cancelledWritesTheModeAlone();
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
    void encodingIsAskedWithoutTheLock();
};

void FrontAnswerTest::cancelledWritesTheModeAlone_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<unsigned>("mode");
    QTest::newRow("new") << 0x1U << 2U;
    QTest::newRow("open") << 0x2U << 0x300U;
    QTest::newRow("save") << 0x4U << 0x10000U;
}

void FrontAnswerTest::cancelledWritesTheModeAlone()
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

void FrontAnswerTest::translatesTheMode_data()
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

void FrontAnswerTest::translatesTheMode()
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

void FrontAnswerTest::completesTheExtension_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<int>("typeIndex");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("saved");
    const unsigned save = CVyUserIO::FileNameSave;
    QTest::newRow("no extension") << save << 0 << "/d/plan"
                                  << "/d/plan.dwg";
    QTest::newRow("its extension") << save << 0 << "/d/plan.dwg"
                                   << "/d/plan.dwg";
    QTest::newRow("in upper case") << save << 0 << "/d/plan.DWG"
                                   << "/d/plan.DWG";
    QTest::newRow("another extension") << save << 0 << "/d/plan.dxf"
                                       << "/d/plan.dxf.dwg";
    QTest::newRow("folder with a dot") << save << 0 << "/d.dwg/plan"
                                       << "/d.dwg/plan.dwg";
    QTest::newRow("several extensions") << save << 1 << "/d/plan"
                                        << "/d/plan.dwg;dxf";
    QTest::newRow("one of several") << save << 1 << "/d/plan.dwg"
                                    << "/d/plan.dwg.dwg;dxf";
    QTest::newRow("all of several") << save << 1 << "/d/plan.dwg;dxf"
                                    << "/d/plan.dwg;dxf";
    QTest::newRow("type without extension") << save << 2 << "/d/plan"
                                            << "/d/plan";
    QTest::newRow("type without extension, name with one") << save << 2 << "/d/plan.dwg"
                                                           << "/d/plan.dwg.";
    QTest::newRow("double extension") << save << 3 << "/d/plan"
                                      << "/d/plan.tar.gz";
    QTest::newRow("double extension is never a suffix") << save << 3 << "/d/plan.tar.gz"
                                                        << "/d/plan.tar.gz.tar.gz";
    QTest::newRow("index behind the list") << save << 5 << "/d/plan"
                                           << "/d/plan";
    QTest::newRow("largest index") << save << INT_MAX << "/d/plan"
                                   << "/d/plan";
    QTest::newRow("negative index") << save << -1 << "/d/plan"
                                    << "/d/plan";
    QTest::newRow("smallest index") << save << INT_MIN << "/d/plan"
                                    << "/d/plan";
    QTest::newRow("save with a qualifier") << 0x104U << 0 << "/d/plan"
                                           << "/d/plan";
    QTest::newRow("open") << 0x2U << 0 << "/d/plan"
                          << "/d/plan";
    QTest::newRow("new") << 0x1U << 0 << "/d/plan"
                         << "/d/plan";
}

// The index is the caller's where the back-end finds no type.
void FrontAnswerTest::completesTheExtension()
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

void FrontAnswerTest::severalFilesGetNoExtension()
{
    HostRequest request = saveRequest();
    script().results = QStringList{QStringLiteral("/d/plan")};
    QCOMPARE(request.getFileNames({}), VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList{QStringLiteral("/d/plan")});
}

void FrontAnswerTest::nothingSelected()
{
    HostRequest one = saveRequest();
    QCOMPARE(one.getFileName({}), VyStatus::Accepted);
    QVERIFY(one.paths.isEmpty());

    HostRequest several;
    several.paths = QStringList{QStringLiteral("/kept.dwg")};
    QCOMPARE(several.getFileNames({}), VyStatus::NothingSelected);
    QCOMPARE(several.paths, QStringList{QStringLiteral("/kept.dwg")});
}

void FrontAnswerTest::appendsToTheVector()
{
    HostRequest request;
    request.paths = QStringList{QStringLiteral("/1.dwg"), QStringLiteral("/2.dwg")};
    script().results = QStringList{QStringLiteral("/b.dwg"), QStringLiteral("/a.dwg")};
    QCOMPARE(request.getFileNames({}), VyStatus::Accepted);
    QCOMPARE(request.paths, (QStringList{"/1.dwg", "/2.dwg", "/b.dwg", "/a.dwg"}));
}

void FrontAnswerTest::asksForTheEncoding_data()
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

void FrontAnswerTest::asksForTheEncoding()
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
        const std::vector<DialogDriver::Step> steps{
            onEncodingDialog(OdCodePageId::Ansi874, readOnly, accept)};
        const int status = several ? request.getFileNames(steps) : request.getFileName(steps);
        QCOMPARE(status, VyStatus::Accepted);
        QCOMPARE(static_cast<unsigned>(request.mode), mode);
        QCOMPARE(request.codePage != nullptr, accept);
        if (accept) // the dialog that handed it out is gone
            QCOMPARE(*request.codePage, OdCodePageId::Ansi874);
    }
}

void FrontAnswerTest::encodingDialogNamesTheFiles_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QStringList>("chosen");
    QTest::addColumn<QString>("shown");
    const QString one = QStringLiteral("/d/one.dwg");
    const QString two = QStringLiteral("/d/two.dwg");
    QTest::newRow("one") << QStringList() << QStringList{one} << "one.dwg";
    QTest::newRow("two") << QStringList() << QStringList{one, two} << "Multiple files";
    QTest::newRow("one behind the caller's")
        << QStringList{two} << QStringList{one} << "Multiple files";
    QTest::newRow("none") << QStringList() << QStringList() << "";
    QTest::newRow("none behind the caller's") << QStringList{two} << QStringList() << "two.dwg";
}

void FrontAnswerTest::encodingDialogNamesTheFiles()
{
    QFETCH(QStringList, before);
    QFETCH(QStringList, chosen);
    QFETCH(QString, shown);
    script().openMode = 2;
    script().results = chosen;
    HostRequest request;
    request.paths = before;
    QString name = QStringLiteral("untouched");
    request.getFileNames({onEncodingDialog(OdCodePageId::Ascii, false, true, &name)});
    QCOMPARE(name, shown);
}

void FrontAnswerTest::encodingWithoutOutputs()
{
    script().openMode = 2;
    script().results = QStringList{QStringLiteral("/d/plan.dwg")};
    const DialogDriver driver({onEncodingDialog(OdCodePageId::Ascii, true, true)});
    const CVyString text;
    CVyString path;
    QCOMPARE(CVyFileDialog::GetFileName(nullptr, &path, 0, CVyUserIO::FileNameOpen, text, text,
                                        text, text, nullptr, nullptr, CVyUserIO::FileNameNoFlags,
                                        nullptr),
             VyStatus::Accepted);
    QCOMPARE(QString(path), QStringLiteral("/d/plan.dwg"));
}

void FrontAnswerTest::encodingIsAskedWithoutTheLock()
{
    QPushButton hostButton;
    const QSignalSpy clicks(&hostButton, SIGNAL(clicked()));
    hostButton.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hostButton));
    script().openMode = 2;
    for (const bool several : {false, true}) {
        HostRequest request;
        const std::vector<DialogDriver::Step> steps{[&](QDialog& dialog) {
            hostButton.click(); // what a host does by itself is never locked
            QTest::mouseClick(&hostButton, Qt::LeftButton);
            dialog.reject();
        }};
        several ? request.getFileNames(steps) : request.getFileName(steps);
    }
    QCOMPARE(clicks.size(), 4);
}

QTEST_MAIN(FrontAnswerTest)
#include "FrontAnswerTest.moc"
