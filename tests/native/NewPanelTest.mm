// SPDX-License-Identifier: MIT
#include "HostTemplates.h"
#include "NativeTest.h"

#include "NSOpenPanelExt.h"
#include "VyBookmarks.h"
#include "VyNativeStrings.h"
#include "VyUtilsMacNative.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>

namespace {

// What the host's kernel answers here for the version of macOS.
int systemVersion = 0;

const QString plainTypes = "Drawing&*.dwg&Exchange&*.dxf&All files&*.*";
const QStringList newModes{"Open", "Open with no Template - Imperial",
                           "Open with no Template - Metric"};

NSPopUpButton* types(NSSavePanel* panel)
{
    return popup(panel, @selector(filterChanged:));
}

NSPopUpButton* modes(NSSavePanel* panel)
{
    return popup(panel, @selector(openmodeChanged:));
}

NSOpenPanel* openPanel(NSSavePanel* panel)
{
    return [panel isKindOfClass:[NSOpenPanel class]] ? static_cast<NSOpenPanel*>(panel) : nil;
}

QRectF frame(NSView* view)
{
    const NSRect r = [view frame];
    return {r.origin.x, r.origin.y, r.size.width, r.size.height};
}

// The panel may stretch its accessory view, and the popups with it.
void checkRow(NSSavePanel* panel, NSPopUpButton* button, int y, const QString& labelText)
{
    const float widest = std::max(widthForStringDrawing(@"Files of Type:", nil),
                                  modes(panel) ? widthForStringDrawing(@"Open mode:", nil) : 0);
    const double width = std::ceil(std::ceil(double(widest)) * 1.2 + 20);
    const double stretch = frame(accessoryView(panel)).width() - (width + 520);
    QVERIFY(stretch >= 0);
    QVERIFY(button);
    QCOMPARE(frame(button), QRectF(width + 20, y, width + 200 + stretch, 25));
    QCOMPARE([button autoresizingMask], NSUInteger(NSViewWidthSizable | NSViewMinYMargin));
    QCOMPARE([button indexOfSelectedItem], NSInteger(0));
    NSTextField* const rowLabel = label(panel, button);
    QVERIFY(rowLabel);
    QCOMPARE(frame(rowLabel), QRectF(20, y + 5, width, 25));
    QCOMPARE(text([rowLabel stringValue]), labelText);
    QVERIFY(![rowLabel isEditable] && ![rowLabel isSelectable] && ![rowLabel isBezeled]);
}

void addKinds()
{
    QTest::addColumn<unsigned>("type");
    QTest::newRow("new") << unsigned(CVyUserIO::FileNameNew);
    QTest::newRow("open") << unsigned(CVyUserIO::FileNameOpen);
    QTest::newRow("save") << unsigned(CVyUserIO::FileNameSave);
}

} // namespace

// In place of the kernel library's, which knows no macOS here.
int CVyUtilsMacNative::getSystemVersion()
{
    return systemVersion;
}

/// The panel of a new drawing, and what all three kinds of panel do alike.
class NewPanelTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void isAPanelOfItsKind_data();
    void isAPanelOfItsKind();
    void keepsTheSystemsTitle_data();
    void keepsTheSystemsTitle();
    void placesThePopups_data();
    void placesThePopups();
    void showsTheFilesOfTheType_data();
    void showsTheFilesOfTheType();
    void anyFileAmongOthers_data();
    void anyFileAmongOthers();
    void everyTypeCountsItself_data();
    void everyTypeCountsItself();
    void noTypes_data();
    void noTypes();
    void entersFolders_data();
    void entersFolders();
    void hiddenFilesFlip_data();
    void hiddenFilesFlip();
    void cancelledLeavesTheOutputs_data();
    void cancelledLeavesTheOutputs();
    void startsAfresh_data();
    void startsAfresh();
    void alwaysOffersModes();
    void startsWithTheFirstType();
    void answersTheMode_data();
    void answersTheMode();
    void preselectsTheTemplate_data();
    void preselectsTheTemplate();
    void startsAtTheRoot();
    void goesToTheTemplates_data();
    void goesToTheTemplates();
    void typeWithoutExtension_data();
    void typeWithoutExtension();
};

