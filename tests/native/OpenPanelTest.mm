// SPDX-License-Identifier: MIT
#include "CodePages.h"
#include "HostTemplates.h"
#include "NativeTest.h"

#include "VyBookmarks.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>

namespace {

const QStringList allModes{"Open", "Open Read-Only", "Open with Encoding..."};

NSPopUpButton* types(NSSavePanel* panel)
{
    return popup(panel, @selector(filterChanged:));
}

NSPopUpButton* modes(NSSavePanel* panel)
{
    return popup(panel, @selector(openmodeChanged:));
}

QStringList bookmarkedPaths()
{
    QStringList paths;
    for (const VyBookmark& bookmark : VyBookmarks())
        paths += bookmark.path;
    return paths;
}

PanelDriver::Step chooseMode(NSInteger index)
{
    return onPanel([index](NSSavePanel* panel) { choose(modes(panel), index); });
}

// Works the encoding dialog: its page, its check box, and Ok or Cancel.
DialogDriver::Step onEncodingDialog(OdCodePageId page, bool readOnly, bool accept,
                                    QString* shownName)
{
    return [=](QDialog& dialog) {
        *shownName = dialog.findChild<QLabel*>(QStringLiteral("fileName"))->text();
        chooseCodePage(dialog, page);
        dialog.findChild<QCheckBox*>()->setChecked(readOnly);
        auto* buttons = dialog.findChild<QDialogButtonBox*>();
        const auto button = accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel;
        QTest::mouseClick(buttons->button(button), Qt::LeftButton);
    };
}

struct WorkingDirectory
{
    explicit WorkingDirectory(const QString& folder) { QDir::setCurrent(folder); }
    ~WorkingDirectory() { QDir::setCurrent(m_before); }
    Q_DISABLE_COPY(WorkingDirectory)

    const QString m_before = QDir::currentPath();
};

} // namespace

/// The open panel, from the host's request to its answer.
class OpenPanelTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void answersTheChosenFile();
    void offersModesAndSeveralFiles_data();
    void offersModesAndSeveralFiles();
    void startsWithTheType_data();
    void startsWithTheType();
    void goesToTheTemplates_data();
    void goesToTheTemplates();
    void staysWhenAFolderAboveVanishes();
    void opensATemplate();
    void packages_data();
    void packages();
    void opensAFileInAPackage();
    void startsInTheFolder_data();
    void startsInTheFolder();
    void answersTheName_data();
    void answersTheName();
    void answersSeveral();
    void nothingSelected();
    void answersTheMode_data();
    void answersTheMode();
    void asksForTheEncoding_data();
    void asksForTheEncoding();
    void asksOnceForSeveralFiles();
    void cancelledAsksForNoEncoding();

private:
    void overlookGoneWindows();
};

void OpenPanelTest::answersTheChosenFile()
{
    addFile("plan.dwg");
    addFile("notes.txt");
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.flags = CVyUserIO::FileNameModeChoices;
    run(open, {onPanel([](NSSavePanel* panel) {
                   QCOMPARE(shownNames(panel), QStringList("plan.dwg"));
                   choose(modes(panel), 1);
                   selectNames(panel, {"plan.dwg"});
               }),
               accept()});
    QCOMPARE(open.status, 5100);
    QCOMPARE(open.mode, CVyUserIO::OpenReadOnly);
    QCOMPARE(open.paths, QStringList(path("plan.dwg")));
    QCOMPARE(open.codePage, nullptr);
    QCOMPARE(bookmarkedPaths(), QStringList(path("plan.dwg")));
}

void OpenPanelTest::offersModesAndSeveralFiles_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<unsigned>("flags");
    QTest::addColumn<bool>("withModes");
    QTest::addColumn<bool>("several");
    QTest::newRow("plain") << 0x2U << 0U << false << false;
    QTest::newRow("mode choices") << 0x2U << 1U << true << true;
    QTest::newRow("open only") << 0x202U << 0U << false << false;
    QTest::newRow("open only, mode choices") << 0x202U << 1U << false << true;
    QTest::newRow("no preview, mode choices") << 0x102U << 1U << true << true;
}

