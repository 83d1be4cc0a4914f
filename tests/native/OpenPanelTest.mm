// SPDX-License-Identifier: MIT
#include "NativeTest.h"

#include "NSOpenPanelExt.h"
#include "VyBookmarks.h"
#include "VyNSOpenSavePanelDelegate.h"

/// The open panel, from the host's request to its answer.
class OpenPanelTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void answersTheChosenFile();
};

void OpenPanelTest::answersTheChosenFile()
{
    addFile("plan.dwg");
    addFile("notes.txt");
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.flags = CVyUserIO::FileNameModeChoices;
    run(open, {onPanel([](NSSavePanel* panel) {
                   QVERIFY([panel isKindOfClass:[NSOpenPanelExtWithSelectAll class]]);
                   QCOMPARE(text([panel title]), QString("Choose"));
                   QVERIFY([[panel delegate] isKindOfClass:[CVyNSOpenSavePanelDelegate class]]);
                   QCOMPARE(shownNames(panel), QStringList("plan.dwg"));
                   NSPopUpButton* const modes = popup(panel, @selector(openmodeChanged:));
                   QCOMPARE(titles(modes),
                            QStringList({"Open", "Open Read-Only", "Open with Encoding..."}));
                   choose(modes, 1);
                   selectNames(panel, {"plan.dwg"});
               }),
               accept()});
    QCOMPARE(open.status, 5100);
    QCOMPARE(open.mode, CVyUserIO::OpenReadOnly);
    QCOMPARE(open.paths, QStringList(path("plan.dwg")));
    QCOMPARE(VyBookmarks().size(), 1);
    QCOMPARE(VyBookmarks().constFirst().path, path("plan.dwg"));
}

QTEST_MAIN(OpenPanelTest)
#include "OpenPanelTest.moc"
