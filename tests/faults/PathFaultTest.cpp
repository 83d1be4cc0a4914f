// SPDX-License-Identifier: MIT
// Paths that lead nowhere, in circles or too far. What presets are made of a start
// path, StartPathTest tells for each.
#include "DrawingFolder.h"
#include "UnharmedHost.h"
#include "VySystemServices.h"

#include <QLineEdit>
#include <QtTest>

#include <climits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Folders in each other, so deep that the path of the last one is longer than any that
// the system takes. A program can be in it nevertheless.
class DeepFolder
{
public:
    DeepFolder()
        : m_before(open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
        QVERIFY(QDir::setCurrent(m_folder.path()));
        while (path().size() <= PATH_MAX) {
            QCOMPARE(mkdir(name, 0755), 0);
            QCOMPARE(chdir(name), 0);
            ++m_depth;
        }
        QVERIFY(QFile("deep.dwg").open(QIODevice::WriteOnly));
        m_last = open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        QCOMPARE(fchdir(m_before), 0);
    }
    ~DeepFolder()
    {
        enter();
        unlink("deep.dwg");
        for (int i = 0; i < m_depth; ++i) {
            if (chdir("..") == 0)
                rmdir(name);
        }
        static_cast<void>(fchdir(m_before));
        close(m_last);
        close(m_before);
    }
    Q_DISABLE_COPY(DeepFolder)

    QString path() const
    {
        return m_folder.path() + QString(QLatin1Char('/') + QLatin1String(name)).repeated(m_depth);
    }
    void enter() const { QCOMPARE(fchdir(m_last), 0); }

private:
    static constexpr char name[] = "a-folder-whose-name-is-long-and-in-which-there-is-another-one-"
                                   "of-the-same-name-and-so-on-until-no-path-is-long-enough";
    const DrawingFolder m_folder;
    const int m_before;
    int m_last = -1;
    int m_depth = 0;
};

// The folder itself, whatever its name is.
QPair<dev_t, ino_t> workingDirectory()
{
    struct stat status = {};
    return stat(".", &status) == 0 ? qMakePair(status.st_dev, status.st_ino)
                                   : QPair<dev_t, ino_t>();
}

QString folderWithoutStartPath()
{
    QString folder;
    openRequest(QString()).getFileName({onFileDialog([&](QFileDialog& dialog) {
        folder = dialog.directory().absolutePath();
        dialog.reject();
    })});
    return folder;
}

// Tries to open what the dialog came up with, or the typed \a name, which is not there.
void expectNotFound(const QString& start, const QString& typed, const QString& name)
{
    HostRequest request = openRequest(start);
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
                             if (typed.isEmpty())
                                 QCOMPARE(dialog.findChild<QLineEdit*>()->text(), name);
                             typeAndAccept(dialog, name);
                             QVERIFY(dialog.isVisible());
                             clickButton(dialog, QDialogButtonBox::Cancel);
                         }),
                         closeMessage(name + "\nFile not found.")});
    expectCancelled(request);
}

} // namespace

class PathFaultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }
    void cleanup() { GetVySystemServices()->SetTemplateFolder(CVyString()); }

    void startsAtNothing_data();
    void startsAtNothing();
    void linkToItselfIsNotFound();
    void folderThatLeadsToItsParent();
    void startPathIsTooLong();
    void workingDirectoryHasNoPath_data();
    void workingDirectoryHasNoPath();
    void templateFolderIsGone_data();
    void templateFolderIsGone();
};

// The dialog comes up with the name, in the folder that Qt takes without a start path.
void PathFaultTest::startsAtNothing_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<bool>("isName"); // for this system, of a file in the working directory
    QTest::newRow("drive of another system") << "Z:\\Projects\\new.dwg" << true;
    QTest::newRow("drive of another system, slashes") << "Z:/Projects/new.dwg" << false;
    QTest::newRow("share of another system") << "\\\\server\\share\\new.dwg" << true;
    QTest::newRow("share of another system, slashes") << "//vy-no-server/share/new.dwg" << false;
    QTest::newRow("disk that is not mounted") << "/Volumes/vy-no-disk/new.dwg" << false;
    QTest::newRow("stick that was taken out") << "/media/vy-no-stick/Plans/new.dwg" << false;
    QTest::newRow("URL") << "file:///vy-no-folder/new.dwg" << false;
}

void PathFaultTest::startsAtNothing()
{
    QFETCH(QString, start);
    QFETCH(bool, isName);
    UnharmedHost host;
    const QString folder = isName ? QDir::currentPath() : folderWithoutStartPath();
    HostRequest request = openRequest(start);
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QCOMPARE(dialog.directory().absolutePath(), folder);
        QCOMPARE(dialog.findChild<QLineEdit*>()->text(), isName ? start : "new.dwg");
        clickButton(dialog, QDialogButtonBox::Cancel);
    })});
    expectCancelled(request);
    host.expectUnharmed();
}