void OpenPanelTest::offersModesAndSeveralFiles()
{
    QFETCH(unsigned, type);
    QFETCH(unsigned, flags);
    QFETCH(bool, withModes);
    QFETCH(bool, several);
    HostRequest open = request(type);
    open.flags = flags;
    const std::vector<PanelDriver::Step> steps{
        onPanel([=](NSSavePanel* panel) {
            QVERIFY(types(panel));
            QCOMPARE(modes(panel) != nil, withModes);
            QCOMPARE(titles(modes(panel)), withModes ? allModes : QStringList());
            QCOMPARE(bool([static_cast<NSOpenPanel*>(panel) allowsMultipleSelection]), several);
        }),
        cancel()};
    run(open, steps);
    runSeveral(open, steps);
}

void OpenPanelTest::startsWithTheType_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QVariant>("typeIndex");
    QTest::addColumn<int>("selected");
    QTest::addColumn<QStringList>("allowed");
    const QString mixed = "Templates&*.dwt&Drawings&*.dwg;*.dxf&Drawing&*.dwg&All files&*.*";
    const QVariant none;
    const QStringList drawings{"dwg", "dxf"};
    QTest::newRow("first") << mixed << "" << none << 0 << QStringList("dwt");
    QTest::newRow("index after all") << mixed << "" << QVariant(99) << 3 << QStringList("*");
    QTest::newRow("index and extension") << mixed << "dwg" << QVariant(1) << 1 << drawings;
    QTest::newRow("whole list") << mixed << "dwg" << none << 2 << QStringList("dwg");
    QTest::newRow("in a list") << mixed << "dxf" << none << 1 << drawings;
    QTest::newRow("wildcard") << mixed << "*" << none << 0 << QStringList("dwt");
}

void OpenPanelTest::startsWithTheType()
{
    QFETCH(QString, filter);
    QFETCH(QString, extension);
    QFETCH(QVariant, typeIndex);
    QFETCH(int, selected);
    QFETCH(QStringList, allowed);
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.filter = filter;
    open.defaultExtension = extension;
    open.withTypeIndex = typeIndex.isValid();
    open.typeIndex = typeIndex.toInt();
    run(open, {onPanel([=](NSSavePanel* panel) {
                   QCOMPARE([types(panel) indexOfSelectedItem], NSInteger(selected));
                   QCOMPARE(texts([panel allowedFileTypes]), allowed);
               }),
               cancel()});
    QCOMPARE(open.typeIndex, typeIndex.toInt());
}

void OpenPanelTest::goesToTheTemplates_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<int>("picked");
    QTest::addColumn<bool>("goes");
    const QString templates = "Drawings&*.dwg&Templates&*.dwt&Both&*.dwg;*.dwt&Capitals&*.DWT";
    QTest::newRow("template type") << 0x2U << templates << 1 << true;
    QTest::newRow("among others") << 0x2U << templates << 2 << true;
    QTest::newRow("capitals") << 0x2U << templates << 3 << false;
    QTest::newRow("another type") << 0x2U << templates << 0 << false;
    QTest::newRow("switched off") << 0x402U << templates << 1 << false;
    QTest::newRow("preset only") << 0x2U << "Templates&*.dwt" << -1 << false;
}

void OpenPanelTest::goesToTheTemplates()
{
    QFETCH(unsigned, type);
    QFETCH(QString, filter);
    QFETCH(int, picked);
    QFETCH(bool, goes);
    addFile("templates/iso.dwt");
    addFile("templates/iso.dwg");
    addFile("here/mine.dwt");
    addFile("here/mine.dwg");
    const HostTemplates folder(path("templates"));
    HostRequest open = request(type);
    open.filter = filter;
    open.start = path("here");
    run(open, {onPanel([=](NSSavePanel* panel) {
                   if (picked >= 0)
                       choose(types(panel), picked);
                   const QString shown = shownNames(panel).join(" ");
                   QCOMPARE(shown.contains("iso"), goes);
                   QCOMPARE(shown.contains("mine"), !goes);
               }),
               cancel()});
}

