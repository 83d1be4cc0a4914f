// SPDX-License-Identifier: MIT
// Names and paths that are hard to read, to write or to follow: the panel shows
// them, the user can choose them, and the path that comes back is the very file's.
#include "PanelFaultTest.h"

#include <QScopeGuard>

#include <climits>

#include <sys/stat.h>

namespace {

const QByteArray content = "the very file";

void writeFile(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::NewOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be opened");
}

PanelDriver::Step isNamed(const QString& name)
{
    return onPanel(
        [name](NSSavePanel* panel) { QCOMPARE(text([panel nameFieldStringValue]), name); });
}

} // namespace

class PanelNameFaultsTest : public PanelFaultTest
{
    Q_OBJECT

private Q_SLOTS:
    void opensTheVeryFile_data() { addNames(); }
    void opensTheVeryFile();
    void savesTheVeryFile_data() { addNames(); }
    void savesTheVeryFile();
    void nameInAnotherEncoding();
    void linkToItself_data();
    void linkToItself();
    void linkToItselfIsNotListed();
    void folderThatLinksToItsParent();
    void pathThatIsTooLong_data();
    void pathThatIsTooLong();

private:
    static void addNames();
};

// Also on the way: the names are those of folders.
void PanelNameFaultsTest::addNames()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("255 bytes") << QString(125, QChar(0x416)) + "n.dwg";
    QTest::newRow("newline") << "two\nlines.dwg";
    QTest::newRow("text turned round") << QString::fromUtf8("plan\u202egwd.exe");
    QTest::newRow("right-to-left mark") << QString::fromUtf8("\u200fplan.dwg");
    QTest::newRow("leading dashes") << "--plan.dwg";
    QTest::newRow("trailing dots") << "plan.dwg..";
    QTest::newRow("trailing blanks") << "plan.dwg  ";
}

// The start path is the file, so that its name comes to the panel, too.
void PanelNameFaultsTest::opensTheVeryFile()
{
    QFETCH(QString, name);
    addFolder(name);
    const QString file = path(name + '/' + name);
    writeFile(file);
    HostRequest open = faultyRequest(CVyUserIO::FileNameOpen);
    open.start = file;
    run(open, {chooseType(2), sees({name}), click({name}), accept()});
    compareAccepted(open, file);
    QCOMPARE(contentOf(open.paths.value(0)), content);
}

void PanelNameFaultsTest::savesTheVeryFile()
{
    QFETCH(QString, name);
    addFolder(name);
    const QString file = path(name + '/' + name);
    HostRequest preset = faultyRequest(CVyUserIO::FileNameSave);
    preset.start = file;
    run(preset, {chooseType(2), isNamed(name), accept()});
    compareAccepted(preset, file);
    writeFile(preset.paths.value(0));

    HostRequest typed = faultyRequest(CVyUserIO::FileNameSave);
    typed.start = path(name);
    run(typed, {chooseType(2), sees({name}), typeName(name), accept(),
                answerAlert(NSAlertDefaultReturn, name)});
    compareAccepted(typed, file);
    QCOMPARE(contentOf(typed.paths.value(0)), content);
}

// A host's path is text, which such a name is not: the file could not be answered,
// and is not listed. The others are.
void PanelNameFaultsTest::nameInAnotherEncoding()
{
    for (const char* name : {"a.dwg", "z.dwg"})
        writeFile(path(name));
    const QByteArray latin1 = QFile::encodeName(path()) + "/caf\xe9.dwg";
    QCOMPARE(mknod(latin1.constData(), S_IFREG | 0600, 0), 0);
    const auto remove = qScopeGuard([&] { unlink(latin1.constData()); });
    HostRequest open = faultyRequest(CVyUserIO::FileNameOpen);
    run(open, {sees({"a.dwg", "z.dwg"}), click({"z.dwg"}), accept()});
    compareAccepted(open, path("z.dwg"));
}

void PanelNameFaultsTest::linkToItself_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("start");
    QTest::newRow("open") << unsigned(CVyUserIO::FileNameOpen) << "loop.dwg";
    QTest::newRow("open, below it") << unsigned(CVyUserIO::FileNameOpen) << "loop.dwg/plan.dwg";
    QTest::newRow("save") << unsigned(CVyUserIO::FileNameSave) << "loop.dwg";
    QTest::newRow("save, below it") << unsigned(CVyUserIO::FileNameSave) << "loop.dwg/plan.dwg";
}

void PanelNameFaultsTest::linkToItself()
{
    QFETCH(unsigned, type);
    QFETCH(QString, start);
    addFile("plan.dwg");
    QVERIFY(QFile::link(path("loop.dwg"), path("loop.dwg")));
    HostRequest host = faultyRequest(type);
    host.start = path(start);
    run(host, {onPanel([](NSSavePanel* panel) { QVERIFY([panel isVisible]); }), cancel()});
    compareCancelled(host);
}

// As any link that leads nowhere.
void PanelNameFaultsTest::linkToItselfIsNotListed()
{
    addFile("plan.dwg");
    QVERIFY(QFile::link(path("loop.dwg"), path("loop.dwg")));
    HostRequest open = faultyRequest(CVyUserIO::FileNameOpen);
    run(open,
        {sees({"plan.dwg"}), chooseType(2), sees({"plan.dwg"}), click({"plan.dwg"}), accept()});
    compareAccepted(open, path("plan.dwg"));
}

// Each round is a folder further down.
void PanelNameFaultsTest::folderThatLinksToItsParent()
{
    writeFile(path("plan.dwg"));
    QVERIFY(QFile::link(path(), path("round")));
    HostRequest open = faultyRequest(CVyUserIO::FileNameOpen);
    open.start = path("round/round");
    run(open, {sees({"plan.dwg", "round"}), click({"round"}), accept(), sees({"plan.dwg", "round"}),
               click({"plan.dwg"}), accept()});
    compareAccepted(open, path("round/round/round/plan.dwg"));
    QCOMPARE(contentOf(open.paths.value(0)), content);
}

void PanelNameFaultsTest::pathThatIsTooLong_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("name");
    const QString levels = QString("folder/").repeated(PATH_MAX / 7 + 1) + "plan.dwg";
    const QString name = QString(PATH_MAX, 'n') + ".dwg";
    const std::pair<const char*, unsigned> kinds[] = {{"new", CVyUserIO::FileNameNew},
                                                      {"save", CVyUserIO::FileNameSave}};
    for (const auto& [kind, type] : kinds) {
        QTest::addRow("%s, many folders", kind) << type << levels;
        QTest::addRow("%s, one name", kind) << type << name;
    }
}

void PanelNameFaultsTest::pathThatIsTooLong()
{
    QFETCH(unsigned, type);
    QFETCH(QString, name);
    HostRequest host = faultyRequest(type);
    host.start = path(name);
    run(host, {onPanel([](NSSavePanel* panel) { QVERIFY([panel isVisible]); }), cancel()});
    compareCancelled(host);
}

QTEST_MAIN(PanelNameFaultsTest)
#include "PanelNameFaultsTest.moc"