void PathFaultTest::linkToItselfIsNotFound()
{
    UnharmedHost host;
    DrawingFolder folder;
    folder.addFile("plan.dwg");
    QVERIFY(QFile::link("loop.dwg", folder.filePath("loop.dwg")));
    expectNotFound(folder.filePath("loop.dwg"), QString(), "loop.dwg"); // the start path
    expectNotFound(folder.path(), "loop.dwg", "loop.dwg");
    HostRequest request = openRequest(folder.path());
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        QVERIFY(waitForFile(dialog, "plan.dwg"));
        QTest::qWait(200);
        QCOMPARE(listedNames(dialog), QStringList{"plan.dwg"}); // links to nothing are not
        clickButton(dialog, QDialogButtonBox::Cancel);
    })});
    expectCancelled(request);
    host.expectUnharmed();
}

// The system follows 40 links in a path, and then no more; the dialog stays where it is.
void PathFaultTest::folderThatLeadsToItsParent()
{
    UnharmedHost host;
    DrawingFolder folder;
    folder.addFile("plan.dwg", "this one");
    QVERIFY(QFile::link(".", folder.filePath("again")));
    HostRequest request = openRequest(folder.path());
    int depth = 0;
    QString path = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        while (depth < 60 && clickFile(dialog, "again")) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
            if (dialog.directory().absolutePath() == path)
                break;
            path += "/again";
            ++depth;
            QCOMPARE(dialog.directory().absolutePath(), path);
        }
        QVERIFY(clickFile(dialog, "plan.dwg"));
        clickButton(dialog, QDialogButtonBox::Open);
    })});
    QVERIFY(depth >= 40);
    expectChosen(request, path + "/plan.dwg");
    QFile file(request.paths.value(0));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("this one"));
    host.expectUnharmed();
}

// It exists, but nothing can be asked about it.
void PathFaultTest::startPathIsTooLong()
{
    UnharmedHost host;
    const QString without = folderWithoutStartPath();
    const DeepFolder deep;
    HostRequest request = openRequest(deep.path() + "/deep.dwg");
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QCOMPARE(dialog.directory().absolutePath(), without);
        QCOMPARE(dialog.findChild<QLineEdit*>()->text(), QString("deep.dwg"));
        clickButton(dialog, QDialogButtonBox::Cancel);
    })});
    expectCancelled(request);
    host.expectUnharmed();
}

// It has no name any more, or one that is too long.
void PathFaultTest::workingDirectoryHasNoPath_data()
{
    QTest::addColumn<bool>("deep");
    QTest::addColumn<QString>("start");
    QTest::newRow("too deep, no start path") << true << QString();
    QTest::newRow("too deep, file in it") << true << "deep.dwg";
    QTest::newRow("too deep, new file in it") << true << "new.dwg";
    QTest::newRow("removed, no start path") << false << QString();
    QTest::newRow("removed, new file in it") << false << "new.dwg";
}

// The host stays in it.
void PathFaultTest::workingDirectoryHasNoPath()
{
    QFETCH(bool, deep);
    QFETCH(QString, start);
    const QString before = QDir::currentPath();
    DrawingFolder folder;
    const QString plan = folder.addFile("plan.dwg");
    const DeepFolder deepFolder;
    if (deep) {
        deepFolder.enter();
    } else {
        QVERIFY(QDir::setCurrent(folder.addFolder("gone")));
        QVERIFY(QDir().rmdir(folder.filePath("gone")));
    }
    {
        UnharmedHost host;
        const auto there = workingDirectory();
        HostRequest request = openRequest(start);
        request.getFileName(
            {onFileDialog([&](QFileDialog& dialog) { typeAndAccept(dialog, plan); })});
        expectChosen(request, plan);
        QCOMPARE(workingDirectory(), there);
        host.expectUnharmed();
        QCOMPARE(workingDirectory(), there);
    }
    QVERIFY(QDir::setCurrent(before));
}

void PathFaultTest::templateFolderIsGone_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("templates"); // in the test's folder
    QTest::newRow("open, missing") << 0x2U << "gone";
    QTest::newRow("open, no folder") << 0x2U << "plan.dwg";
    QTest::newRow("open, link to itself") << 0x2U << "loop";
    QTest::newRow("save, missing") << 0x4U << "gone";
}

// The dialog stays where it is.
void PathFaultTest::templateFolderIsGone()
{
    QFETCH(unsigned, type);
    QFETCH(QString, templates);
    UnharmedHost host;
    DrawingFolder folder;
    folder.addFile("plan.dwg");
    const QString sheet = folder.addFile("sheet.dwt");
    QVERIFY(QFile::link("loop", folder.filePath("loop")));
    GetVySystemServices()->SetTemplateFolder(CVyString(folder.filePath(templates)));
    HostRequest request;
    request.type = type;
    request.start = folder.path();
    std::vector<DialogDriver::Step> steps{onFileDialog([&](QFileDialog& dialog) {
        chooseType(dialog, 1);
        QCOMPARE(dialog.directory().absolutePath(), folder.path());
        QVERIFY(clickFile(dialog, "sheet.dwt"));
        clickButton(dialog, type == 0x4U ? QDialogButtonBox::Save : QDialogButtonBox::Open);
    })};
    if (type == 0x4U) // whether to overwrite it
        steps.push_back([](QDialog& question) {
            qobject_cast<QMessageBox*>(&question)->button(QMessageBox::Yes)->click();
        });
    request.getFileName(steps);
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList{sheet});
    QCOMPARE(request.typeIndex, 1);
    host.expectUnharmed();
}

QTEST_MAIN(PathFaultTest)
#include "PathFaultTest.moc"