// Scrolling makes the panel look again whether its columns are up to date.
void OpenPanelTest::staysWhenAFolderAboveVanishes()
{
    addFile("here/a.dwg");
    addFolder("vanishing");
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.start = path("here");
    run(open, {onPanel([this](NSSavePanel* panel) {
                   QVERIFY(QDir(path()).rmdir("vanishing"));
                   [panel validateVisibleColumns];
                   QCOMPARE(shownNames(panel), QStringList("a.dwg"));
               }),
               cancel()});
}

void OpenPanelTest::opensATemplate()
{
    addFile("templates/iso.dwt");
    const HostTemplates folder(path("templates"));
    HostRequest open = request(CVyUserIO::FileNameOpen);
    run(open, {chooseType(1), sees({"iso.dwt"}), click({"iso.dwt"}), accept()});
    QCOMPARE(open.paths, QStringList(path("templates/iso.dwt")));
    QCOMPARE(open.typeIndex, 0);
}

void OpenPanelTest::packages_data()
{
    QTest::addColumn<QString>("patterns");
    QTest::addColumn<bool>("entered");
    QTest::newRow("any") << "*.*" << false;
    QTest::newRow("its own") << "*.app" << false;
    QTest::newRow("tx") << "*.tx" << true;
    QTest::newRow("DyLib") << "*.DyLib" << true;
    QTest::newRow("tx among others") << "*.dwg;*.tx;*.*" << true;
    QTest::newRow("txt") << "*.txt;*.*" << false;
}

void OpenPanelTest::packages()
{
    QFETCH(QString, patterns);
    QFETCH(bool, entered);
    addFile("Plugins.app/Contents/a.tx");
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.filter = "Any&*.*&Picked&" + patterns;
    const auto looks = [](bool enters) {
        return onPanel([enters](NSSavePanel* panel) {
            QCOMPARE(shownNames(panel), QStringList("Plugins.app"));
            QCOMPARE(canEnter(panel, "Plugins.app"), enters);
        });
    };
    run(open, {looks(false), chooseType(1), looks(entered), chooseType(0), looks(false),
               click({"Plugins.app"}), accept()});
    QCOMPARE(open.paths, QStringList(path("Plugins.app")));
}

void OpenPanelTest::opensAFileInAPackage()
{
    addFile("Plugins.app/Contents/a.tx");
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.filter = "Plugins&*.tx";
    run(open, {click({"Plugins.app"}), accept(), sees({"Contents"}), click({"Contents"}), accept(),
               sees({"a.tx"}), click({"a.tx"}), accept()});
    QCOMPARE(open.paths, QStringList(path("Plugins.app/Contents/a.tx")));
}

void OpenPanelTest::startsInTheFolder_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<bool>("several");
    QTest::addColumn<QString>("shown");
    QTest::newRow("folder") << "in R&D 100%20#?" << false << "in.dwg";
    QTest::newRow("folder, several") << "in R&D 100%20#?" << true << "in.dwg";
    QTest::newRow("closing slash") << "in R&D 100%20#?/" << false << "in.dwg";
    QTest::newRow("file") << "in R&D 100%20#?/in.dwg" << false << "in.dwg";
    QTest::newRow("file, several") << "in R&D 100%20#?/in.dwg" << true << "work.dwg";
    QTest::newRow("missing file") << "in R&D 100%20#?/new.dwg" << false << "in.dwg";
    QTest::newRow("missing file, several") << "in R&D 100%20#?/new.dwg" << true << "in.dwg";
    QTest::newRow("missing folder") << "no/where/new.dwg" << false << "work.dwg";
    QTest::newRow("empty") << "" << false << "work.dwg";
}

