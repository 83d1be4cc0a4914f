// SPDX-License-Identifier: MIT
// The system around a panel fails: the settings cannot be written, the file system
// is slow, the display dies. Each in a process of its own.
#include "PanelFaultTest.h"

#include "PlainUser.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>

#include <csignal>
#include <cstdio>
#include <optional>

#include <sys/resource.h>

namespace {

constexpr int promptly = 5000; // milliseconds

// A display of its own, with nobody in front of it.
class OwnDisplay
{
public:
    OwnDisplay()
        : m_name(QStringLiteral(":%1").arg(QRandomGenerator::global()->bounded(1000, 50000)))
    {
        m_server.start(QStringLiteral("Xvfb"), {m_name, "-displayfd", "1", "-screen", "0",
                                                "1024x768x24", "-nolisten", "tcp"});
        if (!m_server.waitForReadyRead(10000))
            QTest::qFail("the display did not come", __FILE__, __LINE__);
    }
    ~OwnDisplay() { die(); }
    Q_DISABLE_COPY(OwnDisplay)

    QString name() const { return m_name; }
    void die()
    {
        m_server.kill();
        m_server.waitForFinished();
    }

private:
    const QString m_name;
    QProcess m_server;
};

// While it lives no file grows.
class FullDisk
{
public:
    FullDisk()
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit none = m_before;
        none.rlim_cur = 0;
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*const m_handler)(int);
    rlimit m_before = {};
};

} // namespace

/// Requests of a process whose system has a fault.
class FaultySystemTest : public PanelFaultTest
{
    Q_OBJECT

public:
    explicit FaultySystemTest(bool fullDisk)
        : m_fullDisk(fullDisk)
    {}

private Q_SLOTS:
    void answers_data();
    void answers();

private:
    void writeSettings() const;

    const bool m_fullDisk;
};

// GNUstep does so from time to time.
void FaultySystemTest::writeSettings() const
{
    std::optional<FullDisk> disk;
    if (m_fullDisk)
        disk.emplace();
    NSUserDefaults* const settings = [NSUserDefaults standardUserDefaults];
    [settings setObject:@"1" forKey:@"VyChanged"];
    [settings synchronize];
    QFile file(path("probe"));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    QCOMPARE(file.write("1"), qint64(m_fullDisk ? -1 : 1));
}

void FaultySystemTest::answers_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::newRow("open") << unsigned(CVyUserIO::FileNameOpen);
    QTest::newRow("save") << unsigned(CVyUserIO::FileNameSave);
}

void FaultySystemTest::answers()
{
    QFETCH(unsigned, type);
    const bool saves = type == CVyUserIO::FileNameSave;
    addFile("plan.dwg");
    HostRequest host = faultyRequest(type);
    run(host, {chooseType(2), click({"plan.dwg"}), typeName(saves ? "new.dwg" : "plan.dwg"),
               onPanel([this](NSSavePanel* panel) {
                   writeSettings();
                   [panel setFrame:NSMakeRect(100, 100, 700, 600) display:YES];
               }),
               accept()});
    compareAccepted(host, path(saves ? "new.dwg" : "plan.dwg"));
}

class PanelSystemFaultsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void answersWithoutSettings_data();
    void answersWithoutSettings();
    void answersOnASlowFileSystem();
    void endsWithItsDisplay_data();
    void endsWithItsDisplay();

private:
    QString folder(const QString& name) const;
    QProcessEnvironment ownEnvironment();
    void useSettingsIn(const QString& folder);
    void compareAnswers(const QStringList& arguments);

    QTemporaryDir m_folder{"/tmp/vy-XXXXXX"}; // short, for the sockets in it
    QProcessEnvironment m_environment;
    int m_processes = 0;
};

// All that such a process writes has a place of its own.
void PanelSystemFaultsTest::initTestCase()
{
    QVERIFY(QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755)));
    m_environment = QProcessEnvironment::systemEnvironment();
    for (const auto& [variable, name] : {std::pair("HOME", "home"), std::pair("TMPDIR", "files")}) {
        QVERIFY(QDir(m_folder.path()).mkdir(name));
        QVERIFY(QFile::setPermissions(folder(name), QFile::Permissions(0x7777)));
        m_environment.insert(variable, folder(name));
    }
    useSettingsIn(folder("settings"));
}

QString PanelSystemFaultsTest::folder(const QString& name) const
{
    return m_folder.filePath(name);
}

// GNUstep's servers that one process starts are not there for the next one.
QProcessEnvironment PanelSystemFaultsTest::ownEnvironment()
{
    const QString sockets = QString::number(++m_processes);
    QDir(m_folder.path()).mkdir(sockets);
    QFile::setPermissions(folder(sockets), QFile::Permissions(0x7777));
    QProcessEnvironment result = m_environment;
    result.insert("TEMP", folder(sockets));
    return result;
}

