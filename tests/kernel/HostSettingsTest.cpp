// SPDX-License-Identifier: MIT
// What a user sets in the environment, in the settings file and by installing
// templates, and which of them holds.
#include "VyHostSettings.h"
#include "VySystemServices.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

#include <algorithm>
#include <map>
#include <memory>

namespace {

QString templateFolder()
{
    return GetVySystemServices()->GetTemplateFolder();
}

int expertLevel()
{
    return GetVySystemServices()->GetSettings().GetExpertLevel();
}

void write(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(path));
}

void expectWarning(const char* part)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1String(part)));
}

const char* const noSettings = "'.*settings.ini' cannot be read, or not as a settings file";

} // namespace

class HostSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void nothingIsSet();
    void theHostComesFirst();
    void theEnvironmentComesBeforeTheFile();
    void theUsersFileComesBeforeTheSystems();
    void folderInTheEnvironment_data();
    void folderInTheEnvironment();
    void levelInTheEnvironment_data();
    void levelInTheEnvironment();
    void unusableEnvironmentLeavesTheFile();
    void readsTheFile_data();
    void readsTheFile();
    void warnsOfTheFile_data();
    void warnsOfTheFile();
    void readsNoFileThatBlocks();
    void seesAChangedFile();
    void writesNoFile();
    void findsInstalledTemplates_data();
    void findsInstalledTemplates();
    void theHostsOwnCanBeTakenBack();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString userFile() const { return path("config/Draughts/settings.ini"); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::map<QByteArray, QByteArray> m_environment;
};

void HostSettingsTest::initTestCase()
{
    QCoreApplication::setApplicationName(QStringLiteral("Draughts"));
    for (const char* name :
         {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_HOME", "XDG_DATA_DIRS"})
        m_environment[name] = qgetenv(name);
}

void HostSettingsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(path("config")));
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(path("etc")));
    qputenv("XDG_DATA_HOME", QFile::encodeName(path("data")));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(path("share") + ":" + path("opt/share")));
    qunsetenv("VY_TEMPLATE_FOLDER");
    qunsetenv("VY_EXPERT_LEVEL");
}

void HostSettingsTest::cleanup()
{
    GetVySystemServices()->SetTemplateFolder(CVyString());
    GetVySystemServices()->GetSettings().ResetExpertLevel();
    for (const auto& [name, value] : m_environment)
        qputenv(name.constData(), value);
    qunsetenv("VY_TEMPLATE_FOLDER");
    qunsetenv("VY_EXPERT_LEVEL");
}

void HostSettingsTest::nothingIsSet()
{
    QVERIFY(!VyHostSettings::templateFolder());
    QVERIFY(!VyHostSettings::expertLevel());
    QCOMPARE(expertLevel(), 0);
    QCOMPARE(templateFolder(), path("data/Draughts/templates"));
    QVERIFY(!QFile::exists(templateFolder()));
}

void HostSettingsTest::theHostComesFirst()
{
    qputenv("VY_TEMPLATE_FOLDER", "/of/environment");
    qputenv("VY_EXPERT_LEVEL", "3");
    write(userFile(), "[Dialogs]\nTemplateFolder=/of/file\nExpertLevel=2\n");
    GetVySystemServices()->SetTemplateFolder(L"/of/host");
    GetVySystemServices()->GetSettings().SetExpertLevel(1);
    QCOMPARE(templateFolder(), QStringLiteral("/of/host"));
    QCOMPARE(expertLevel(), 1);
}

void HostSettingsTest::theEnvironmentComesBeforeTheFile()
{
    write(userFile(), "[Dialogs]\nTemplateFolder=/of/file\nExpertLevel=2\n");
    qputenv("VY_TEMPLATE_FOLDER", "/of/environment");
    QCOMPARE(templateFolder(), QStringLiteral("/of/environment"));
    QCOMPARE(expertLevel(), 2);
    qputenv("VY_EXPERT_LEVEL", "0");
    QCOMPARE(expertLevel(), 0);
}

void HostSettingsTest::theUsersFileComesBeforeTheSystems()
{
    write(path("etc/Draughts/settings.ini"), "[Dialogs]\nExpertLevel=1\n");
    QCOMPARE(expertLevel(), 1);
    write(userFile(), "[Dialogs]\nExpertLevel=2\n");
    QCOMPARE(expertLevel(), 2);
}