void NewPanelTest::isAPanelOfItsKind_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("panelClass");
    QTest::addColumn<QString>("delegateClass");
    const QString delegate = "CVyNSOpenSavePanelDelegate";
    QTest::newRow("new") << 1U << "NSOpenPanelExt" << delegate;
    QTest::newRow("open") << 2U << "NSOpenPanelExtWithSelectAll" << delegate;
    QTest::newRow("save") << 4U << "NSSavePanel" << QString();
}

// A save panel may be of a class that the system derives.
void NewPanelTest::isAPanelOfItsKind()
{
    QFETCH(unsigned, type);
    QFETCH(QString, panelClass);
    QFETCH(QString, delegateClass);
    HostRequest asked = request(type);
    run(asked, {onPanel([=](NSSavePanel* panel) {
                    Class const wanted = NSClassFromString(nsStringFromQString(panelClass));
                    QVERIFY(openPanel(panel) ? [panel isMemberOfClass:wanted]
                                             : [panel isKindOfClass:wanted]);
                    QCOMPARE(openPanel(panel) != nil, type != 4U);
                    QCOMPARE(text([(id)[panel delegate] className]), delegateClass);
                    QCOMPARE(text([panel title]), QString("Choose"));
                    QVERIFY(type == 4U || [openPanel(panel) canChooseFiles]);
                    QVERIFY(![openPanel(panel) canChooseDirectories]);
                }),
                cancel()});
    QCOMPARE(asked.status, -5002);
}

void NewPanelTest::keepsTheSystemsTitle_data()
{
    addKinds();
}

void NewPanelTest::keepsTheSystemsTitle()
{
    QFETCH(unsigned, type);
    NSSavePanel* const another = type == 4U ? [NSSavePanel savePanel] : [NSOpenPanelExt openPanel];
    const QString title = text([another title]);
    QVERIFY(!title.isEmpty());
    HostRequest asked = request(type);
    run(asked, {cancel()}); // with a title, which must not stay
    asked.title.clear();
    run(asked,
        {onPanel([&](NSSavePanel* panel) { QCOMPARE(text([panel title]), title); }), cancel()});
}

void NewPanelTest::placesThePopups_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<bool>("withModes");
    QTest::newRow("new") << 1U << true;
    QTest::newRow("open") << 2U << true;
    QTest::newRow("open only") << 0x202U << false;
    QTest::newRow("save") << 4U << false;
}

void NewPanelTest::placesThePopups()
{
    QFETCH(unsigned, type);
    QFETCH(bool, withModes);
    HostRequest asked = request(type);
    asked.flags = CVyUserIO::FileNameModeChoices;
    run(asked,
        {onPanel([=](NSSavePanel* panel) {
             checkRow(panel, types(panel), withModes ? 30 : 0, "Files of Type:");
             QCOMPARE(titles(types(panel)), QStringList({"Drawings (*.dwg *.dxf)",
                                                         "Templates (*.dwt)", "All files (*.*)"}));
             QCOMPARE(modes(panel) != nil, withModes);
             if (withModes)
                 checkRow(panel, modes(panel), 0, "Open mode:");
             QCOMPARE([[accessoryView(panel) subviews] count], NSUInteger(withModes ? 4 : 2));
             QCOMPARE(frame(accessoryView(panel)).height(), withModes ? 70.0 : 40.0);
         }),
         cancel()});
}

void NewPanelTest::showsTheFilesOfTheType_data()
{
    addKinds();
}

