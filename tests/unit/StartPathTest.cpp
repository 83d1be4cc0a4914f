// SPDX-License-Identifier: MIT
#include "VyStartPath.h"

#include "HostLog.h"
#include "StubImpl.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using VyStartPath::Request;

namespace {

QStringList presetsFor(const QString& path, Request request)
{
    StubImpl impl;
    for (const VyStartPath::Preset& preset : VyStartPath::presets(path, request))
        (impl.*preset.setter)(CVyString(preset.value));
    return impl.presets();
}

} // namespace

/// What a request's start path presets. In the tables "@" is the temporary
/// folder of the test; relative paths count from its folder "here".
class StartPathTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void sameForBoth_data();
    void sameForBoth();
    void regularFile_data();
    void regularFile();
    void fileInAFolderWithoutAccess();
    void saysNothing_data();
    void saysNothing();

private:
    static void folderRows();
    static void missingRows();
    static void linkRows();
    static void nameRows();
    QString at(QString path) const { return path.replace('@', m_folder->path()); }
    void addFile(const QString& path) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    const QString m_workingDirectory = QDir::currentPath();
};

void StartPathTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(QDir(at("@")).mkpath("here/deep"));
    addFile("@/plan.dwg");
    addFile("@/here/plan.dwg");
    QVERIFY(QFile::link("here", at("@/link to folder")));
    QVERIFY(QFile::link("plan.dwg", at("@/link.dwg")));
    QVERIFY(QFile::link("nowhere", at("@/dangling.dwg")));
    QVERIFY(QFile::link("loop", at("@/loop")));
    QCOMPARE(mkfifo(QFile::encodeName(at("@/pipe")).constData(), 0600), 0);
    QVERIFY(QDir::setCurrent(at("@/here")));
}

void StartPathTest::cleanup()
{
    QVERIFY(QDir::setCurrent(m_workingDirectory));
    m_folder.reset();
}

void StartPathTest::addFile(const QString& path) const
{
    QFile file(at(path));
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(file.fileName()));
}

void StartPathTest::sameForBoth_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("presets");

    QTest::newRow("empty") << "" << QStringList();
    QTest::newRow("zero inside") << QString("@/here" + QString(QChar())) << QStringList();
    QTest::newRow("pipe") << "@/pipe" << QStringList();
    QTest::newRow("device") << "/dev/null" << QStringList();
    folderRows();
    missingRows();
    linkRows();
    nameRows();
}

void StartPathTest::folderRows()
{
    QTest::newRow("folder") << "@/here" << QStringList{"folder @/here"};
    QTest::newRow("folder, with separator") << "@/here/" << QStringList{"folder @/here"};
    QTest::newRow("folder, with separators") << "@//here//" << QStringList{"folder @/here"};
    QTest::newRow("folder, by a dot") << "@/here/." << QStringList{"folder @/here"};
    QTest::newRow("folder, by two dots") << "@/here/deep/.." << QStringList{"folder @/here"};
    QTest::newRow("folder, by a missing one")
        << "@/missing/../here" << QStringList{"folder @/here"};
    QTest::newRow("folder, relative") << "deep" << QStringList{"folder @/here/deep"};
    QTest::newRow("working directory") << "." << QStringList{"folder @/here"};
    QTest::newRow("working directory, with separator") << "./" << QStringList{"folder @/here"};
    QTest::newRow("above the working directory") << ".." << QStringList{"folder @"};
    QTest::newRow("root") << "/" << QStringList{"folder /"};
    QTest::newRow("root, with separators") << "//" << QStringList{"folder /"};
}

void StartPathTest::missingRows()
{
    QTest::newRow("missing in a folder")
        << "@/here/new.dwg" << QStringList{"folder @/here", "name new.dwg"};
    QTest::newRow("missing in a missing folder")
        << "@/missing/new.dwg" << QStringList{"name new.dwg"};
    QTest::newRow("missing, with separator")
        << "@/here/new/" << QStringList{"folder @/here", "name new"};
    QTest::newRow("missing, by two dots")
        << "@/here/deep/../new.dwg" << QStringList{"folder @/here", "name new.dwg"};
    QTest::newRow("missing, relative") << "new.dwg" << QStringList{"folder @/here", "name new.dwg"};
    QTest::newRow("missing above") << "../new.dwg" << QStringList{"folder @", "name new.dwg"};
    QTest::newRow("missing in a missing folder, relative")
        << "missing/new.dwg" << QStringList{"name new.dwg"};
    QTest::newRow("missing in the root")
        << "/vy-no-such.dwg" << QStringList{"folder /", "name vy-no-such.dwg"};
    QTest::newRow("missing below a file")
        << "@/plan.dwg/new.dwg" << QStringList{"folder @/plan.dwg", "name new.dwg"};
    QTest::newRow("blank alone") << " " << QStringList{"folder @/here", "name  "};
    const QString longName(300, 'n');
    QTest::newRow("name too long to exist")
        << QString("@/" + longName) << QStringList{"folder @", "name " + longName};
}