void HostSettingsTest::folderInTheEnvironment_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("holds");

    QTest::newRow("absolute") << QByteArray("/srv/templates") << true;
    QTest::newRow("separator at the end") << QByteArray("/srv/templates/") << true;
    QTest::newRow("blanks") << QByteArray("/srv/my templates ") << true;
    QTest::newRow("comma, semicolon, quotation mark") << QByteArray("/srv/a,b;\"c\"") << true;
    QTest::newRow("Cyrillic") << QByteArray("/Шаблоны") << true;
    QTest::newRow("root") << QByteArray("/") << true;
    QTest::newRow("relative") << QByteArray("templates") << false;
    QTest::newRow("home") << QByteArray("~/templates") << false;
    QTest::newRow("blank") << QByteArray(" ") << false;
}

void HostSettingsTest::folderInTheEnvironment()
{
    QFETCH(QByteArray, value);
    QFETCH(bool, holds);

    qputenv("VY_TEMPLATE_FOLDER", value);
    if (!holds)
        expectWarning("^VyHostKernel: VY_TEMPLATE_FOLDER: '.*' is no absolute folder$");
    QCOMPARE(templateFolder(), holds ? QString::fromUtf8(value) : path("data/Draughts/templates"));
}

void HostSettingsTest::levelInTheEnvironment_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("level");

    QTest::newRow("beginner") << QByteArray("0") << 0;
    QTest::newRow("expert") << QByteArray("2") << 2;
    QTest::newRow("largest") << QByteArray("2147483647") << 2147483647;
    QTest::newRow("negative") << QByteArray("-1") << -1;
    QTest::newRow("too large") << QByteArray("2147483648") << -1;
    QTest::newRow("word") << QByteArray("high") << -1;
    QTest::newRow("fraction") << QByteArray("1.5") << -1;
    QTest::newRow("number and more") << QByteArray("2x") << -1;
}

// -1 stands for a value that is passed over.
void HostSettingsTest::levelInTheEnvironment()
{
    QFETCH(QByteArray, value);
    QFETCH(int, level);

    qputenv("VY_EXPERT_LEVEL", value);
    if (level < 0)
        expectWarning("^VyHostKernel: VY_EXPERT_LEVEL: '.*' is no whole number from 0 on$");
    QCOMPARE(expertLevel(), std::max(level, 0));
}

void HostSettingsTest::unusableEnvironmentLeavesTheFile()
{
    qputenv("VY_EXPERT_LEVEL", "high");
    write(userFile(), "[Dialogs]\nExpertLevel=2\n");
    expectWarning("VY_EXPERT_LEVEL: 'high'");
    QCOMPARE(expertLevel(), 2);
}

void HostSettingsTest::readsTheFile_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("folder");

    QTest::newRow("plain") << QByteArray("TemplateFolder=/srv/templates") << "/srv/templates";
    QTest::newRow("blanks around")
        << QByteArray("TemplateFolder = /srv/templates ") << "/srv/templates";
    QTest::newRow("blank inside") << QByteArray("TemplateFolder=/srv/my templates")
                                  << "/srv/my templates";
    QTest::newRow("quoted") << QByteArray("TemplateFolder=\"/srv/a,b;c\"") << "/srv/a,b;c";
    QTest::newRow("UTF-8") << QByteArray("TemplateFolder=/Шаблоны") << QStringLiteral("/Шаблоны");
    QTest::newRow("CR LF") << QByteArray("TemplateFolder=/srv\r") << "/srv";
    QTest::newRow("comment before") << QByteArray("; mine\nTemplateFolder=/srv") << "/srv";
    QTest::newRow("empty") << QByteArray("TemplateFolder=") << "";
    QTest::newRow("another key") << QByteArray("Folder=/srv") << "";
    QTest::newRow("another group") << QByteArray("[Other]\nTemplateFolder=/srv") << "";
}

void HostSettingsTest::readsTheFile()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, folder);

    write(userFile(), "[Dialogs]\n" + line + "\n");
    QCOMPARE(VyHostSettings::templateFolder().value_or(QString()), folder);
}

