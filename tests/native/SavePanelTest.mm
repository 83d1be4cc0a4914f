// SPDX-License-Identifier: MIT
#include "HostTemplates.h"
#include "NativeTest.h"

#include "VyBookmarks.h"

namespace {

const QString plainTypes = "Drawing&*.dwg&Exchange&*.dxf&All files&*.*";

// The buttons of an alert, by their tags.
constexpr NSInteger firstButton = NSAlertDefaultReturn;
constexpr NSInteger secondButton = NSAlertAlternateReturn;
constexpr NSInteger thirdButton = NSAlertOtherReturn;

NSPopUpButton* types(NSSavePanel* panel)
{
    return popup(panel, @selector(filterChanged:));
}

QStringList bookmarkedPaths()
{
    QStringList paths;
    for (const VyBookmark& bookmark : VyBookmarks())
        paths += bookmark.path;
    return paths;
}

PanelDriver::Step isNamed(const QString& name)
{
    return onPanel(
        [name](NSSavePanel* panel) { QCOMPARE(text([panel nameFieldStringValue]), name); });
}

} // namespace

/// The save panel, from the host's request to its answer.
class SavePanelTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void answersTheTypedName();
    void startsWithTheType_data();
    void startsWithTheType();
    void answersTheType_data();
    void answersTheType();
    void answersTheFirstOfEqualTypes();
    void presetsTheName_data();
    void presetsTheName();
    void savesUnderThePresetName();
    void completesTheName_data();
    void completesTheName();
    void answersTheName_data();
    void answersTheName();
    void refusesABackslash();
    void severalAreCompletedByThePanelAlone();
    void asksAboutAnotherExtension_data();
    void asksAboutAnotherExtension();
    void asksBeforeReplacing_data();
    void asksBeforeReplacing();
    void nameFollowsTheType_data();
    void nameFollowsTheType();
    void goesToTheTemplates();
    void savesInAFolder();
    void entersNoPackages();
};

void SavePanelTest::answersTheTypedName()
{
    addFile("other.dxf");
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.filter = plainTypes;
    save.typeIndex = 1;
    run(save, {onPanel([](NSSavePanel* panel) {
                   QVERIFY(![panel isKindOfClass:[NSOpenPanel class]]);
                   QVERIFY(![panel delegate]);
                   QVERIFY(!popup(panel, @selector(openmodeChanged:)));
                   QCOMPARE(shownNames(panel), QStringList("other.dxf"));
               }),
               typeName("plan"), accept()});
    QCOMPARE(save.status, 5100);
    QCOMPARE(save.mode, CVyUserIO::Save);
    QCOMPARE(save.paths, QStringList(path("plan.dxf")));
    QCOMPARE(save.typeIndex, 1);
    QCOMPARE(save.codePage, nullptr);
    QCOMPARE(bookmarkedPaths(), QStringList(path("plan.dxf")));
}

void SavePanelTest::startsWithTheType_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QVariant>("typeIndex");
    QTest::addColumn<int>("selected");
    const QVariant none;
    QTest::newRow("first") << "" << none << 0;
    QTest::newRow("whole list") << "dxf" << none << 2;
    QTest::newRow("list of two") << "dwg;dxf" << none << 1;
    QTest::newRow("in a list") << "dwg" << none << 0;
    QTest::newRow("in capitals") << "DXF" << none << 0;
    QTest::newRow("wildcard") << "*" << none << 0;
    QTest::newRow("index and extension") << "dxf" << QVariant(1) << 1;
    QTest::newRow("index after all") << "dxf" << QVariant(99) << 3;
    QTest::newRow("index before all") << "dxf" << QVariant(-1) << 0;
}

void SavePanelTest::startsWithTheType()
{
    QFETCH(QString, extension);
    QFETCH(QVariant, typeIndex);
    QFETCH(int, selected);
    const QList<QStringList> allowed{{"dwt"}, {"dwg", "dxf"}, {"dxf"}, {}};
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.filter = "Templates&*.dwt&Drawings&*.dwg;*.dxf&Exchange&*.dxf&All files&*.*";
    save.defaultExtension = extension;
    save.withTypeIndex = typeIndex.isValid();
    save.typeIndex = typeIndex.toInt();
    run(save, {onPanel([=](NSSavePanel* panel) {
                   QCOMPARE([types(panel) indexOfSelectedItem], NSInteger(selected));
                   QCOMPARE(texts([panel allowedFileTypes]), allowed[selected]);
               }),
               cancel()});
    QCOMPARE(save.typeIndex, typeIndex.toInt());
}