void NewPanelTest::showsTheFilesOfTheType()
{
    QFETCH(unsigned, type);
    const QStringList all{"a.dwg", "B.DWG", "c.Dxf", "dwg", "e.dwg.txt", "x.dwg"};
    for (const QString& name : all.mid(0, 5))
        addFile(name);
    addFolder("x.dwg");
    HostRequest asked = request(type);
    asked.filter = plainTypes;
    const auto choosesAndSees = [](NSInteger index, const QStringList& names, bool any) {
        return onPanel([=](NSSavePanel* panel) {
            choose(types(panel), index);
            QCOMPARE(shownNames(panel), names);
            QCOMPARE(bool([panel allowsOtherFileTypes]), any);
            QCOMPARE(bool([panel isExtensionHidden]), !any);
            QVERIFY(!any || [panel canSelectHiddenExtension]);
        });
    };
    run(asked, {sees({"a.dwg", "B.DWG", "x.dwg"}), choosesAndSees(2, all, true),
                choosesAndSees(1, {"c.Dxf", "x.dwg"}, false),
                choosesAndSees(0, {"a.dwg", "B.DWG", "x.dwg"}, false), choosesAndSees(2, all, true),
                cancel()});
    QCOMPARE(asked.typeIndex, 0);
}

void NewPanelTest::anyFileAmongOthers_data()
{
    addKinds();
}

void NewPanelTest::anyFileAmongOthers()
{
    QFETCH(unsigned, type);
    for (const char* name : {"a.dwg", "b.txt", "c"})
        addFile(name);
    for (const char* filter : {"Files&*.dwg;*.*", "Files&*.*;*.dwg"}) {
        HostRequest asked = request(type);
        asked.filter = filter;
        run(asked, {sees({"a.dwg", "b.txt", "c"}), cancel()});
    }
}

void NewPanelTest::everyTypeCountsItself_data()
{
    addKinds();
}

void NewPanelTest::everyTypeCountsItself()
{
    QFETCH(unsigned, type);
    for (const char* name : {"a.dwg", "b.dxf", "c.dwf"})
        addFile(name);
    HostRequest asked = request(type);
    asked.filter = "Same (*.d)&*.dwg&Same (*.d)&*.dxf&Web&*.dwf";
    run(asked, {onPanel([](NSSavePanel* panel) {
                    QCOMPARE(titles(types(panel)),
                             QStringList({"Same (*.d)", "Same (*.d)", "Web (*.dwf)"}));
                }),
                sees({"a.dwg"}), chooseType(1), sees({"b.dxf"}), chooseType(2), sees({"c.dwf"}),
                chooseType(0), sees({"a.dwg"}), cancel()});
}

void NewPanelTest::noTypes_data()
{
    addKinds();
}

void NewPanelTest::noTypes()
{
    QFETCH(unsigned, type);
    addFile("b");
    const QString name = type == CVyUserIO::FileNameSave ? "c" : "b";
    HostRequest asked = request(type);
    asked.filter.clear();
    asked.typeIndex = 9;
    run(asked, {onPanel([=](NSSavePanel* panel) {
                    QVERIFY(types(panel));
                    QCOMPARE([types(panel) numberOfItems], NSInteger(0));
                    QCOMPARE(shownNames(panel), QStringList("b"));
                    selectNames(panel, {name});
                    [panel setNameFieldStringValue:nsStringFromQString(name)];
                }),
                accept()});
    QCOMPARE(asked.status, 5100);
    QCOMPARE(asked.paths, QStringList(path(name)));
    QCOMPARE(asked.typeIndex, 9);
}

void NewPanelTest::entersFolders_data()
{
    addKinds();
}

