// SPDX-License-Identifier: MIT
// What is said about options that the dialogs tolerate.
#include "Warnings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

class WarningsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void filter_data();
    void filter();
    void typeIndex_data();
    void typeIndex();
    void startPath_data();
    void startPath();
    void unreadableFolder();
    void replacementCharacter();
    void templateFolder_data();
    void templateFolder();
    void everythingAtOnce();

private:
    QString in(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

// A folder with one thing of each kind.
void WarningsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QFile file(in("plan.dwg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(QDir(m_folder->path()).mkdir("folder"));
    QCOMPARE(mkfifo(QFile::encodeName(in("fifo")).constData(), 0600), 0);
    QVERIFY(QFile::link(in("loop"), in("loop")));
    QVERIFY(QFile::link(in("gone"), in("dangling")));
    QVERIFY(QFile::link(in("plan.dwg"), in("link")));
}

void WarningsTest::filter_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("expected");

    const auto row = [](const char* name, const char* filter, const QStringList& expected) {
        QTest::newRow(name) << QString::fromUtf8(filter) << expected;
    };
    row("one type", "Drawings&*.dwg;*.dxf", {});
    row("two types", "Drawings&*.dwg&All files&*", {});
    row("separator at the end", "Drawings&*.dwg&", {});
    row("empty pair in the middle", "A&*.a&&&B&*.b", {});
    row("empty", "", {"the filter names no file type"});
    row("separators alone", "&&&", {"the filter names no file type"});
    row("description alone", "Drawings", {"the file type 'Drawings' has no patterns"});
    row("last without patterns", "A&*.a&B", {"the file type 'B' has no patterns"});
    row("first without patterns", "A&&B&*.b", {"the file type 'A' has no patterns"});
    row("without description", "&*.dwg", {"the file type '*.dwg' has no description"});
    row("both kinds", "&*.a&B&",
        {"the file type '*.a' has no description", "the file type 'B' has no patterns"});
}

void WarningsTest::filter()
{
    QFETCH(QString, filter);
    Options options;
    options.filter = filter;
    QTEST(warnings(options), "expected");
}

void WarningsTest::typeIndex_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("count"); // of the types; -1: no warning
    QTest::newRow("first") << "A&*.a&B&*.b" << 0 << -1;
    QTest::newRow("last") << "A&*.a&B&*.b" << 1 << -1;
    QTest::newRow("last, with an empty pair before it") << "A&*.a&&&B&*.b" << 1 << -1;
    QTest::newRow("behind the last") << "A&*.a&B&*.b" << 2 << 2;
    QTest::newRow("behind the last, with an empty pair") << "A&*.a&&&B&*.b" << 2 << 2;
    QTest::newRow("negative") << "A&*.a" << -1 << 1;
    QTest::newRow("largest") << "A&*.a" << INT_MAX << 1;
    QTest::newRow("smallest") << "A&*.a" << INT_MIN << 1;
    QTest::newRow("no filter") << QString() << 0 << 0;
}

void WarningsTest::typeIndex()
{
    QFETCH(QString, filter);
    QFETCH(int, index);
    QFETCH(int, count);
    Options options;
    if (!filter.isNull())
        options.filter = filter;
    options.typeIndex = index;
    const QString expected =
        QStringLiteral("there is no file type with index %1; the filter has %2")
            .arg(index)
            .arg(count);
    QCOMPARE(warnings(options), count < 0 ? QStringList() : QStringList{expected});
}

