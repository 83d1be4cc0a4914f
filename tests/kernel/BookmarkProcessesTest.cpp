// SPDX-License-Identifier: MIT
// Several processes with one store. This program is all of them: with arguments
// it is one that does what they say.
#include "BookmarkTest.h"
#include "VySystemBookmark.h"

#include <QProcess>

#include <cstdio>

namespace {

QString numbered(const QString& name, int number)
{
    return QStringLiteral("/%1/%2.dwg").arg(name).arg(number);
}

// Puts count files into the store, each followed by a line on the output.
int addFiles(const QString& store, const QString& name, int count)
{
    CVyBookmarkList list(store);
    for (int number = 1; number <= count; ++number) {
        list.add({numbered(name, number), {}, {}});
        std::printf("%d\n", number);
        std::fflush(stdout);
    }
    return 0;
}

} // namespace

class BookmarkProcessesTest : public BookmarkTest
{
    Q_OBJECT

private Q_SLOTS:
    void loseNothingOfEachOther();
    void takeTurns();
    void survivesKills();
    void takesTheLatestOfAFile();
    void keepsTheOrderOfChoice_data();
    void keepsTheOrderOfChoice();
    void tellsTheTimesApart();
    void survivesTheEndOfTime();
    void clearsWhatWasNotWritten();

private:
    std::unique_ptr<QProcess> start(const QString& name, int count) const;
};

std::unique_ptr<QProcess> BookmarkProcessesTest::start(const QString& name, int count) const
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QCoreApplication::applicationFilePath(),
                   {QStringLiteral("--add"), store(), name, QString::number(count)});
    return process;
}

void BookmarkProcessesTest::loseNothingOfEachOther()
{
    const QStringList processNames{"one", "two", "three", "four"};
    std::vector<std::unique_ptr<QProcess>> processes;
    for (const QString& name : processNames)
        processes.push_back(start(name, 25));
    for (const auto& process : processes) {
        QVERIFY(process->waitForFinished());
        QCOMPARE(process->exitCode(), 0);
        QCOMPARE(process->readAllStandardOutput().count('\n'), 25);
    }
    const QStringList stored = storedPaths();
    QCOMPARE(stored.size(), 100);
    for (const QString& name : processNames) {
        QStringList own;
        for (int number = 25; number >= 1; --number)
            own.append(numbered(name, number));
        QCOMPARE(stored.filter('/' + name + '/'), own);
    }
    QCOMPARE(names(), QStringList("bookmarks.jsonl"));
}

void BookmarkProcessesTest::takeTurns()
{
    CVyBookmarkList one(store());
    CVyBookmarkList other(store());
    add(one, "/a");
    add(other, "/b");
    add(one, "/c");
    QCOMPARE(paths(one), QStringList({"/c", "/b", "/a"}));
    QCOMPARE(paths(other), QStringList({"/b", "/a"}));
    add(other, "/a");
    QCOMPARE(paths(other), QStringList({"/a", "/c", "/b"}));
    QCOMPARE(storedPaths(), paths(other));
}

// At any moment: what a process said to be written is there.
void BookmarkProcessesTest::survivesKills()
{
    for (int round = 0; round < 15; ++round) {
        const QString name = QStringLiteral("round%1").arg(round);
        const auto process = start(name, 100000);
        QVERIFY(process->waitForReadyRead());
        QTest::qSleep(1 + round * 3);
        process->kill();
        QVERIFY(process->waitForFinished());
        const int said = process->readAllStandardOutput().count('\n');
        const QStringList own = storedPaths().filter('/' + name + '/');
        const int written = QFileInfo(own.value(0)).completeBaseName().toInt();
        QVERIFY2(said >= 1 && (written == said || written == said + 1), qPrintable(own.value(0)));
    }
}

void BookmarkProcessesTest::takesTheLatestOfAFile()
{
    newFile("a");
    CVyBookmarkList one(store());
    CVyBookmarkList other(store());
    add(one, in("a"));
    add(one, "/b");
    QVERIFY(QFile::rename(in("a"), in("z")));
    add(other, in("z"));
    add(one, "/c");
    QCOMPARE(paths(one), QStringList({"/c", in("z"), "/b"}));
}

void BookmarkProcessesTest::keepsTheOrderOfChoice_data()
{
    QTest::addColumn<int>("year");

    QTest::newRow("clock right") << 2020;
    QTest::newRow("clock set back, or another's ahead") << 2900;
}

void BookmarkProcessesTest::keepsTheOrderOfChoice()
{
    QFETCH(int, year);
    newFile("bookmarks.jsonl", "{\"format\":\"bookmarks\",\"version\":1}\n" +
                                   entryLine("/b", year) + entryLine("/a", year - 1));
    const QDateTime before({year, 5, 17}, {9, 30}, Qt::UTC);
    CVyBookmarkList list(store());
    add(list, "/c");
    add(list, "/d");
    add(list, "/a");
    QCOMPARE(paths(list), QStringList({"/a", "/d", "/c", "/b"}));
    QCOMPARE(storedPaths(), paths(list));
    const QList<VyBookmark> bookmarks = list.bookmarks();
    QCOMPARE(bookmarks[3].chosen, before);
    for (int i = 0; i < 3; ++i)
        QVERIFY(bookmarks[i].chosen > bookmarks[i + 1].chosen);

    list.clear();
    add(list, "/e");
    QCOMPARE(storedPaths(), QStringList("/e"));
}

// A panel hands over many files at a time.
void BookmarkProcessesTest::tellsTheTimesApart()
{
    CVyBookmarkList list{QString()};
    for (int number = 0; number < 100; ++number)
        add(list, QString::number(number));
    const QList<VyBookmark> bookmarks = list.bookmarks();
    for (int i = 1; i < bookmarks.size(); ++i)
        QVERIFY(bookmarks[i - 1].chosen > bookmarks[i].chosen);
}

// There is no time after it that has a text.
void BookmarkProcessesTest::survivesTheEndOfTime()
{
    newFile("bookmarks.jsonl", "{\"format\":\"bookmarks\",\"version\":1}\n"
                               "{\"chosen\":\"9999-12-31T23:59:59.999Z\",\"path\":\"/a\"}\n");
    CVyBookmarkList list(store());
    add(list, "/b");
    add(list, "/c");
    QCOMPARE(storedPaths(), QStringList({"/c", "/b", "/a"}));
}

// Not even when others have written meanwhile, but only what is older.
void BookmarkProcessesTest::clearsWhatWasNotWritten()
{
    CVyBookmarkList list(store());
    CVyBookmarkList other(store());
    add(list, "/a");
    add(other, "/b");
    QVERIFY(QDir().mkpath(store() + ".lock"));
    list.clear();
    add(list, "/c");
    QCOMPARE(paths(list), QStringList("/c"));
    QCOMPARE(takeMessages().size(), 1);
    QVERIFY(QDir().rmdir(store() + ".lock"));
    QTest::qSleep(5);
    add(other, "/d");
    QCOMPARE(paths(other), QStringList({"/d", "/b", "/a"}));
    add(list, "/e");
    QCOMPARE(paths(list), QStringList({"/e", "/d", "/c"}));
    QCOMPARE(storedPaths(), paths(list));
}

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--add"))
        return addFiles(arguments.value(2), arguments.value(3), arguments.value(4).toInt());
    BookmarkProcessesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "BookmarkProcessesTest.moc"