void NewPanelTest::entersFolders()
{
    QFETCH(unsigned, type);
    addFile("x.dwg/y.DWG/inner.dwg");
    HostRequest asked = request(type);
    const auto enters = [](const QString& name) {
        return onPanel([name](NSSavePanel* panel) {
            QCOMPARE(shownNames(panel), QStringList(name));
            QVERIFY(canEnter(panel, name));
            selectNames(panel, {name});
        });
    };
    run(asked,
        {enters("x.dwg"), accept(), enters("y.DWG"), accept(), sees({"inner.dwg"}),
         onPanel([](NSSavePanel* panel) { QVERIFY(!canEnter(panel, "inner.dwg")); }), cancel()});
    QCOMPARE(asked.status, -5002);
    QVERIFY(asked.paths.isEmpty());
}

void NewPanelTest::hiddenFilesFlip_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<int>("version");
    QTest::addColumn<bool>("flips");
    QTest::newRow("open, 10.6") << 2U << 100600 << false;
    QTest::newRow("open, 10.7") << 2U << 100700 << true;
    QTest::newRow("open, 14.2.1") << 2U << 140201 << true;
    QTest::newRow("new, 10.7") << 1U << 100700 << true;
    QTest::newRow("save, 10.7") << 4U << 100700 << true;
}

// That every change flips them is wanted.
void NewPanelTest::hiddenFilesFlip()
{
    QFETCH(unsigned, type);
    QFETCH(int, version);
    QFETCH(bool, flips);
    const QScopedValueRollback<int> host(systemVersion, version);
    addFile("a.dwg");
    addFile(".b.dwg");
    const QStringList plain{"a.dwg"};
    const QStringList flipped = flips ? QStringList({"a.dwg", ".b.dwg"}) : plain;
    HostRequest asked = request(type);
    asked.filter = "Drawing&*.dwg&Both&*.dwg;*.dxf";
    run(asked, {sees(plain), chooseType(1), sees(flipped), chooseType(0), sees(plain),
                chooseType(1), sees(flipped), cancel()});
}

void NewPanelTest::cancelledLeavesTheOutputs_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<unsigned>("mode");
    QTest::newRow("new") << 1U << 1U;
    QTest::newRow("open") << 2U << 0x100U;
    QTest::newRow("save") << 4U << 0x10000U;
}

void NewPanelTest::cancelledLeavesTheOutputs()
{
    QFETCH(unsigned, type);
    QFETCH(unsigned, mode);
    addFile("b.dxf");
    for (const bool several : {false, true}) {
        VyAddBookmark("before");
        HostRequest asked = request(type);
        asked.flags = CVyUserIO::FileNameModeChoices;
        asked.filter = plainTypes;
        asked.typeIndex = 77;
        if (several)
            asked.paths = QStringList("kept");
        const std::vector<PanelDriver::Step> steps{onPanel([](NSSavePanel* panel) {
                                                       choose(types(panel), 1);
                                                       if (modes(panel))
                                                           choose(modes(panel), 1);
                                                       selectNames(panel, {"b.dxf"});
                                                   }),
                                                   cancel()};
        QCOMPARE(several ? runSeveral(asked, steps) : run(asked, steps), -5002);
        QCOMPARE(unsigned(asked.mode), mode);
        QCOMPARE(asked.paths, several ? QStringList("kept") : QStringList());
        QCOMPARE(asked.typeIndex, 77);
        QCOMPARE(asked.codePage, nullptr);
        QCOMPARE(VyBookmarks().size(), 1);
        QCOMPARE(VyBookmarks().constFirst().path, QString("before"));
    }
}

void NewPanelTest::startsAfresh_data()
{
    addKinds();
}

