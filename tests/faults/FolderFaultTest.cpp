// SPDX-License-Identifier: MIT
// What happens to a folder while the dialog shows it.
#include "DrawingFolder.h"
#include "FolderButtons.h"
#include "PlainUser.h"
#include "UnharmedHost.h"

#include <QThread>
#include <QtTest>

#include <atomic>
#include <memory>
#include <optional>

#include <sys/stat.h>

namespace {

// What is done to the folder at this path.
using Fault = void (*)(const QString&);

void remove(const QString& folder)
{
    QVERIFY(QDir(folder).removeRecursively());
}

void rename(const QString& folder)
{
    QVERIFY(QDir().rename(folder, folder + " away"));
}

void empty(const QString& folder)
{
    QVERIFY(QFile::remove(folder + "/plan.dwg"));
}

void lock(const QString& folder)
{
    QCOMPARE(chmod(QFile::encodeName(folder).constData(), 0), 0);
}

int listedCount(QFileDialog& dialog)
{
    const auto* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
    return list->model()->rowCount(list->rootIndex());
}

void toFolderAbove(QFileDialog& dialog)
{
    const QList<CVyDirPushButton*> row = buttons(dialog);
    QTest::mouseClick(row.at(row.size() - 2), Qt::LeftButton);
}

// A program that fills a folder as fast as it can.
class Filler
{
public:
    Filler(const QString& folder, int count)
        : m_thread(QThread::create([folder, count] {
            for (int i = 0; i < count; ++i)
                QFile(folder + '/' + name(i)).open(QIODevice::WriteOnly);
        }))
    {
        m_thread->start();
    }
    ~Filler() { m_thread->wait(); }
    Q_DISABLE_COPY(Filler)

    static QString name(int number)
    {
        return QStringLiteral("%1.dwg").arg(number, 5, 10, QLatin1Char('0'));
    }

private:
    const std::unique_ptr<QThread> m_thread;
};

} // namespace

Q_DECLARE_METATYPE(Fault)

class FolderFaultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }
    void init();
    void cleanup();

    void cancelled_data() { faults(); }
    void cancelled();
    void typedNameIsNotFound_data() { faults(); }
    void typedNameIsNotFound();
    void anotherFolderIsShown_data() { faults(); }
    void anotherFolderIsShown();
    void savedUnderTypedName_data() { faults(); }
    void savedUnderTypedName();
    void filledWhileItIsListed();
    void cancelledWhileItIsFilled();

private:
    static void faults();
    DialogDriver::Step afterFault(std::function<void(QFileDialog&)> work);

    std::optional<UnharmedHost> m_host;
    std::optional<DrawingFolder> m_parent; ///< with "other.dwg"
    std::optional<PlainUser> m_user;
    QString m_shown; ///< in m_parent, with "plan.dwg"
};

void FolderFaultTest::faults()
{
    QTest::addColumn<Fault>("fault");
    QTest::newRow("removed") << Fault(remove);
    QTest::newRow("renamed") << Fault(rename);
    QTest::newRow("emptied") << Fault(empty);
    QTest::newRow("made unreadable") << Fault(lock);
}

void FolderFaultTest::init()
{
    m_host.emplace();
    m_parent.emplace();
    QCOMPARE(chmod(QFile::encodeName(m_parent->path()).constData(), 0777), 0);
    m_parent->addFile("other.dwg");
    m_user.emplace();
    m_shown = m_parent->addFolder("plans");
    m_parent->addFile("plans/plan.dwg");
}

void FolderFaultTest::cleanup()
{
    chmod(QFile::encodeName(m_shown).constData(), 0700);
    m_user.reset();
    m_host->expectUnharmed();
    m_parent.reset();
    m_host.reset();
}

// The dialog lists the folder; then the fault of this row strikes, of which the dialog is
// told or not, and the user does his \a work. Qt goes on listing what was in a folder that
// is gone.
DialogDriver::Step FolderFaultTest::afterFault(std::function<void(QFileDialog&)> work)
{
    return onFileDialog([this, work = std::move(work)](QFileDialog& dialog) {
        QFETCH(Fault, fault);
        QVERIFY(waitForFile(dialog, "plan.dwg"));
        fault(m_shown);
        QTest::qWait(300);
        work(dialog);
    });
}

void FolderFaultTest::cancelled()
{
    HostRequest request = openRequest(m_shown);
    request.getFileName(
        {afterFault([](QFileDialog& dialog) { clickButton(dialog, QDialogButtonBox::Cancel); })});
    expectCancelled(request);
}

void FolderFaultTest::typedNameIsNotFound()
{
    HostRequest request = openRequest(m_shown);
    request.getFileNames({afterFault([](QFileDialog& dialog) {
                              typeAndAccept(dialog, "plan.dwg");
                              QVERIFY(dialog.isVisible());
                              clickButton(dialog, QDialogButtonBox::Cancel);
                          }),
                          closeMessage("plan.dwg\nFile not found.")});
    expectCancelled(request);
}

void FolderFaultTest::anotherFolderIsShown()
{
    HostRequest request = openRequest(m_shown);
    request.getFileName({afterFault([](QFileDialog& dialog) {
        toFolderAbove(dialog);
        QVERIFY(clickFile(dialog, "other.dwg"));
        clickButton(dialog, QDialogButtonBox::Open);
    })});
    expectChosen(request, m_parent->filePath("other.dwg"));
}

// Whether a name can be written to is found out by writing, which is the host's.
void FolderFaultTest::savedUnderTypedName()
{
    HostRequest request = openRequest(m_shown);
    request.type = CVyUserIO::FileNameSave;
    request.withTypeIndex = false; // the name stays as it was typed
    request.getFileName(
        {afterFault([](QFileDialog& dialog) { typeAndAccept(dialog, "new.dwg"); })});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.mode, CVyUserIO::Save);
    QCOMPARE(request.paths, QStringList{m_shown + "/new.dwg"});
    QVERIFY(!QFile::exists(request.paths.constFirst()));
}

void FolderFaultTest::filledWhileItIsListed()
{
    constexpr int count = 10000;
    QStringList expected;
    for (int i = 0; i < count; ++i)
        expected.append(Filler::name(i));
    expected.append("plan.dwg");
    HostRequest request = openRequest(m_shown);
    const Filler filler(m_shown, count);
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QTRY_COMPARE_WITH_TIMEOUT(listedCount(dialog), count + 1, 60000);
        QTRY_COMPARE(listedNames(dialog), expected);
        QVERIFY(clickFile(dialog, Filler::name(count / 2)));
        clickButton(dialog, QDialogButtonBox::Open);
    })});
    expectChosen(request, m_shown + '/' + Filler::name(count / 2));
}

void FolderFaultTest::cancelledWhileItIsFilled()
{
    HostRequest request = openRequest(m_shown);
    const Filler filler(m_shown, 10000);
    QElapsedTimer since;
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QTRY_VERIFY(listedCount(dialog) > 100);
        since.start();
        clickButton(dialog, QDialogButtonBox::Cancel);
    })});
    QVERIFY2(since.elapsed() < 5000, qPrintable(QString::number(since.elapsed())));
    expectCancelled(request);
}

QTEST_MAIN(FolderFaultTest)
#include "FolderFaultTest.moc"