void WarningsTest::startPath_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("name"); // in the test's folder
    QTest::addColumn<QString>("fault");

    const unsigned open = CVyUserIO::FileNameOpen;
    const unsigned save = CVyUserIO::FileNameSave;
    const QString gone = QStringLiteral("does not exist");
    const QString neither = QStringLiteral("is neither a file nor a folder");
    const QString nowhere = QStringLiteral("is a link that leads nowhere");
    QTest::newRow("file") << open << "plan.dwg" << QString();
    QTest::newRow("folder") << open << "folder" << QString();
    QTest::newRow("folder with separator") << open << "folder/" << QString();
    QTest::newRow("folder by a detour") << open << "folder/../folder/." << QString();
    QTest::newRow("link to a file") << open << "link" << QString();
    QTest::newRow("missing file") << open << "new.dwg" << gone;
    QTest::newRow("missing template") << unsigned(CVyUserIO::FileNameNew) << "new.dwt" << gone;
    QTest::newRow("missing folder") << open << "gone/new.dwg" << gone;
    QTest::newRow("below a file") << open << "plan.dwg/x" << gone;
    QTest::newRow("fifo") << open << "fifo" << neither;
    QTest::newRow("device") << open << "/dev/null" << neither;
    QTest::newRow("looping link") << open << "loop" << nowhere;
    QTest::newRow("dangling link") << open << "dangling" << nowhere;
    QTest::newRow("name too long") << open << QString(300, QLatin1Char('x')) << gone;
    QTest::newRow("lone surrogate") << open << QString(QChar(0xd834))
                                    << "cannot be written in the local encoding of file names";
    QTest::newRow("save: a new name") << save << "new.dwg" << QString();
    QTest::newRow("save: an existing name") << save << "plan.dwg" << QString();
    QTest::newRow("save: in a missing folder") << save << "gone/new.dwg" << gone;
    QTest::newRow("save: below a file") << save << "plan.dwg/x" << gone;
    QTest::newRow("save: fifo") << save << "fifo" << neither;
    QTest::newRow("save: dangling link") << save << "dangling" << nowhere;
    QTest::newRow("save with qualifier")
        << (save | CVyUserIO::FileNameNoPreview) << "new.dwg" << QString();
}

void WarningsTest::startPath()
{
    QFETCH(unsigned, type);
    QFETCH(QString, name);
    QFETCH(QString, fault);
    Options options;
    options.type = static_cast<CVyUserIO::_FileNameType>(type);
    options.startPath = QDir(m_folder->path()).absoluteFilePath(name);
    const QString expected = QStringLiteral("the start path '%1' %2").arg(options.startPath, fault);
    QCOMPARE(warnings(options), fault.isEmpty() ? QStringList() : QStringList{expected});
}

void WarningsTest::unreadableFolder()
{
    Options options;
    options.startPath = in("folder");
    for (const auto missing : {QFile::ReadOwner, QFile::ExeOwner}) {
        const QFile::Permissions all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
        QVERIFY(QFile::setPermissions(options.startPath, all & ~missing));
        if (QFileInfo(options.startPath).isReadable() &&
            QFileInfo(options.startPath).isExecutable())
            QSKIP("this user may read every folder");
        QCOMPARE(warnings(options), QStringList{"the start path '" + options.startPath +
                                                "' is a folder that cannot be read"});
    }
}

// Stands for what an argument in another encoding is read as, unless a file has
// it in its name.
void WarningsTest::replacementCharacter()
{
    Options options;
    options.startPath = in(QString(QChar(QChar::ReplacementCharacter)));
    QCOMPARE(warnings(options),
             QStringList{"the start path '" + options.startPath +
                         "' cannot be written in the local encoding of file names"});
    QVERIFY(QDir().mkdir(options.startPath));
    QCOMPARE(warnings(options), QStringList());
}

void WarningsTest::templateFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("warned");
    QTest::newRow("folder") << "folder" << false;
    QTest::newRow("file") << "plan.dwg" << true;
    QTest::newRow("missing") << "gone" << true;
    QTest::newRow("fifo") << "fifo" << true;
    QTest::newRow("looping link") << "loop" << true;
}

void WarningsTest::templateFolder()
{
    QFETCH(QString, name);
    QFETCH(bool, warned);
    Options options;
    options.templateFolder = in(name);
    const QStringList expected{"the template folder '" + in(name) + "' is no folder"};
    QCOMPARE(warnings(options), warned ? expected : QStringList());
}

void WarningsTest::everythingAtOnce()
{
    QCOMPARE(warnings(Options()), QStringList());
    Options options;
    options.filter = QStringLiteral("%1");
    options.typeIndex = 1;
    options.startPath = in("%2");
    options.templateFolder = in("gone");
    QCOMPARE(warnings(options),
             (QStringList{"the file type '%1' has no patterns",
                          "there is no file type with index 1; the filter has 1",
                          "the start path '" + in("%2") + "' does not exist",
                          "the template folder '" + in("gone") + "' is no folder"}));
}

QTEST_GUILESS_MAIN(WarningsTest)
#include "WarningsTest.moc"