// A folder that is not known is the working directory, as for any relative path.
void OpenPanelTest::startsInTheFolder()
{
    QFETCH(QString, start);
    QFETCH(bool, several);
    QFETCH(QString, shown);
    addFile("in R&D 100%20#?/in.dwg");
    addFile("work/work.dwg");
    const WorkingDirectory folder(path("work"));
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.start = start.isEmpty() ? start : path(start);
    const std::vector<PanelDriver::Step> steps{sees({shown}), cancel()};
    QCOMPARE(several ? runSeveral(open, steps) : run(open, steps), -5002);
}

void OpenPanelTest::answersTheName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << " plan of the 2nd floor.dwg";
    QTest::newRow("Cyrillic") << QString::fromUtf8("План этажа.dwg");
    QTest::newRow("composed accent") << QString::fromUtf8("caf\u00e9.dwg");
    QTest::newRow("combining accent") << QString::fromUtf8("cafe\u0301.dwg");
    QTest::newRow("beyond the first plane") << QString::fromUtf8("\U0001f4d0.dwg");
    QTest::newRow("ampersand") << "R&D.dwg";
    QTest::newRow("colon and hash") << "some:fi#le.dwg";
    QTest::newRow("percent") << "100%.dwg";
    QTest::newRow("escaped blank") << "100%20.dwg";
    QTest::newRow("query") << "what?;x=1.dwg";
    QTest::newRow("newline") << "two\nlines.dwg";
    QTest::newRow("quotes") << "6\" by 8'.dwg";
    QTest::newRow("without extension") << "plan";
    QTest::newRow("tilde") << "~plan.dwg";
    QTest::newRow("drive letter") << "C:plan.dwg";
    QTest::newRow("backslash") << "a\\b.dwg";
}

void OpenPanelTest::answersTheName()
{
    QFETCH(QString, name);
    addFile(name);
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.typeIndex = 2;
    run(open, {onPanel([=](NSSavePanel* panel) {
                   QCOMPARE(shownNames(panel), QStringList(name));
                   selectNames(panel, {name});
               }),
               accept()});
    QCOMPARE(open.paths, QStringList(path(name)));
    QCOMPARE(bookmarkedPaths(), QStringList(path(name)));
}

void OpenPanelTest::answersSeveral()
{
    for (const char* name : {"a.dwg", "b.dwg", "c R&D 100%20#?.dwg", "d.dwg"})
        addFile(name);
    const QString odd = "c R&D 100%20#?.dwg";
    const QStringList chosen{path("a.dwg"), path(odd), path("d.dwg")};
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.flags = CVyUserIO::FileNameModeChoices;
    open.paths = QStringList("kept");
    runSeveral(open, {click({"d.dwg", "a.dwg", odd}), accept()});
    QCOMPARE(open.status, 5100);
    QCOMPARE(open.paths, QStringList("kept") + chosen);
    QCOMPARE(bookmarkedPaths(), QStringList({chosen[2], chosen[1], chosen[0]}));

    VyClearBookmarks();
    HostRequest one = request(CVyUserIO::FileNameOpen);
    one.flags = CVyUserIO::FileNameModeChoices;
    run(one, {click({"b.dwg", odd}), accept()});
    QCOMPARE(one.paths, QStringList(path("b.dwg")));
    QCOMPARE(bookmarkedPaths(), QStringList({path(odd), path("b.dwg")}));
}

void OpenPanelTest::nothingSelected()
{
    addFile("a.dwg");
    for (const unsigned flags : {0U, 1U}) {
        HostRequest open = request(CVyUserIO::FileNameOpen);
        open.flags = flags;
        run(open, {accept(), sees({"a.dwg"}), cancel()});
        QCOMPARE(open.status, -5002);
    }
}

void OpenPanelTest::answersTheMode_data()
{
    QTest::addColumn<QVector<int>>("chosen");
    QTest::addColumn<unsigned>("mode");
    QTest::newRow("untouched") << QVector<int>() << 0x100U;
    QTest::newRow("open") << QVector<int>{0} << 0x100U;
    QTest::newRow("read-only") << QVector<int>{1} << 0x300U;
    QTest::newRow("read-only, then open") << QVector<int>{1, 0} << 0x100U;
    QTest::newRow("encoding, then read-only") << QVector<int>{2, 1} << 0x300U;
}