void NewPanelTest::startsAfresh()
{
    QFETCH(unsigned, type);
    addFile("one/a.dwg");
    addFile("two/a.dwg");
    HostRequest first = request(type);
    first.flags = CVyUserIO::FileNameModeChoices;
    first.start = path("one");
    run(first, {onPanel([](NSSavePanel* panel) {
                    choose(types(panel), 2);
                    [panel setShowsHiddenFiles:YES];
                    selectNames(panel, {"a.dwg"});
                    [panel setNameFieldStringValue:@"a.dwg"];
                }),
                cancel()});
    HostRequest second = request(type);
    second.start = path("two");
    second.filter = plainTypes;
    run(second, {onPanel([](NSSavePanel* panel) {
                     QCOMPARE(text([panel nameFieldStringValue]), QString());
                     QVERIFY(![panel showsHiddenFiles]);
                     QCOMPARE(texts([panel allowedFileTypes]), QStringList("dwg"));
                     QVERIFY(![panel allowsOtherFileTypes]);
                     QVERIFY(![panel canSelectHiddenExtension]);
                     QVERIFY(![openPanel(panel) allowsMultipleSelection]);
                     QCOMPARE([types(panel) indexOfSelectedItem], NSInteger(0));
                     QVERIFY([panel defaultButtonCell]);
                     QVERIFY(![[panel defaultButtonCell] isEnabled]);
                 }),
                 sees({"a.dwg"}), cancel()});
}

void NewPanelTest::alwaysOffersModes()
{
    for (const unsigned flags : {0U, 1U}) {
        HostRequest asked = request(CVyUserIO::FileNameNew);
        asked.flags = flags;
        const std::vector<PanelDriver::Step> steps{
            onPanel([](NSSavePanel* panel) {
                QCOMPARE(titles(modes(panel)), newModes);
                QVERIFY(![openPanel(panel) allowsMultipleSelection]);
            }),
            cancel()};
        run(asked, steps);
        runSeveral(asked, steps);
    }
}

// The index that is answered is the one that was preset, in its range.
void NewPanelTest::startsWithTheFirstType()
{
    addFile("a.dwg");
    addFile("b.dxf");
    HostRequest asked = request(CVyUserIO::FileNameNew);
    asked.filter = plainTypes;
    asked.defaultExtension = "dxf";
    asked.typeIndex = 99;
    run(asked, {onPanel([](NSSavePanel* panel) {
                    QCOMPARE([types(panel) indexOfSelectedItem], NSInteger(0));
                    QCOMPARE(texts([panel allowedFileTypes]), QStringList("dwg"));
                }),
                sees({"a.dwg"}), chooseType(1), click({"b.dxf"}), accept()});
    QCOMPARE(asked.paths, QStringList(path("b.dxf")));
    QCOMPARE(asked.typeIndex, 2);
}

void NewPanelTest::answersTheMode_data()
{
    QTest::addColumn<QVector<int>>("chosen");
    QTest::addColumn<unsigned>("mode");
    QTest::newRow("untouched") << QVector<int>() << 1U;
    QTest::newRow("Imperial") << QVector<int>{1} << 2U;
    QTest::newRow("Metric") << QVector<int>{2} << 3U;
    QTest::newRow("Metric, then template") << QVector<int>{2, 0} << 1U;
}

void NewPanelTest::answersTheMode()
{
    QFETCH(QVector<int>, chosen);
    QFETCH(unsigned, mode);
    addFile("a.dwg");
    HostRequest asked = request(CVyUserIO::FileNameNew);
    run(asked, {onPanel([=](NSSavePanel* panel) {
                    for (const int index : chosen)
                        choose(modes(panel), index);
                    selectNames(panel, {"a.dwg"});
                }),
                accept()});
    QCOMPARE(asked.status, 5100);
    QCOMPARE(unsigned(asked.mode), mode);
    QCOMPARE(asked.paths, QStringList(path("a.dwg")));
    QCOMPARE(asked.codePage, nullptr);
    QCOMPARE(VyBookmarks().size(), 1);
    QCOMPARE(VyBookmarks().constFirst().path, path("a.dwg"));
}

