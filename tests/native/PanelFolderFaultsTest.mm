// SPDX-License-Identifier: MIT
// The folder that a panel shows, and those that it is to go to, are not what they
// were: whatever the user then does, he gets an answer or gets away.
#include "HostTemplates.h"
#include "PanelFaultTest.h"

#include "PlainUser.h"

#include <sys/stat.h>

namespace {

enum class Change
{
    Removed,
    Renamed,
    Emptied,
    Unreadable
};

bool isGone(Change change)
{
    return change == Change::Removed || change == Change::Renamed;
}

constexpr int manyFiles = 10000;

bool setMode(const QString& path, mode_t mode)
{
    return chmod(QFile::encodeName(path).constData(), mode) == 0;
}

// Where a mode is to count, the panel makes the step for a user for whom it does.
// Only the step: GNUstep's servers know one user.
PanelDriver::Step asReader(Change change, const PanelDriver::Step& step)
{
    if (change != Change::Unreadable)
        return step;
    return [step](NSWindow* window) {
        const PlainUser user;
        step(window);
    };
}

PanelDriver::Step acceptAtOnce()
{
    return onPanel([](NSSavePanel* panel) { [panel ok:nil]; });
}

} // namespace

Q_DECLARE_METATYPE(Change)

class PanelFolderFaultsTest : public PanelFaultTest
{
    Q_OBJECT

private Q_SLOTS:
    void startFolderChanges_data();
    void startFolderChanges();
    void manyFilesAreAdded_data();
    void manyFilesAreAdded();
    void templateFolderIsGone_data();
    void templateFolderIsGone();

private:
    HostRequest requestInFolder(unsigned type);
    PanelDriver::Step strike(Change change);
    void leave(unsigned type, Change change);
    void goElsewhere(unsigned type, Change change);
    void answerAnyway(unsigned type, Change change);
    void heal();
};

HostRequest PanelFolderFaultsTest::requestInFolder(unsigned type)
{
    addFile("here/plan.dwg");
    addFile("here/notes.txt");
    addFile("templates/iso.dwt");
    HostRequest result = faultyRequest(type);
    result.start = path(type == CVyUserIO::FileNameSave ? "here/new.dwg" : "here");
    return result;
}

PanelDriver::Step PanelFolderFaultsTest::strike(Change change)
{
    return onPanel([=](NSSavePanel* panel) {
        QCOMPARE(shownNames(panel), QStringList("plan.dwg"));
        selectNames(panel, {"plan.dwg"});
        QDir folder(path("here"));
        switch (change) {
        case Change::Removed:
            QVERIFY(folder.removeRecursively());
            break;
        case Change::Renamed:
            QVERIFY(QDir(path()).rename("here", "there"));
            break;
        case Change::Emptied:
            QVERIFY(folder.remove("plan.dwg") && folder.remove("notes.txt"));
            break;
        case Change::Unreadable:
            QVERIFY(setMode(path(), 0755) && setMode(path("here"), 0));
            break;
        }
    });
}

void PanelFolderFaultsTest::heal()
{
    if (QFileInfo::exists(path("here")))
        QVERIFY(setMode(path("here"), 0700));
    QDir(path("here")).removeRecursively();
    QDir(path("there")).removeRecursively();
}

void PanelFolderFaultsTest::startFolderChanges_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<Change>("change");
    const std::pair<const char*, unsigned> kinds[] = {{"open", CVyUserIO::FileNameOpen},
                                                      {"save", CVyUserIO::FileNameSave}};
    for (const auto& [name, type] : kinds) {
        QTest::addRow("%s, removed", name) << type << Change::Removed;
        QTest::addRow("%s, renamed", name) << type << Change::Renamed;
        QTest::addRow("%s, emptied", name) << type << Change::Emptied;
        QTest::addRow("%s, unreadable", name) << type << Change::Unreadable;
    }
}

void PanelFolderFaultsTest::startFolderChanges()
{
    QFETCH(unsigned, type);
    QFETCH(Change, change);
    leave(type, change);
    goElsewhere(type, change);
    answerAnyway(type, change);
}