void SavePanelTest::answersTheType_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<QVector<int>>("picked");
    QTest::addColumn<int>("answered");
    QTest::addColumn<QString>("name");
    QTest::newRow("untouched") << 1 << QVector<int>() << 1 << "plan.dxf";
    QTest::newRow("untouched, after all") << 99 << QVector<int>() << 3 << "plan.dwf";
    QTest::newRow("picked") << 0 << QVector<int>{1} << 1 << "plan.dxf";
    QTest::newRow("picked twice") << 0 << QVector<int>{1, 3} << 3 << "plan.dwf";
    QTest::newRow("picked and back") << 0 << QVector<int>{1, 0} << 0 << "plan.dwg";
    QTest::newRow("picked again") << 1 << QVector<int>{1} << 1 << "plan.dxf";
}

void SavePanelTest::answersTheType()
{
    QFETCH(int, preset);
    QFETCH(QVector<int>, picked);
    QFETCH(int, answered);
    QFETCH(QString, name);
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.filter = "Drawing&*.dwg&Exchange&*.dxf&All files&*.*&Web&*.dwf";
    save.typeIndex = preset;
    std::vector<PanelDriver::Step> steps;
    for (const int index : picked)
        steps.push_back(chooseType(index));
    steps.push_back(typeName("plan"));
    steps.push_back(accept());
    QCOMPARE(run(save, steps), 5100);
    QCOMPARE(save.typeIndex, answered);
    QCOMPARE(save.paths, QStringList(path(name)));
}

// Types are told apart by their descriptions.
void SavePanelTest::answersTheFirstOfEqualTypes()
{
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.filter = "Same (*.d)&*.dwg&Same (*.d)&*.dwg&Web&*.dwf";
    save.typeIndex = 2;
    run(save, {chooseType(1), typeName("plan"), accept()});
    QCOMPARE(save.typeIndex, 0);
    QCOMPARE(save.paths, QStringList(path("plan.dwg")));
}

void SavePanelTest::presetsTheName_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("templateName");
    QTest::addColumn<bool>("several");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("folder");
    const QString none;
    const QString accents = QString::fromUtf8("План cafe\u0301 R&D 100%20#?;.dwg");
    QTest::newRow("missing file") << "in/" + accents << none << false << accents << "in";
    QTest::newRow("missing file, several") << "in/" + accents << none << true << accents << "in";
    QTest::newRow("file") << "in/in.dwg" << none << false << "in.dwg"
                          << "in";
    QTest::newRow("file, several") << "in/in.dwg" << none << true << "/in/in.dwg"
                                   << "work";
    QTest::newRow("folder") << "in" << none << false << none << "in";
    QTest::newRow("missing folder") << "no/where.dwg" << none << false << "where.dwg"
                                    << "work";
    QTest::newRow("empty") << none << none << false << none << "work";
    QTest::newRow("template") << "in"
                              << "new.dwg" << false << "new.dwg"
                              << "in";
    QTest::newRow("template and file") << "in/in.dwg"
                                       << "new.dwg" << false << "new.dwg"
                                       << "in";
}

void SavePanelTest::presetsTheName()
{
    QFETCH(QString, start);
    QFETCH(QString, templateName);
    QFETCH(bool, several);
    QFETCH(QString, name);
    QFETCH(QString, folder);
    addFile("in/in.dwg");
    addFile("work/work.dwg");
    const QString before = QDir::currentPath();
    QDir::setCurrent(path("work"));
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.start = start.isEmpty() ? start : path(start);
    save.templateName = templateName;
    const QString wanted = name.startsWith('/') ? path() + name : name;
    const std::vector<PanelDriver::Step> steps{
        onPanel([=](NSSavePanel* panel) {
            QCOMPARE(text([panel nameFieldStringValue]), wanted);
            QCOMPARE(shownNames(panel), QStringList(folder + ".dwg"));
            QVERIFY([panel defaultButtonCell]);
            QCOMPARE(bool([[panel defaultButtonCell] isEnabled]), !name.isEmpty());
        }),
        cancel()};
    several ? runSeveral(save, steps) : run(save, steps);
    QDir::setCurrent(before);
    QCOMPARE(save.status, -5002);
}

void SavePanelTest::savesUnderThePresetName()
{
    addFile("old.dwg");
    HostRequest missing = request(CVyUserIO::FileNameSave);
    missing.filter = plainTypes;
    missing.start = path("new.dwg");
    run(missing, {accept()});
    QCOMPARE(missing.paths, QStringList(path("new.dwg")));

    for (const bool several : {false, true}) {
        HostRequest existing = request(CVyUserIO::FileNameSave);
        existing.filter = plainTypes;
        existing.start = path("old.dwg");
        const std::vector<PanelDriver::Step> steps{accept(), answerAlert(firstButton, "old.dwg")};
        several ? runSeveral(existing, steps) : run(existing, steps);
        QCOMPARE(existing.paths, QStringList(path("old.dwg")));
    }
}

