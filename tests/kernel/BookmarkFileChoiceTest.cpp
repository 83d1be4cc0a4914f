// SPDX-License-Identifier: MIT
// Which file a process keeps its list in. That is settled once in a process, so
// this program is also each of the processes: with arguments it does what
// they say.
#include "VyBookmarks.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>

#include <unistd.h>

namespace {

void print(const QString& text)
{
    std::printf("%s\n", text.toUtf8().constData());
}

void take(const QString& step)
{
    const QString value = step.mid(step.indexOf('=') + 1);
    if (step.startsWith("file="))
        print(VySetBookmarkFile(value) ? "named" : "refused");
    else if (step.startsWith("add="))
        VyAddBookmark(value);
    else if (step.startsWith("bytes="))
        VyAddBookmarkOfBytes(QByteArray::fromPercentEncoding(value.toLatin1()));
    else if (step.startsWith("folder="))
        QDir::setCurrent(value);
    else if (step.startsWith("find="))
        print("found " + CVyBookmarkedFile({value, {}, {}}).path());
    else if (step == "find first")
        print("found " +
              QString::fromLatin1(
                  CVyBookmarkedFile(VyBookmarks().constFirst()).bytes().toPercentEncoding("/")));
    else if (step == "clear")
        VyClearBookmarks();
    else
        for (const VyBookmark& bookmark : VyBookmarks())
            print(bookmark.path);
}

// A host that has the names and takes the steps; without an application object
// where it has no name.
int runHost(int argc, char* argv[])
{
    const QString application = QString::fromUtf8(argv[2]);
    std::unique_ptr<QCoreApplication> object;
    if (!application.isEmpty())
        object = std::make_unique<QCoreApplication>(argc, argv);
    QCoreApplication::setApplicationName(application);
    QCoreApplication::setOrganizationName(QString::fromUtf8(argv[3]));
    for (int i = 4; i < argc; ++i)
        take(QString::fromUtf8(argv[i]));
    return 0;
}

const QStringList listOnly{"list"};

} // namespace

class BookmarkFileChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void isInTheApplicationsFolder_data();
    void isInTheApplicationsFolder();
    void isNowhereWithoutAFolder_data();
    void isNowhereWithoutAFolder();
    void isNotAnotherUsers();
    void isTheNamedFile_data();
    void isTheNamedFile();
    void isNoneWhereNoneIsNamed();
    void isNamedBeforeTheFirstUse_data();
    void isNamedBeforeTheFirstUse();
    void isNotTouchedBeforeTheFirstUse();
    void findsFiles();
    void holdsBytes();

private:
    QString run(const QString& application, const QString& organization, const QStringList& steps);
    QString data(const QString& name = QString()) const { return m_data->filePath(name); }
    QStringList files() const;

    std::unique_ptr<QTemporaryDir> m_data;
    QString m_dataHome;
    QStringList m_messages;
};

void BookmarkFileChoiceTest::init()
{
    m_data = std::make_unique<QTemporaryDir>();
    QVERIFY(m_data->isValid());
    m_dataHome = m_data->path();
}

// What the host prints; what it logs is in m_messages.
QString BookmarkFileChoiceTest::run(const QString& application, const QString& organization,
                                    const QStringList& steps)
{
    QProcess host;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_DATA_HOME", m_dataHome);
    host.setProcessEnvironment(environment);
    host.start(QCoreApplication::applicationFilePath(),
               QStringList{"--host", application, organization} + steps);
    if (!host.waitForFinished() || host.exitStatus() != QProcess::NormalExit)
        return "the host did not end";
    m_messages = QString::fromUtf8(host.readAllStandardError()).split('\n', Qt::SkipEmptyParts);
    return QString::fromUtf8(host.readAllStandardOutput()).split('\n').join(' ').trimmed();
}