void HostSettingsTest::warnsOfTheFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("warning");

    QTest::newRow("no number") << QByteArray("[Dialogs]\nExpertLevel=high\n")
                               << QByteArray(
                                      "Dialogs/ExpertLevel in '.*settings.ini': 'high' is no "
                                      "whole number from 0 on");
    QTest::newRow("comma") << QByteArray("[Dialogs]\nExpertLevel=1,2\n")
                           << QByteArray("Dialogs/ExpertLevel in '.*settings.ini': a value with a "
                                         "comma needs quotation marks around it");
    QTest::newRow("no settings") << QByteArray("[Dialogs]\nno equals sign\n")
                                 << QByteArray(noSettings);
    QTest::newRow("too large")
        << QByteArray("[Dialogs]\nExpertLevel=2\n" + QByteArray(64 * 1024, ';'))
        << QByteArray("'.*settings.ini' is larger than 64 KiB and is not read");
}

void HostSettingsTest::warnsOfTheFile()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, warning);

    write(userFile(), content);
    expectWarning(QByteArray("^VyHostKernel: " + warning + "$").constData());
    QCOMPARE(expertLevel(), 0);
}

// A folder, a FIFO and a link to nothing under the file's name are no file.
void HostSettingsTest::readsNoFileThatBlocks()
{
    QDir().mkpath(userFile());
    QCOMPARE(expertLevel(), 0);
    QVERIFY(QDir().rmdir(userFile()));
    QCOMPARE(mkfifo(QFile::encodeName(userFile()).constData(), 0600), 0);
    QCOMPARE(expertLevel(), 0);
    QVERIFY(QFile::remove(userFile()));
    QVERIFY(QFile::link(path("nowhere"), userFile()));
    QCOMPARE(expertLevel(), 0);
}

void HostSettingsTest::seesAChangedFile()
{
    write(userFile(), "[Dialogs]\nExpertLevel=1\n");
    QCOMPARE(expertLevel(), 1);
    write(userFile(), "[Dialogs]\nExpertLevel=22\n");
    QCOMPARE(expertLevel(), 22);
    QVERIFY(QFile::remove(userFile()));
    QCOMPARE(expertLevel(), 0);
}

void HostSettingsTest::writesNoFile()
{
    write(userFile(), "[Dialogs]\nExpertLevel=1\n");
    templateFolder();
    expertLevel();
    GetVySystemServices()->GetSettings().SetExpertLevel(2);
    GetVySystemServices()->SetTemplateFolder(L"/of/host");
    QCOMPARE(QDir(path("config/Draughts")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList("settings.ini"));
    QVERIFY(!QFile::exists(path("data")));
}

void HostSettingsTest::findsInstalledTemplates_data()
{
    QTest::addColumn<QStringList>("installed");
    QTest::addColumn<QString>("found");

    const QString user = QStringLiteral("data/Draughts/templates");
    const QString system = QStringLiteral("share/Draughts/templates");
    const QString further = QStringLiteral("opt/share/Draughts/templates");
    QTest::newRow("user's own") << QStringList(user) << user;
    QTest::newRow("system's") << QStringList(system) << system;
    QTest::newRow("system's further one") << QStringList(further) << further;
    QTest::newRow("all") << QStringList({further, system, user}) << user;
    QTest::newRow("both of the system") << QStringList({further, system}) << system;
}

void HostSettingsTest::findsInstalledTemplates()
{
    QFETCH(QStringList, installed);
    QFETCH(QString, found);

    for (const QString& folder : installed)
        QVERIFY(QDir().mkpath(path(folder)));
    QCOMPARE(templateFolder(), path(found));
}

void HostSettingsTest::theHostsOwnCanBeTakenBack()
{
    qputenv("VY_TEMPLATE_FOLDER", "/of/environment");
    qputenv("VY_EXPERT_LEVEL", "3");
    GetVySystemServices()->SetTemplateFolder(L"/of/host");
    GetVySystemServices()->GetSettings().SetExpertLevel(1);
    GetVySystemServices()->SetTemplateFolder(CVyString());
    GetVySystemServices()->GetSettings().ResetExpertLevel();
    QCOMPARE(templateFolder(), QStringLiteral("/of/environment"));
    QCOMPARE(expertLevel(), 3);
}

QTEST_GUILESS_MAIN(HostSettingsTest)
#include "HostSettingsTest.moc"
