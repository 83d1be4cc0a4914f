// SPDX-License-Identifier: MIT
// The native panel over a host's windows, with a real user at both. Nothing but
// the lock keeps Qt's windows from him here.
#include "DeskUser.h"
#include "LockScenarios.h"
#include "NativeTest.h"

#include <QMessageBox>
#include <QPushButton>

namespace {

using Scenario = void (*)(HostRequest&, const QString&, int);

} // namespace

Q_DECLARE_METATYPE(Scenario)

class LockPanelTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void hostIsLocked_data();
    void hostIsLocked();
    void aQuestionOfTheHostsIsAnswered();
};

void LockPanelTest::hostIsLocked_data()
{
    const Scenario everything = &LockScenarios::everythingOnAnOpenWindow;
    const Scenario laterWindow = &LockScenarios::clicksOnALaterWindow;
    const Scenario heldButton = &LockScenarios::aButtonHeldDown;
    const Scenario openMenu = &LockScenarios::anOpenMenu;
    QTest::addColumn<Scenario>("scenario");
    QTest::addColumn<unsigned>("type");
    QTest::newRow("everything, open") << everything << unsigned(CVyUserIO::FileNameOpen);
    QTest::newRow("everything, new") << everything << unsigned(CVyUserIO::FileNameNew);
    QTest::newRow("everything, save") << everything << unsigned(CVyUserIO::FileNameSave);
    QTest::newRow("window opened later") << laterWindow << unsigned(CVyUserIO::FileNameOpen);
    QTest::newRow("button held down") << heldButton << unsigned(CVyUserIO::FileNameOpen);
    QTest::newRow("menu open") << openMenu << unsigned(CVyUserIO::FileNameOpen);
}

void LockPanelTest::hostIsLocked()
{
    QFETCH(Scenario, scenario);
    QFETCH(unsigned, type);
    addFile("plan.dwg");
    const QString name = type == CVyUserIO::FileNameSave ? "new.dwg" : "plan.dwg";
    HostRequest host = request(type);
    host.flags = CVyUserIO::FileNameModeChoices; // for the title of a save
    host.withTypeIndex = false;                  // the name is answered as it is
    const PanelDriver patience({});
    scenario(host, "xdotool type --delay 30 " + name + "; xdotool key Return", VyStatus::Accepted);
    QCOMPARE(host.paths, QStringList(path(name)));
}

// One that a timer of the host's asks while the panel is up. It would stay for
// ever if it were locked.
void LockPanelTest::aQuestionOfTheHostsIsAnswered()
{
    QMessageBox question(QMessageBox::Question, "Question", "Save the drawing first?",
                         QMessageBox::Yes | QMessageBox::No);
    QTimer timer;
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, [&] { question.exec(); });
    timer.start(1000);
    HostRequest host = request(CVyUserIO::FileNameOpen);
    {
        const DeskUser user("Question", "xdotool key alt+n; activate Choose; xdotool key Escape");
        run(host, {});
    }
    QCOMPARE(question.result(), int(QMessageBox::No));
    QCOMPARE(host.status, VyStatus::Cancelled);
}

QTEST_MAIN(LockPanelTest)
#include "LockPanelTest.moc"