// See gnustep.sh.
void PanelSystemFaultsTest::useSettingsIn(const QString& place)
{
    QFile before(qEnvironmentVariable("GNUSTEP_CONFIG_FILE"));
    QVERIFY(before.open(QIODevice::ReadOnly));
    QByteArray text = before.readAll();
    text.replace("GNUSTEP_USER_DEFAULTS_DIR=", "# ");
    text += "\nGNUSTEP_USER_DEFAULTS_DIR=" + QFile::encodeName(place) + '\n';
    QFile now(folder("GNUstep.conf"));
    QVERIFY(now.open(QIODevice::WriteOnly));
    QCOMPARE(now.write(text), qint64(text.size()));
    m_environment.insert("GNUSTEP_CONFIG_FILE", now.fileName());
}

void PanelSystemFaultsTest::compareAnswers(const QStringList& arguments)
{
    QProcess host;
    host.setProcessEnvironment(ownEnvironment());
    host.setProcessChannelMode(QProcess::MergedChannels);
    host.start(QCoreApplication::applicationFilePath(), arguments);
    QVERIFY(host.waitForFinished());
    const QByteArray said = host.readAll();
    QVERIFY2(host.exitStatus() == QProcess::NormalExit && host.exitCode() == 0, said.constData());
}

void PanelSystemFaultsTest::answersWithoutSettings_data()
{
    QTest::addColumn<QString>("argument");
    QTest::newRow("folder that cannot be written") << "--read-only";
    QTest::newRow("full disk") << "--full";
}

void PanelSystemFaultsTest::answersWithoutSettings()
{
    QFETCH(QString, argument);
    QDir(m_folder.path()).mkdir("settings");
    const int mode = argument == "--full" ? 0x7777 : 0x5555;
    QVERIFY(QFile::setPermissions(folder("settings"), QFile::Permissions(mode)));
    compareAnswers({argument});
    QVERIFY(QFile::setPermissions(folder("settings"), QFile::Permissions(0x7777)));
}

void PanelSystemFaultsTest::answersOnASlowFileSystem()
{
#ifdef VY_SLOW_SHARE
    const QProcessEnvironment before = m_environment;
    m_environment.insert("LD_PRELOAD", VY_SLOW_SHARE);
    m_environment.insert("VY_SLOW_SHARE", folder("files"));
    m_environment.insert("VY_SLOW_SHARE_MS", "10");
    compareAnswers({"--request"});
    m_environment = before;
#else
    QSKIP("needs a library to be preloaded, which the sanitizers do not allow");
#endif
}

void PanelSystemFaultsTest::endsWithItsDisplay_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("open") << "open";
    QTest::newRow("save") << "save";
}

// Nobody can go on without it: GNUstep and Qt both end the process.
void PanelSystemFaultsTest::endsWithItsDisplay()
{
    QFETCH(QString, kind);
    const QString drawings = folder(kind);
    QVERIFY(QDir().mkdir(drawings));
    QFile plan(drawings + "/plan.dwg");
    QVERIFY(plan.open(QIODevice::ReadWrite) && plan.write("AC1027") == 6 && plan.flush());

    OwnDisplay display;
    QProcessEnvironment environment = ownEnvironment();
    environment.insert("DISPLAY", display.name());
    QProcess host;
    host.setProcessEnvironment(environment);
    host.start(QCoreApplication::applicationFilePath(), {"--" + kind, plan.fileName()});
    QVERIFY2(host.waitForReadyRead(), host.readAllStandardError().constData());
    QCOMPARE(host.readAllStandardOutput(), QByteArray("up\n"));

    display.die();
    QVERIFY(host.waitForFinished(promptly));
    QCOMPARE(host.exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.exitCode(), 1);
    QCOMPARE(host.readAllStandardOutput(), QByteArray());
    QVERIFY(plan.seek(0));
    QCOMPARE(plan.readAll(), QByteArray("AC1027"));
    QCOMPARE(QDir(drawings).entryList(QDir::Files), QStringList("plan.dwg"));
}

namespace {

// A host that says when its panel is up, and what it was answered.
int showPanel(unsigned type, const char* path)
{
    if (!VyCocoa::canShowPanels())
        return 2;
    HostRequest host;
    host.type = type;
    host.start = QFile::decodeName(path);
    CVyFileDialog::SetStyle(CVyFileDialog::StyleNative);
    const PanelDriver driver({[](NSWindow*) {
        std::puts("up");
        std::fflush(stdout);
    }});
    std::printf("answered %d\n", host.getFileName({}));
    return 0;
}

int request(const char* program, bool fullDisk)
{
    FaultySystemTest test(fullDisk);
    return QTest::qExec(&test, QStringList(QString::fromLocal8Bit(program)));
}

} // namespace

int main(int argc, char* argv[])
{
    const QByteArray order = argc > 1 ? argv[1] : "";
    std::optional<PlainUser> user;
    if (order == "--read-only")
        user.emplace();
    QApplication application(argc, argv);
    if (order == "--open" || order == "--save")
        return showPanel(order == "--open" ? CVyUserIO::FileNameOpen : CVyUserIO::FileNameSave,
                         argv[2]);
    if (order == "--read-only" || order == "--full" || order == "--request")
        return request(argv[0], order == "--full");
    PanelSystemFaultsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PanelSystemFaultsTest.moc"