void StartPathTest::linkRows()
{
    QTest::newRow("link to a folder")
        << "@/link to folder" << QStringList{"folder @/link to folder"};
    QTest::newRow("missing in a linked folder")
        << "@/link to folder/new.dwg" << QStringList{"folder @/link to folder", "name new.dwg"};
    QTest::newRow("dangling link")
        << "@/dangling.dwg" << QStringList{"folder @", "name dangling.dwg"};
    QTest::newRow("below a dangling link")
        << "@/dangling.dwg/new.dwg" << QStringList{"name new.dwg"};
    QTest::newRow("link to itself") << "@/loop" << QStringList{"folder @", "name loop"};
    QTest::newRow("below a link to itself") << "@/loop/new.dwg" << QStringList{"name new.dwg"};
}

void StartPathTest::nameRows()
{
    const auto missing = [](const char* row, const QString& name) {
        QTest::newRow(row) << QString("@/here/" + name)
                           << QStringList{"folder @/here", "name " + name};
    };
    missing("missing, line end", "a\nb.dwg");
    missing("missing, ampersand", "R&D.dwg");
    missing("missing, blanks at the ends", "  plan ");
    missing("missing, Cyrillic", QStringLiteral("Чертёж.dwg"));
    missing("missing, beyond the basic plane", QStringLiteral("\U0001F600.dwg"));
    missing("missing, hidden", ".hidden");
    missing("missing, dot at the end", "plan.");
    missing("missing, dots alone", "...");
    missing("missing, colon and number sign", "some:fi#le?.dwg");
    missing("missing, percent", "100%41.dwg");
    missing("missing, backslash", "back\\slash.dwg");
    missing("missing, tilde", "~");
    missing("missing, quotes", "\"plan\".dwg");
}

void StartPathTest::sameForBoth()
{
    QFETCH(QString, path);
    QFETCH(QStringList, presets);

    presets.replaceInStrings("@", m_folder->path());
    QCOMPARE(presetsFor(at(path), Request::SingleFile), presets);
    QCOMPARE(presetsFor(at(path), Request::MultipleFiles), presets);
}

void StartPathTest::regularFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");

    QTest::newRow("file") << "@/plan.dwg"
                          << "@"
                          << "plan.dwg";
    QTest::newRow("with separator") << "@/plan.dwg/"
                                    << "@"
                                    << "plan.dwg";
    QTest::newRow("by two dots") << "@/here/../plan.dwg"
                                 << "@"
                                 << "plan.dwg";
    QTest::newRow("relative") << "plan.dwg"
                              << "@/here"
                              << "plan.dwg";
    QTest::newRow("relative, above") << "../plan.dwg"
                                     << "@"
                                     << "plan.dwg";
    QTest::newRow("by a link") << "@/link.dwg"
                               << "@"
                               << "link.dwg";
    QTest::newRow("in a linked folder") << "@/link to folder/plan.dwg"
                                        << "@/link to folder"
                                        << "plan.dwg";
    QTest::newRow("line end") << "@/a\nb.dwg"
                              << "@"
                              << "a\nb.dwg";
    QTest::newRow("ampersand") << "@/R&D.dwg"
                               << "@"
                               << "R&D.dwg";
    QTest::newRow("blanks at the ends") << "@/  plan "
                                        << "@"
                                        << "  plan ";
    QTest::newRow("Cyrillic") << QStringLiteral("@/Чертёж.dwg") << "@"
                              << QStringLiteral("Чертёж.dwg");
    QTest::newRow("hidden") << "@/.hidden"
                            << "@"
                            << ".hidden";
    QTest::newRow("backslash") << "@/back\\slash"
                               << "@"
                               << "back\\slash";
}

void StartPathTest::regularFile()
{
    QFETCH(QString, path);
    QFETCH(QString, folder);
    QFETCH(QString, name);

    addFile(folder + "/" + name);
    QCOMPARE(presetsFor(at(path), Request::SingleFile),
             (QStringList{"name " + name, at("folder " + folder)}));
    QCOMPARE(presetsFor(at(path), Request::MultipleFiles),
             QStringList{at("name " + folder + "/" + name)});
}

void StartPathTest::fileInAFolderWithoutAccess()
{
    if (geteuid() == 0)
        QSKIP("the superuser has access to every folder");
    const QString folder = at("@/locked");
    QVERIFY(QDir().mkdir(folder));
    addFile("@/locked/plan.dwg");
    QVERIFY(QFile::setPermissions(folder, {}));

    const QStringList file = presetsFor(folder + "/plan.dwg", Request::MultipleFiles);
    const QStringList itself = presetsFor(folder, Request::MultipleFiles);
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QCOMPARE(file, (QStringList{"folder " + folder, "name plan.dwg"}));
    QCOMPARE(itself, QStringList{"folder " + folder});
}

void StartPathTest::saysNothing_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("empty") << "";
    QTest::newRow("zero inside") << QString("@/a" + QString(QChar()) + "b");
    QTest::newRow("zero alone") << QString(QChar());
    QTest::newRow("surrogate alone") << QString("@/" + QString(QChar(0xd83d)));
    QTest::newRow("very long") << QString("@/" + QString(100000, 'n'));
    QTest::newRow("very deep") << QString("@" + QString("/n").repeated(50000));
}

void StartPathTest::saysNothing()
{
    QFETCH(QString, path);

    const HostLog log;
    presetsFor(at(path), Request::SingleFile);
    presetsFor(at(path), Request::MultipleFiles);
    QCOMPARE(log.messages(), QStringList());
}

QTEST_GUILESS_MAIN(StartPathTest)
#include "StartPathTest.moc"