// All of them, from the data folder.
QStringList BookmarkFileChoiceTest::files() const
{
    QStringList list;
    QDirIterator entries(data(), QDir::Files | QDir::Hidden | QDir::System,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        list.append(QDir(data()).relativeFilePath(entries.next()));
    list.sort();
    return list;
}

void BookmarkFileChoiceTest::isInTheApplicationsFolder_data()
{
    QTest::addColumn<QString>("application");
    QTest::addColumn<QString>("organization");
    QTest::addColumn<QString>("file");

    QTest::newRow("application") << "Plan"
                                 << ""
                                 << "Plan/bookmarks.jsonl";
    QTest::newRow("with an organisation") << "Plan"
                                          << "Acme"
                                          << "Acme/Plan/bookmarks.jsonl";
    QTest::newRow("blanks") << "My Plan 2.0"
                            << "A & B"
                            << "A & B/My Plan 2.0/bookmarks.jsonl";
    QTest::newRow("dots in the name") << "..plan"
                                      << ""
                                      << "..plan/bookmarks.jsonl";
}

void BookmarkFileChoiceTest::isInTheApplicationsFolder()
{
    QFETCH(QString, application);
    QFETCH(QString, organization);
    QFETCH(QString, file);

    QCOMPARE(run(application, organization, {"add=/a", "list"}), QString("/a"));
    QCOMPARE(m_messages, QStringList());
    QCOMPARE(files(), QStringList(file));
    QCOMPARE(run(application, organization, listOnly), QString("/a"));
    QCOMPARE(run("Other", organization, listOnly), QString());
}

void BookmarkFileChoiceTest::isNowhereWithoutAFolder_data()
{
    QTest::addColumn<QString>("application");
    QTest::addColumn<QString>("organization");

    QTest::newRow("no name") << ""
                             << "";
    QTest::newRow("no name, but an organisation") << ""
                                                  << "Acme";
    QTest::newRow("this folder") << "."
                                 << "";
    QTest::newRow("the folder above") << ".."
                                      << "Acme";
    QTest::newRow("above all") << "../../x"
                               << "";
    QTest::newRow("somebody else's folder") << "x/../../Other"
                                            << "";
    QTest::newRow("organisation above") << "Plan"
                                        << "..";
    QTest::newRow("organisation with separators") << "Plan"
                                                  << "../Other";
}

void BookmarkFileChoiceTest::isNowhereWithoutAFolder()
{
    QFETCH(QString, application);
    QFETCH(QString, organization);

    m_dataHome = data("one/two");
    QVERIFY(QDir().mkpath(m_dataHome));
    QCOMPARE(run(application, organization, {"add=/a", "add=/b", "list", "clear"}),
             QString("/b /a"));
    QCOMPARE(m_messages.size(), 1);
    QVERIFY(m_messages[0].startsWith("VyHostKernel: bookmarks: kept in memory alone"));
    QCOMPARE(files(), QStringList());
}

// As when sudo leaves the home folder the user's.
void BookmarkFileChoiceTest::isNotAnotherUsers()
{
    if (geteuid() == 0)
        QCOMPARE(chown(QFile::encodeName(data()).constData(), 65534, 65534), 0);
    else
        m_dataHome = "/";
    QCOMPARE(run("Plan", "", {"add=/a", "list"}), QString("/a"));
    QCOMPARE(m_messages.size(), 1);
    QVERIFY(m_messages[0].endsWith("belongs to another user"));
    QCOMPARE(files(), QStringList());
}

void BookmarkFileChoiceTest::isTheNamedFile_data()
{
    QTest::addColumn<QString>("application");
    QTest::addColumn<bool>("isRelative");

    QTest::newRow("absolute") << "Plan" << false;
    QTest::newRow("relative") << "Plan" << true;
    QTest::newRow("of an application without a name") << "" << false;
}

void BookmarkFileChoiceTest::isTheNamedFile()
{
    QFETCH(QString, application);
    QFETCH(bool, isRelative);

    const QString file = isRelative ? "here/list" : data("here/list");
    QCOMPARE(run(application, "",
                 {"folder=" + data(), "file=" + data("wrong"), "file=" + file, "folder=/", "add=/a",
                  "list"}),
             QString("named named /a"));
    QCOMPARE(m_messages, QStringList());
    QCOMPARE(files(), QStringList("here/list"));
    QCOMPARE(run(application, "", {"file=" + data("here/list"), "list"}), QString("named /a"));
}

void BookmarkFileChoiceTest::isNoneWhereNoneIsNamed()
{
    QCOMPARE(run("Plan", "", {"file=", "add=/a", "list"}), QString("named /a"));
    QCOMPARE(m_messages, QStringList());
    QCOMPARE(files(), QStringList());
    QCOMPARE(run("", "", {"file=", "add=/a", "list"}), QString("named /a"));
    QCOMPARE(m_messages, QStringList());
}

void BookmarkFileChoiceTest::isNamedBeforeTheFirstUse_data()
{
    QTest::addColumn<QString>("use");
    QTest::addColumn<QString>("printed");

    QTest::newRow("asked for") << "list"
                               << "refused";
    QTest::newRow("changed") << "add=/a"
                             << "refused";
    QTest::newRow("cleared") << "clear"
                             << "refused";
    QTest::newRow("searched") << "find=/nowhere"
                              << "found  refused";
}

void BookmarkFileChoiceTest::isNamedBeforeTheFirstUse()
{
    QFETCH(QString, use);
    QFETCH(QString, printed);

    QCOMPARE(run("Plan", "", {use, "file=" + data("late"), "add=/a"}), printed);
    QCOMPARE(m_messages.size(), 1);
    QVERIFY(m_messages[0].contains("named too late"));
    QCOMPARE(files(), QStringList("Plan/bookmarks.jsonl"));
}

void BookmarkFileChoiceTest::isNotTouchedBeforeTheFirstUse()
{
    QVERIFY(QDir().mkpath(data("Plan/bookmarks.jsonl")));
    QCOMPARE(run("Plan", "", {"file=" + data("other")}), QString("named"));
    QCOMPARE(m_messages, QStringList());
    QVERIFY(QDir(data("Plan/bookmarks.jsonl")).exists());
}

void BookmarkFileChoiceTest::findsFiles()
{
    QFile file(data("a"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QCOMPARE(run("Plan", "", {"add=" + data("a"), "find=" + data("a")}), "found " + data("a"));
    QVERIFY(QFile::rename(data("a"), data("b")));
    QCOMPARE(run("Plan", "", {"find=" + data("a"), "list"}),
             "found " + data("b") + " " + data("b"));
}

void BookmarkFileChoiceTest::holdsBytes()
{
    QCOMPARE(run("Plan", "", {"bytes=/a%C3%A4", "bytes=/b%FF", "list"}),
             QString::fromUtf8("/b\xef\xbf\xbd /a\xc3\xa4"));

    const QByteArray path = QFile::encodeName(data()) + "/\xff";
    FILE* const file = std::fopen(path.constData(), "w");
    QVERIFY(file);
    std::fclose(file);
    QCOMPARE(run("Plan", "",
                 {"clear", QString("bytes=" + QString(path.toPercentEncoding("/"))), "find first"}),
             "found " + QString::fromLatin1(path.toPercentEncoding("/")));
    QCOMPARE(std::remove(path.constData()), 0); // QTemporaryDir cannot
    QCOMPARE(run("Plan", "", {"find first"}), QString("found"));
}

int main(int argc, char* argv[])
{
    if (argc > 3 && qstrcmp(argv[1], "--host") == 0)
        return runHost(argc, argv);
    QCoreApplication application(argc, argv);
    BookmarkFileChoiceTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "BookmarkFileChoiceTest.moc"