// The mode of a panel that was left is the one it came with.
void OpenPanelTest::answersTheMode()
{
    QFETCH(QVector<int>, chosen);
    QFETCH(unsigned, mode);
    addFile("a.dwg");
    for (const bool accepted : {true, false}) {
        HostRequest open = request(CVyUserIO::FileNameOpen);
        open.flags = CVyUserIO::FileNameModeChoices;
        std::vector<PanelDriver::Step> steps;
        for (const int index : chosen)
            steps.push_back(chooseMode(index));
        steps.push_back(click({"a.dwg"}));
        steps.push_back(accepted ? accept() : cancel());
        QCOMPARE(run(open, steps), accepted ? 5100 : -5002);
        QCOMPARE(unsigned(open.mode), accepted ? mode : 0x100U);
        QCOMPARE(open.codePage, nullptr);
    }
}

// Qt asks the server about windows of the other dialog that have gone by then.
void OpenPanelTest::overlookGoneWindows()
{
    for (const QString& message : takeMessages())
        QVERIFY2(message.contains("XCB error: 3 (BadWindow)"), qPrintable(message));
}

void OpenPanelTest::asksForTheEncoding_data()
{
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<unsigned>("mode");
    QTest::newRow("accepted") << true << false << 0x100U;
    QTest::newRow("accepted, read-only") << true << true << 0x300U;
    QTest::newRow("cancelled") << false << false << 0x100U;
    QTest::newRow("cancelled, read-only") << false << true << 0x300U;
}

void OpenPanelTest::asksForTheEncoding()
{
    QFETCH(bool, accepted);
    QFETCH(bool, readOnly);
    QFETCH(unsigned, mode);
    constexpr OdCodePageId page = OdCodePageId::Iso8859_8;
    addFile("plan.dwg");
    addFile("other.dwg");
    for (const bool several : {false, true}) {
        HostRequest open = request(CVyUserIO::FileNameOpen);
        open.flags = CVyUserIO::FileNameModeChoices;
        QString shownName;
        const PanelDriver panel({chooseMode(2), click({"plan.dwg"}), accept()});
        const DialogDriver::Step dialog = onEncodingDialog(page, readOnly, accepted, &shownName);
        QCOMPARE(several ? open.getFileNames({dialog}) : open.getFileName({dialog}), 5100);
        QCOMPARE(shownName, QString("plan.dwg"));
        QCOMPARE(open.paths, QStringList(path("plan.dwg")));
        QCOMPARE(unsigned(open.mode), mode);
        QCOMPARE(open.codePage != nullptr, accepted);
        if (accepted)
            QCOMPARE(*open.codePage, page);
    }
    overlookGoneWindows();
}

void OpenPanelTest::asksOnceForSeveralFiles()
{
    addFile("plan.dwg");
    addFile("other.dwg");
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.flags = CVyUserIO::FileNameModeChoices;
    QString shownName;
    const PanelDriver panel({chooseMode(2), click({"plan.dwg", "other.dwg"}), accept()});
    QCOMPARE(open.getFileNames({onEncodingDialog(OdCodePageId::Ascii, true, true, &shownName)}),
             5100);
    QCOMPARE(shownName, QString("Multiple files"));
    QCOMPARE(open.paths, QStringList({path("other.dwg"), path("plan.dwg")}));
    QCOMPARE(open.mode, CVyUserIO::OpenReadOnly);
    overlookGoneWindows();
}

// The encoding is not asked for when the panel is left.
void OpenPanelTest::cancelledAsksForNoEncoding()
{
    addFile("plan.dwg");
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.flags = CVyUserIO::FileNameModeChoices;
    run(open, {chooseMode(2), click({"plan.dwg"}), cancel()});
    QCOMPARE(open.status, -5002);
    QCOMPARE(open.mode, CVyUserIO::Open);
    QCOMPARE(open.codePage, nullptr);
}

QTEST_MAIN(OpenPanelTest)
#include "OpenPanelTest.moc"
