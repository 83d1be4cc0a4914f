// SPDX-License-Identifier: MIT
// What the host itself does while its dialog is up. Run without GLib's event loop, by
// whose frames of plain C no exception may pass.
//
// Told elsewhere: it deletes the parent (LifetimeTest), it quits (OpenDialogTest), it
// asks again (LifetimeTest), it closes the active document (ActiveDocumentTest).
#include "DrawingFolder.h"
#include "UnharmedHost.h"
#include "VyDocument.h"
#include "VySystemServices.h"

#include <QTimer>
#include <QtTest>

#include <optional>
#include <stdexcept>

namespace {

// Which of the host's answers throws from now on, counted from 1; 0 for none.
int s_failingAnswer = 0;

void answer()
{
    if (s_failingAnswer > 0 && --s_failingAnswer == 0)
        throw std::runtime_error("host");
}

} // namespace

// The host's own kernel, as far as a request asks it.

CVySystemServices* GetVySystemServices()
{
    static CVySystemServices services;
    answer();
    return &services;
}

CVyDocument* ACTIVE_DOCUMENT()
{
    answer();
    return nullptr;
}

class HostFaultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void throwsFromATimer_data();
    void throwsFromATimer();
    void servicesThrow_data();
    void servicesThrow();
    void closesAllWindows();
    void handlesEventsItself();
    void changesTheWorkingDirectory_data();
    void changesTheWorkingDirectory();
    void changesTheStyle();

private:
    std::optional<UnharmedHost> m_host;
    std::optional<DrawingFolder> m_folder;
    QString m_plan;
};

void HostFaultTest::initTestCase()
{
    QVERIFY(qEnvironmentVariableIsSet("QT_NO_GLIB"));
}

void HostFaultTest::init()
{
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    m_host.emplace();
    m_folder.emplace();
    m_plan = m_folder->addFile("plan.dwg");
}

void HostFaultTest::cleanup()
{
    s_failingAnswer = 0;
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    m_host->expectUnharmed();
    m_folder.reset();
    m_host.reset();
}

void HostFaultTest::throwsFromATimer_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<bool>("several");
    QTest::newRow("open") << 0x2U << false;
    QTest::newRow("open several") << 0x2U << true;
    QTest::newRow("save") << 0x4U << false;
    QTest::newRow("new") << 0x1U << false;
}

// Having gone elsewhere before, which a request for several files does not care for.
void HostFaultTest::throwsFromATimer()
{
    QFETCH(unsigned, type);
    QFETCH(bool, several);
    HostRequest request = openRequest(m_folder->path());
    request.type = type;
    const auto throwing = onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, "plan.dwg"));
        if (!several)
            QVERIFY(QDir::setCurrent(QDir::rootPath()));
        throw std::runtime_error("host");
    });
    QVERIFY_EXCEPTION_THROWN(several ? request.getFileNames({throwing})
                                     : request.getFileName({throwing}),
                             std::runtime_error);
    expectNothingWritten(request);
}

void HostFaultTest::servicesThrow_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<int>("before"); // which answer before the dialog is up
    QTest::addColumn<int>("choice"); // of a type, with the first answer to it
    QTest::newRow("expertise, before the dialog") << 0x4U << 1 << 0;
    QTest::newRow("active document, before the dialog") << 0x2U << 1 << 0;
    QTest::newRow("folder of templates, for a type chosen") << 0x2U << 0 << 1;
    QTest::newRow("active document, after the dialog") << 0x2U << 0 << 0;
}

void HostFaultTest::servicesThrow()
{
    QFETCH(unsigned, type);
    QFETCH(int, before);
    QFETCH(int, choice);
    HostRequest request = openRequest(m_folder->path());
    request.type = type;
    request.filter = "Drawings&*.dwg&Templates&*.dwt";
    std::vector<DialogDriver::Step> steps;
    if (!before)
        steps.push_back(onFileDialog([&](QFileDialog& dialog) {
            s_failingAnswer = 1;
            choice ? chooseType(dialog, choice) : clickButton(dialog, QDialogButtonBox::Cancel);
        }));
    s_failingAnswer = before;
    QVERIFY_EXCEPTION_THROWN(request.getFileName(steps), std::runtime_error);
    expectNothingWritten(request);
}

void HostFaultTest::closesAllWindows()
{
    HostRequest request = openRequest(m_folder->path());
    request.getFileName({onFileDialog([](QFileDialog&) { QApplication::closeAllWindows(); })});
    expectCancelled(request);
}

// From a callback of its own, in which the dialog comes to its end.
void HostFaultTest::handlesEventsItself()
{
    for (const auto button : {QDialogButtonBox::Cancel, QDialogButtonBox::Open}) {
        bool isOpen = true;
        HostRequest request = openRequest(m_folder->path());
        request.getFileName({onFileDialog([&](QFileDialog& dialog) {
            const QPointer<QFileDialog> guard(&dialog);
            QTimer::singleShot(0, &dialog, [&] {
                QVERIFY(clickFile(dialog, "plan.dwg"));
                clickButton(dialog, button);
            });
            QElapsedTimer since;
            for (since.start(); guard && guard->isVisible() && since.elapsed() < 10000;)
                QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
            isOpen = guard && guard->isVisible();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        })});
        QVERIFY(!isOpen);
        button == QDialogButtonBox::Open ? expectChosen(request, m_plan) : expectCancelled(request);
    }
}

void HostFaultTest::changesTheWorkingDirectory_data()
{
    QTest::addColumn<bool>("several");
    QTest::newRow("one file") << false;
    QTest::newRow("several files") << true;
}

// It is brought back when the request was for one file, and left alone otherwise.
void HostFaultTest::changesTheWorkingDirectory()
{
    QFETCH(bool, several);
    const QString before = QDir::currentPath();
    HostRequest request = openRequest(m_folder->path());
    const auto step = onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(QDir::setCurrent(m_folder->path()));
        QVERIFY(clickFile(dialog, "plan.dwg"));
        clickButton(dialog, QDialogButtonBox::Open);
    });
    several ? request.getFileNames({step}) : request.getFileName({step});
    const QString after = QDir::currentPath();
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(after, several ? m_folder->path() : before);
    expectChosen(request, m_plan);
}

// Which is that of the next request.
void HostFaultTest::changesTheStyle()
{
    const auto none = static_cast<CVyFileDialog::_Style>(0);
    HostRequest request = openRequest(m_folder->path());
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        CVyFileDialog::SetStyle(none);
        QVERIFY(clickFile(dialog, "plan.dwg"));
        clickButton(dialog, QDialogButtonBox::Open);
    })});
    expectChosen(request, m_plan);
    QCOMPARE(CVyFileDialog::s_Style, none);
    HostRequest next = openRequest(m_folder->path());
    QCOMPARE(next.getFileName({}), VyStatus::Failed);
    expectNothingWritten(next);
}

QTEST_MAIN(HostFaultTest)
#include "HostFaultTest.moc"
