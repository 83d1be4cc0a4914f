// SPDX-License-Identifier: MIT
// The library and its module of native panels, as a host has them on its disk:
// in some folder that nothing but the library itself leads to.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

const QString moduleFolder = "VyFileDialogs/";
const QString moduleName = moduleFolder + QFileInfo(VY_MODULE).fileName();

QString warning(const QString& reason)
{
    return "VyFileDialogs: no native panel can be shown: " + reason + '\n';
}

const QString noDisplay = warning("no X display answers; see DISPLAY");

} // namespace

class NativeModuleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void isLoadedByTheFirstRequest();
    void isLoadedOnAnyThread();
    void mayBeMissing_data();
    void mayBeMissing();
    void outlivesItsHost_data();
    void outlivesItsHost();
    void outlivesAPreview();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    void put(const QString& file, const QString& name)
    {
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
        QVERIFY2(QFile::copy(file, path(name)), qPrintable(file));
    }
    void run(const QString& steps, const QString& folder = QDir::rootPath());

    std::unique_ptr<QTemporaryDir> m_folder;
    QProcessEnvironment m_environment;
    QString m_output;
    QString m_errors;
};

void NativeModuleTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_environment = QProcessEnvironment::systemEnvironment();
    for (const char* const file : {VY_PLUGIN, VY_LIBRARY, VY_KERNEL})
        put(file, QFileInfo(file).fileName());
}

// The host takes \a steps in \a folder, and they all go well.
void NativeModuleTest::run(const QString& steps, const QString& folder)
{
    QProcess host;
    host.setWorkingDirectory(folder);
    host.setProcessEnvironment(m_environment);
    host.start(VY_HOST, QStringList(path(QFileInfo(VY_PLUGIN).fileName())) + steps.split(' '));
    QVERIFY(host.waitForFinished(60000));
    m_output = QString::fromLocal8Bit(host.readAllStandardOutput());
    m_errors = QString::fromLocal8Bit(host.readAllStandardError());
    QVERIFY2(host.exitStatus() == QProcess::NormalExit && host.exitCode() == 0,
             qPrintable(m_output + m_errors));
}

// And by no other: a host that shows Qt's dialog never pays for it.
void NativeModuleTest::isLoadedByTheFirstRequest()
{
    put(VY_MODULE, moduleName);
    run("load qt modules native modules native modules");
    QCOMPARE(m_output, QString("load ok\n"
                               "qt -5002\nmodules 0, GNUstep no\n"
                               "native -5001\nmodules 1, GNUstep yes\n"
                               "native -5001\nmodules 1, GNUstep yes\n"));
    QCOMPARE(m_errors, noDisplay + noDisplay);
}

// The first request may be a wrong one, which is refused; the next is a right one.
void NativeModuleTest::isLoadedOnAnyThread()
{
    put(VY_MODULE, moduleName);
    run("load thread modules native");
    QCOMPARE(m_output, QString("load ok\nthread -5001\nmodules 1, GNUstep yes\nnative -5001\n"));
    QCOMPARE(m_errors, warning("this is not the user-interface thread") + noDisplay);
}

void NativeModuleTest::mayBeMissing_data()
{
    QTest::addColumn<QString>("file"); // what is in the module's place
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason"); // with %1 for the module's path

    const QString absent = "%1: cannot open shared object file: No such file or directory";
    QTest::newRow("absent") << ""
                            << "" << absent;
    QTest::newRow("of another version")
        << VY_MODULE << moduleFolder + "libVyFileDialogsNative-0.9.9.so" << absent;
    QTest::newRow("empty") << "/dev/null" << moduleName << "%1: file too short";
    QTest::newRow("damaged") << QFINDTESTDATA("NativeModuleTest.cpp") << moduleName
                             << "%1: invalid ELF header";
    QTest::newRow("a folder") << "/" << moduleName << "%1: cannot read file data: Is a directory";
    QTest::newRow("without its entry point")
        << VY_WITHOUT_ENTRY << moduleName << "%1: undefined symbol: VyCreateNativeDialog";
    QTest::newRow("without a library that it needs")
        << VY_WITHOUT_LIBRARY << moduleName
        << "libNotInstalled.so: cannot open shared object file: No such file or directory";
}

// The request fails as in a build without native panels, each time with one
// warning, and the Qt style goes on.
void NativeModuleTest::mayBeMissing()
{
    QFETCH(QString, file);
    QFETCH(QString, name);
    QFETCH(QString, reason);
    if (file == "/")
        QVERIFY(QDir().mkpath(path(name)));
    else if (!file.isEmpty())
        put(file, name);

    run("load native native qt");
    QCOMPARE(m_output, QString("load ok\nnative -5001\nnative -5001\nqt -5002\n"));
    const QString expected = warning(reason.replace("%1", path(moduleName)));
    QCOMPARE(m_errors, expected + expected);
}

void NativeModuleTest::outlivesItsHost_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<int>("nativeRequests");

    QTest::newRow("at exit") << "load qt native" << 1;
    QTest::newRow("nothing asked") << "load unload load unload" << 0;
    QTest::newRow("Qt, let go of") << "load qt unload" << 0;
    QTest::newRow("Qt, again") << "load qt unload load qt unload load qt" << 0;
    QTest::newRow("native, let go of") << "load native unload" << 1;
    QTest::newRow("native, again") << "load native unload load native unload load native" << 3;
    QTest::newRow("both, again") << "load qt native unload load native qt unload" << 2;
}

// A plug-in that a host unloads takes the library with it, whenever that is.
void NativeModuleTest::outlivesItsHost()
{
    QFETCH(QString, steps);
    QFETCH(int, nativeRequests);
    put(VY_MODULE, moduleName);
    run(steps + " modules");

    QString expected;
    for (const QString& step : steps.split(' '))
        expected += step + (step == "qt" ? " -5002\n" : step == "native" ? " -5001\n" : " ok\n");
    expected += nativeRequests ? "modules 1, GNUstep yes\n" : "modules 0, GNUstep no\n";
    QCOMPARE(m_output, expected);
    QCOMPARE(m_errors, noDisplay.repeated(nativeRequests));
}

// What is left to do may be in the middle of the library's code.
void NativeModuleTest::outlivesAPreview()
{
#ifdef VY_SLOW_SHARE
    const QString share = path("share");
    QVERIFY(QDir().mkdir(share));
    QVERIFY(QFile::copy(QFINDTESTDATA("../../examples/drawings/gear.dxf"), share + "/plan.dxf"));
    m_environment.insert("LD_PRELOAD", VY_SLOW_SHARE);
    m_environment.insert("VY_SLOW_SHARE", share);
    m_environment.insert("VY_SLOW_SHARE_MS", "100");
    m_environment.insert("VY_SLOW_SHARE_LOG", path("log"));
    run("load preview unload wait", share);
    QCOMPARE(m_output, QString("load ok\npreview -5002\nunload ok\nwait ok\n"));

    QFile log(path("log"));
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QByteArray last = log.readAll().trimmed().split('\n').last();
    QVERIFY2(last.endsWith("plan.dxf") && !last.startsWith("main"), last.constData());
#else
    QSKIP("needs a library to be preloaded, which the sanitizers do not allow");
#endif
}

QTEST_GUILESS_MAIN(NativeModuleTest)
#include "NativeModuleTest.moc"