void NewPanelTest::preselectsTheTemplate_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("templateName");
    QTest::addColumn<bool>("several");
    QTest::addColumn<QString>("name");
    const QString none;
    const QString iso = "iso R&D 100%20#?;.dwt";
    const QString accents = QString::fromUtf8("Шаблон cafe\u0301.dwt");
    QTest::newRow("start file") << 1U << "in/" + iso << none << false << iso;
    QTest::newRow("start file, several") << 1U << "in/" + iso << none << true << iso;
    QTest::newRow("accents") << 1U << "in/" + accents << none << false << accents;
    QTest::newRow("template") << 1U << "in" << iso << false << iso;
    QTest::newRow("template, several") << 1U << "in" << iso << true << iso;
    QTest::newRow("template and start file") << 1U << "in/" + accents << iso << false << iso;
    QTest::newRow("template, qualified type") << 0x101U << "in" << iso << false << iso;
    QTest::newRow("missing start file") << 1U << "in/none.dwt" << none << false << none;
    QTest::newRow("missing template") << 1U << "in"
                                      << "none.dwt" << false << none;
    QTest::newRow("none") << 1U << "in" << none << false << none;
}

void NewPanelTest::preselectsTheTemplate()
{
    QFETCH(unsigned, type);
    QFETCH(QString, start);
    QFETCH(QString, templateName);
    QFETCH(bool, several);
    QFETCH(QString, name);
    const QStringList templates{"iso R&D 100%20#?;.dwt",
                                QString::fromUtf8("Шаблон cafe\u0301.dwt")};
    for (const QString& file : templates)
        addFile("in/" + file);
    HostRequest asked = request(type);
    asked.start = path(start);
    asked.templateName = templateName;
    asked.filter = "Templates&*.dwt";
    const std::vector<PanelDriver::Step> steps{
        onPanel([=](NSSavePanel* panel) {
            QCOMPARE(shownNames(panel), templates);
            QCOMPARE(text([panel nameFieldStringValue]), name);
            QCOMPARE(bool([[panel defaultButtonCell] isEnabled]), !name.isEmpty());
        }),
        name.isEmpty() ? cancel() : accept()};
    several ? runSeveral(asked, steps) : run(asked, steps);
    QCOMPARE(asked.paths, name.isEmpty() ? QStringList() : QStringList(path("in/" + name)));
}

// Folder and name go to the panel as one path, which is the root without them.
void NewPanelTest::startsAtTheRoot()
{
    HostRequest asked = request(CVyUserIO::FileNameNew);
    asked.start.clear();
    run(asked, {onPanel([](NSSavePanel* panel) { QVERIFY(shownNames(panel).contains("usr")); }),
                cancel()});
    QCOMPARE(asked.status, -5002);
}

void NewPanelTest::goesToTheTemplates_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::newRow("new") << 0x1U;
    QTest::newRow("new, with open's bit") << 0x401U;
    QTest::newRow("save") << 0x4U;
}

void NewPanelTest::goesToTheTemplates()
{
    QFETCH(unsigned, type);
    addFile("templates/iso.dwt");
    addFile("here/plan.dwg");
    const HostTemplates folder(path("templates"));
    HostRequest asked = request(type);
    asked.start = path("here");
    run(asked, {sees({"plan.dwg"}), chooseType(1), sees({"iso.dwt"}), cancel()});
}

void NewPanelTest::typeWithoutExtension_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::newRow("new") << 1U;
    QTest::newRow("save") << 4U;
}

// It has no place among the lists of extensions, so that the others move up.
void NewPanelTest::typeWithoutExtension()
{
    QFETCH(unsigned, type);
    addFile("a.dwg");
    addFile("b.txt");
    HostRequest asked = request(type);
    asked.filter = "Any&*&Drawing&*.dwg";
    run(asked, {onPanel([](NSSavePanel* panel) {
                    QCOMPARE(titles(types(panel)), QStringList({"Any (*)", "Drawing (*.dwg)"}));
                }),
                sees({"a.dwg"}), chooseType(1), sees({"a.dwg", "b.txt"}), cancel()});
}

QTEST_MAIN(NewPanelTest)
#include "NewPanelTest.moc"