// Another type makes the panel read the folder again; of one that is gone it shows
// what is left of the way to it.
void PanelFolderFaultsTest::leave(unsigned type, Change change)
{
    HostRequest left = requestInFolder(type);
    const QStringList above =
        change == Change::Renamed ? QStringList({"templates", "there"}) : QStringList("templates");
    run(left, {strike(change), asReader(change, chooseType(2)),
               sees(isGone(change) ? above : QStringList()), cancel()});
    heal();
    compareCancelled(left);
}

void PanelFolderFaultsTest::goElsewhere(unsigned type, Change change)
{
    HostRequest elsewhere = requestInFolder(type);
    const HostTemplates templates(path("templates"));
    run(elsewhere,
        {strike(change), asReader(change, chooseType(1)), sees({"iso.dwt"}), click({"iso.dwt"}),
         typeName(type == CVyUserIO::FileNameSave ? "new.dwt" : "iso.dwt"), accept()});
    heal();
    compareAccepted(elsewhere, path(type == CVyUserIO::FileNameSave ? "templates/new.dwt"
                                                                    : "templates/iso.dwt"));
}

void PanelFolderFaultsTest::answerAnyway(unsigned type, Change change)
{
    HostRequest accepted = requestInFolder(type);
    std::vector<PanelDriver::Step> steps = {strike(change)};
    steps.push_back(change == Change::Unreadable ? asReader(change, acceptAtOnce()) : accept());
    if (type == CVyUserIO::FileNameSave && isGone(change))
        steps.push_back(answerAlert(NSAlertDefaultReturn, "does not exist"));
    run(accepted, steps);
    heal();
    compareAccepted(accepted, path("here/plan.dwg"));
}

void PanelFolderFaultsTest::manyFilesAreAdded_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::newRow("open") << unsigned(CVyUserIO::FileNameOpen);
    QTest::newRow("save") << unsigned(CVyUserIO::FileNameSave);
}

void PanelFolderFaultsTest::manyFilesAreAdded()
{
    QFETCH(unsigned, type);
    addFile("plan.dwg");
    HostRequest host = faultyRequest(type);
    run(host, {onPanel([this](NSSavePanel* panel) {
                   for (int i = 0; i < manyFiles; ++i)
                       addFile(QStringLiteral("%1.dxf").arg(i, 5, 10, QLatin1Char('0')));
                   choose(popup(panel, @selector(filterChanged:)), 2);
                   QCOMPARE(shownNames(panel).size(), manyFiles + 1);
                   selectNames(panel, {"09999.dxf"});
                   if (![panel isKindOfClass:[NSOpenPanel class]])
                       [panel setNameFieldStringValue:@"new.dxf"];
               }),
               accept()});
    compareAccepted(host, path(type == CVyUserIO::FileNameSave ? "new.dxf" : "09999.dxf"));
}

void PanelFolderFaultsTest::templateFolderIsGone_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::newRow("open") << unsigned(CVyUserIO::FileNameOpen);
    QTest::newRow("new") << unsigned(CVyUserIO::FileNameNew);
    QTest::newRow("save") << unsigned(CVyUserIO::FileNameSave);
}

// The panel stays where it is; the types are the chosen ones all the same.
void PanelFolderFaultsTest::templateFolderIsGone()
{
    QFETCH(unsigned, type);
    addFile("here/plan.dwg");
    addFile("here/mine.dwt");
    addFolder("templates");
    const HostTemplates templates(path("templates"));
    HostRequest host = faultyRequest(type);
    host.start = path("here");
    run(host, {onPanel([this](NSSavePanel*) { QVERIFY(QDir(path()).rmdir("templates")); }),
               chooseType(1), sees({"mine.dwt"}), click({"mine.dwt"}),
               typeName(type == CVyUserIO::FileNameSave ? "new.dwt" : "mine.dwt"), accept()});
    compareAccepted(host, path(type == CVyUserIO::FileNameSave ? "here/new.dwt" : "here/mine.dwt"));
}

QTEST_MAIN(PanelFolderFaultsTest)
#include "PanelFolderFaultsTest.moc"
