// SPDX-License-Identifier: MIT
// The file that the user has selected in a panel is not what it was when he presses
// the button. A panel answers a path, which the host opens or does not: nothing here
// reads the file, so that nothing waits for one that does not answer.
#include "PanelFaultTest.h"

#include <sys/stat.h>

namespace {

enum class Change
{
    Truncated,
    Removed,
    Fifo,
    Folder
};

} // namespace

Q_DECLARE_METATYPE(Change)

class PanelFileFaultsTest : public PanelFaultTest
{
    Q_OBJECT

private Q_SLOTS:
    void selectedFileChanges_data();
    void selectedFileChanges();
    void savedFileChanges_data();
    void savedFileChanges();

private:
    void addPlan();
    PanelDriver::Step strike(Change change);
};

void PanelFileFaultsTest::addPlan()
{
    QFile file(path("plan.dwg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("AC1027"), qint64(6));
}

PanelDriver::Step PanelFileFaultsTest::strike(Change change)
{
    return onPanel([=](NSSavePanel*) {
        const QString plan = path("plan.dwg");
        switch (change) {
        case Change::Truncated:
            QVERIFY(QFile::resize(plan, 0));
            break;
        case Change::Removed:
            QVERIFY(QFile::remove(plan));
            break;
        case Change::Fifo:
            QVERIFY(QFile::remove(plan));
            QCOMPARE(mkfifo(QFile::encodeName(plan).constData(), 0600), 0);
            break;
        case Change::Folder:
            QVERIFY(QFile::remove(plan));
            QVERIFY(QDir().mkdir(plan));
            break;
        }
    });
}

void PanelFileFaultsTest::selectedFileChanges_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<Change>("change");
    const std::pair<const char*, unsigned> kinds[] = {{"open", CVyUserIO::FileNameOpen},
                                                      {"new", CVyUserIO::FileNameNew}};
    for (const auto& [name, type] : kinds) {
        QTest::addRow("%s, truncated", name) << type << Change::Truncated;
        QTest::addRow("%s, removed", name) << type << Change::Removed;
        QTest::addRow("%s, a FIFO", name) << type << Change::Fifo;
        QTest::addRow("%s, a folder", name) << type << Change::Folder;
    }
}

void PanelFileFaultsTest::selectedFileChanges()
{
    QFETCH(unsigned, type);
    QFETCH(Change, change);
    addPlan();
    HostRequest host = faultyRequest(type);
    run(host, {click({"plan.dwg"}), strike(change), accept()});
    compareAccepted(host, path("plan.dwg"));
}

void PanelFileFaultsTest::savedFileChanges_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("asks");
    QTest::newRow("truncated") << Change::Truncated << true;
    QTest::newRow("removed") << Change::Removed << false;
    QTest::newRow("a FIFO") << Change::Fifo << true;
    QTest::newRow("a folder") << Change::Folder << true;
}

// The panel looks when its button is pressed whether there is anything to replace.
void PanelFileFaultsTest::savedFileChanges()
{
    QFETCH(Change, change);
    QFETCH(bool, asks);
    addPlan();
    HostRequest save = faultyRequest(CVyUserIO::FileNameSave);
    std::vector<PanelDriver::Step> steps = {click({"plan.dwg"}), strike(change), accept()};
    if (asks)
        steps.push_back(answerAlert(NSAlertDefaultReturn, "plan.dwg"));
    run(save, steps);
    compareAccepted(save, path("plan.dwg"));
}

QTEST_MAIN(PanelFileFaultsTest)
#include "PanelFileFaultsTest.moc"
