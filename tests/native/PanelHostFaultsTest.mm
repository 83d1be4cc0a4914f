// SPDX-License-Identifier: MIT
// What the host's own code does while its request is under way.
#include "CaughtException.h"
#include "PanelFaultTest.h"

#include "VyBookmarks.h"
#include "VyFloatingWindows.h"
#include "VySystemServices.h"

#include <QTimer>

#include <stdexcept>

#include <dlfcn.h>

namespace {

// Which of the host's services throws when it is asked next.
enum class Thrower
{
    None,
    TemplateFolder,
    FloatingWindows,
    Bookmarks,
    Timer
};
Thrower thrower = Thrower::None;

void throwIf(Thrower asked)
{
    if (thrower != asked)
        return;
    thrower = Thrower::None;
    throw std::runtime_error("host");
}

} // namespace

// In place of the kernel library's.
CVyString CVySystemServices::GetTemplateFolder() const
{
    throwIf(Thrower::TemplateFolder);
    return m_templateFolder;
}

VyFloatingWindows HideFloatingWindows()
{
    throwIf(Thrower::FloatingWindows);
    static const auto next = reinterpret_cast<decltype(&HideFloatingWindows)>(
        dlsym(RTLD_NEXT, "_Z19HideFloatingWindowsv"));
    return next();
}

void VyAddBookmark(const QString&)
{
    throwIf(Thrower::Bookmarks);
}

enum class Deed
{
    DeletesTheParent,
    Quits,
    ChangesTheFolder,
    ChangesTheStyle
};

Q_DECLARE_METATYPE(Deed)
Q_DECLARE_METATYPE(Thrower)

class PanelHostFaultsTest : public PanelFaultTest
{
    Q_OBJECT

private Q_SLOTS:
    void hostActs_data();
    void hostActs();
    void hostThrows_data();
    void hostThrows();

private:
    static void act(Deed deed, std::unique_ptr<QWidget>& parent);
    HostRequest ask(Deed deed, bool fromQt, bool accepts);
};

void PanelHostFaultsTest::hostActs_data()
{
    QTest::addColumn<Deed>("deed");
    QTest::addColumn<bool>("fromQt");
    for (const bool fromQt : {false, true}) {
        const char* const where = fromQt ? "Qt's timer" : "the panel's loop";
        QTest::addRow("deletes its parent window, %s", where) << Deed::DeletesTheParent << fromQt;
        QTest::addRow("quits, %s", where) << Deed::Quits << fromQt;
        QTest::addRow("changes the folder, %s", where) << Deed::ChangesTheFolder << fromQt;
        QTest::addRow("changes the style, %s", where) << Deed::ChangesTheStyle << fromQt;
    }
}

void PanelHostFaultsTest::act(Deed deed, std::unique_ptr<QWidget>& parent)
{
    switch (deed) {
    case Deed::DeletesTheParent:
        parent.reset();
        break;
    case Deed::Quits:
        QCoreApplication::quit();
        break;
    case Deed::ChangesTheFolder:
        QVERIFY(QDir::setCurrent(QDir::rootPath()));
        break;
    case Deed::ChangesTheStyle:
        CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
        break;
    }
}

// The panel stays up whatever the host does; it is the user who ends it.
HostRequest PanelHostFaultsTest::ask(Deed deed, bool fromQt, bool accepts)
{
    auto parent = std::make_unique<QWidget>();
    parent->show();
    HostRequest host = faultyRequest(CVyUserIO::FileNameOpen);
    host.parent = parent->winId();
    const QObject here;
    bool done = false;
    const auto deal = [&] {
        act(deed, parent);
        done = true;
    };
    CVyFileDialog::SetStyle(CVyFileDialog::StyleNative);
    run(host, {onPanel([&](NSSavePanel*) {
                   if (fromQt)
                       QTimer::singleShot(0, &here, deal);
                   else
                       deal();
               }),
               onPanel([](NSSavePanel* panel) { QVERIFY([panel isVisible]); }),
               onPanel([&](NSSavePanel* panel) {
                   QVERIFY(done);
                   selectNames(panel, {"plan.dwg"});
               }),
               accepts ? accept() : cancel()});
    return host;
}

void PanelHostFaultsTest::hostActs()
{
    QFETCH(Deed, deed);
    QFETCH(bool, fromQt);
    addFile("plan.dwg");
    int loops = 0;
    for (const bool accepts : {true, false}) {
        QTimer::singleShot(0, qApp, [&] {
            const HostRequest host = ask(deed, fromQt, accepts);
            accepts ? compareAccepted(host, path("plan.dwg")) : compareCancelled(host);
            ++loops;
            if (deed != Deed::Quits)
                QCoreApplication::quit();
        });
        QCoreApplication::exec(); // ends by the host's word, also by one under the panel
    }
    QCOMPARE(loops, 2);
}

void PanelHostFaultsTest::hostThrows_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<Thrower>("source");
    const std::pair<const char*, unsigned> kinds[] = {{"open", CVyUserIO::FileNameOpen},
                                                      {"new", CVyUserIO::FileNameNew},
                                                      {"save", CVyUserIO::FileNameSave}};
    for (const auto& [kind, type] : kinds) {
        QTest::addRow("%s, the template folder", kind) << type << Thrower::TemplateFolder;
        QTest::addRow("%s, the floating windows", kind) << type << Thrower::FloatingWindows;
        QTest::addRow("%s, the bookmarks", kind) << type << Thrower::Bookmarks;
        QTest::addRow("%s, a timer", kind) << type << Thrower::Timer;
    }
}

void PanelHostFaultsTest::hostThrows()
{
    QFETCH(unsigned, type);
    QFETCH(Thrower, source);
    addFile("plan.dwg");
    HostRequest host = faultyRequest(type);
    host.start = path("plan2.dwg");
    thrower = source;
    const QObject here;
    std::vector<PanelDriver::Step> steps;
    if (source == Thrower::Timer)
        steps = {onPanel(
            [&](NSSavePanel*) { QTimer::singleShot(0, &here, [] { throwIf(Thrower::Timer); }); })};
    if (source == Thrower::Bookmarks && type == CVyUserIO::FileNameSave)
        steps = {accept()};
    else if (source == Thrower::Bookmarks)
        steps = {click({"plan.dwg"}), accept()};
    QCOMPARE(caughtException([&] { run(host, steps); }), std::string("host"));
    QCOMPARE(host.paths, QStringList());
    QCOMPARE(host.mode, HostRequest::untouchedMode());
    QVERIFY(![NSApp modalWindow]);
    takeMessages(); // Qt's warning about exceptions in handlers
}

QTEST_MAIN(PanelHostFaultsTest)
#include "PanelHostFaultsTest.moc"