void SavePanelTest::completesTheName_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<bool>("withTypeIndex");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("answered");
    const QString one = "Drawing&*.dwg";
    const QString two = "Drawings&*.dwg;*.dxf";
    const QString any = "All files&*.*";
    QTest::newRow("without") << 4U << one << true << "plan"
                             << "plan.dwg";
    QTest::newRow("with") << 4U << one << true << "plan.dwg"
                          << "plan.dwg";
    QTest::newRow("in capitals") << 4U << one << true << "New.DWG"
                                 << "New.DWG";
    QTest::newRow("in mixed case") << 4U << one << true << "New.Dwg"
                                   << "New.Dwg";
    QTest::newRow("capital type") << 4U << "Drawing&*.DWG" << true << "plan.dwg"
                                  << "plan.dwg";
    QTest::newRow("several, without") << 4U << two << false << "plan"
                                      << "plan.dwg";
    QTest::newRow("several, the second") << 4U << two << false << "plan.DXF"
                                         << "plan.DXF";
    QTest::newRow("any, without") << 4U << any << false << "plan"
                                  << "plan";
    QTest::newRow("any, with") << 4U << any << false << "plan.xyz"
                               << "plan.xyz";
    QTest::newRow("no types") << 4U << "" << true << "plan"
                              << "plan";
    // With an index, the host's rule follows: the type's whole list is wanted.
    QTest::newRow("whole list") << 4U << two << true << "plan"
                                << "plan.dwg.dwg;dxf";
    QTest::newRow("whole list, any") << 4U << any << true << "plan.xyz"
                                     << "plan.xyz.*";
    QTest::newRow("qualified type") << 0x104U << two << true << "plan"
                                    << "plan.dwg";
}

void SavePanelTest::completesTheName()
{
    QFETCH(unsigned, type);
    QFETCH(QString, filter);
    QFETCH(bool, withTypeIndex);
    QFETCH(QString, typed);
    QFETCH(QString, answered);
    HostRequest save = request(type);
    save.filter = filter;
    save.withTypeIndex = withTypeIndex;
    run(save, {typeName(typed), accept()});
    QCOMPARE(save.mode, CVyUserIO::Save);
    QCOMPARE(save.paths, QStringList(path(answered)));
}

void SavePanelTest::answersTheName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << " plan of the 2nd floor";
    QTest::newRow("Cyrillic") << QString::fromUtf8("План этажа");
    QTest::newRow("composed accent") << QString::fromUtf8("caf\u00e9");
    QTest::newRow("combining accent") << QString::fromUtf8("cafe\u0301");
    QTest::newRow("beyond the first plane") << QString::fromUtf8("\U0001f4d0");
    QTest::newRow("ampersand and hash") << "R&D some:fi#le";
    QTest::newRow("percent and query") << "100%20 what?;x=1";
    QTest::newRow("newline") << "two\nlines";
    QTest::newRow("tilde") << "~plan.dwg";
    QTest::newRow("drive letter") << "C:plan";
}

// No part of a name is the name of a folder.
void SavePanelTest::answersTheName()
{
    QFETCH(QString, name);
    addFolder("a");
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.filter = plainTypes;
    save.withTypeIndex = false;
    run(save, {chooseType(2), typeName(name), accept()});
    QCOMPARE(save.paths, QStringList(path(name)));
    QCOMPARE(bookmarkedPaths(), QStringList(path(name)));
}

// It would be saved in the folder "a".
void SavePanelTest::refusesABackslash()
{
    addFolder("a");
    HostRequest save = request(CVyUserIO::FileNameSave);
    run(save, {typeName("a\\b"), accept(),
               onPanel([](NSSavePanel* panel) { QVERIFY([panel isVisible]); }), cancel()});
    QCOMPARE(save.status, -5002);
    QCOMPARE(save.paths, QStringList());
}

void SavePanelTest::severalAreCompletedByThePanelAlone()
{
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.paths = QStringList("kept");
    runSeveral(save, {chooseType(1), chooseType(0), typeName("plan"), accept()});
    QCOMPARE(save.status, 5100);
    QCOMPARE(save.paths, QStringList({"kept", path("plan.dwg")}));
}

void SavePanelTest::asksAboutAnotherExtension_data()
{
    QTest::addColumn<NSInteger>("button");
    QTest::addColumn<QString>("answered");
    QTest::newRow("the type's instead") << firstButton << "plan.dwg";
    QTest::newRow("both") << thirdButton << "plan.xyz.dwg";
    QTest::newRow("back to the panel") << secondButton << QString();
}

void SavePanelTest::asksAboutAnotherExtension()
{
    QFETCH(NSInteger, button);
    QFETCH(QString, answered);
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.filter = plainTypes;
    std::vector<PanelDriver::Step> steps{typeName("plan.xyz"), accept(),
                                         answerAlert(button, ".xyz")};
    if (answered.isEmpty()) {
        steps.push_back(isNamed("plan.xyz"));
        steps.push_back(cancel());
    }
    QCOMPARE(run(save, steps), answered.isEmpty() ? -5002 : 5100);
    QCOMPARE(save.paths, answered.isEmpty() ? QStringList() : QStringList(path(answered)));
    QCOMPARE(bookmarkedPaths(), save.paths);
}

void SavePanelTest::asksBeforeReplacing_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("existing");
    QTest::newRow("same name") << "plan.dwg"
                               << "plan.dwg";
    QTest::newRow("in capitals") << "plan.DWG"
                                 << "plan.DWG";
    QTest::newRow("completed name") << "plan"
                                    << "plan.dwg";
}

void SavePanelTest::asksBeforeReplacing()
{
    QFETCH(QString, typed);
    QFETCH(QString, existing);
    addFile(existing);
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.filter = plainTypes;
    run(save, {typeName(typed), accept(), answerAlert(firstButton, existing)});
    QCOMPARE(save.paths, QStringList(path(existing)));

    HostRequest other = request(CVyUserIO::FileNameSave);
    other.filter = plainTypes;
    run(other, {typeName(typed), accept(), answerAlert(secondButton, existing), isNamed(typed),
                typeName("other"), accept()});
    QCOMPARE(other.paths, QStringList(path("other.dwg")));

    HostRequest none = request(CVyUserIO::FileNameSave);
    none.filter = plainTypes;
    run(none, {typeName(typed), accept(), answerAlert(secondButton, existing), cancel()});
    QCOMPARE(none.status, -5002);
    QCOMPARE(none.mode, CVyUserIO::Save);
    QVERIFY(none.paths.isEmpty());
    QCOMPARE(bookmarkedPaths(), QStringList({path("other.dwg"), path(existing)}));
}

void SavePanelTest::nameFollowsTheType_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("picked");
    QTest::addColumn<QString>("followed");
    QTest::newRow("another type") << "new.dwg" << 1 << "new.dxf";
    QTest::newRow("in capitals") << "NEW.DWG" << 1 << "NEW.dxf";
    QTest::newRow("any file") << "new.DWG" << 2 << "new.DWG";
    QTest::newRow("without extension") << "new" << 1 << "new";
    QTest::newRow("of no type") << "new.xyz" << 1 << "new.xyz";
    QTest::newRow("same type") << "new.DWG" << 0 << "new.DWG";
}

void SavePanelTest::nameFollowsTheType()
{
    QFETCH(QString, name);
    QFETCH(int, picked);
    QFETCH(QString, followed);
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.filter = plainTypes;
    save.start = path(name);
    run(save, {isNamed(name), chooseType(picked), isNamed(followed), cancel()});
}

void SavePanelTest::goesToTheTemplates()
{
    addFile("templates/iso.dwt");
    addFile("here/mine.dwg");
    const HostTemplates folder(path("templates"));
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.filter = "Drawing&*.dwg&Template&*.dwt";
    save.start = path("here/plan.dwg");
    run(save, {sees({"mine.dwg"}), chooseType(1), sees({"iso.dwt"}), cancel()});
}

void SavePanelTest::savesInAFolder()
{
    addFile("x.dwg/old.dwg");
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.filter = plainTypes;
    run(save,
        {onPanel([](NSSavePanel* panel) { selectNames(panel, {"x.dwg"}); }), accept(),
         onPanel([](NSSavePanel* panel) { QCOMPARE(shownNames(panel), QStringList("old.dwg")); }),
         typeName("new"), accept()});
    QCOMPARE(save.paths, QStringList(path("x.dwg/new.dwg")));
}

void SavePanelTest::entersNoPackages()
{
    addFile("Plugins.app/Contents/a.tx");
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.filter = "Any&*.*&Plugins&*.tx;*.app&Libraries&*.dylib;*.*";
    const auto looks = onPanel([](NSSavePanel* panel) {
        QCOMPARE(shownNames(panel), QStringList("Plugins.app"));
        QVERIFY(!canEnter(panel, "Plugins.app"));
    });
    run(save, {looks, chooseType(1), looks, chooseType(2), looks, cancel()});
}

QTEST_MAIN(SavePanelTest)
#include "SavePanelTest.moc"
