// SPDX-License-Identifier: MIT
// A host shows panels all day: a hundred of them leave nothing behind but the
// shared save panel.
#include "NativeTest.h"
#include "PanelHoldings.h"

#include "NSOpenPanelExt.h"
#include "VyFileDialogMacNewMacNative.h"
#include "VyFileDialogMacNewMacNativePrivate.h"
#include "VyFileDialogMacOpenMacNative.h"
#include "VyFileDialogMacOpenMacNativePrivate.h"
#include "VyFileDialogMacSaveMacNative.h"
#include "VyFileDialogMacSaveMacNativePrivate.h"
#include "VyNSOpenSavePanelDelegate.h"

namespace {

constexpr unsigned kinds[] = {CVyUserIO::FileNameOpen, CVyUserIO::FileNameNew,
                              CVyUserIO::FileNameSave};

} // namespace

Q_DECLARE_METATYPE(Class)

class PanelLeakTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void hundredPanelsLeaveNothing();
    void sharedSavePanelPointsAtNothing_data();
    void sharedSavePanelPointsAtNothing();
    void secondRunForgetsTheFirstController_data();
    void secondRunForgetsTheFirstController();

private:
    void runPanels(int count);
    static void compareGrowth(int growth, int allowed, const char* what);
};

// Of all kinds, accepted and cancelled, worked and not.
void PanelLeakTest::runPanels(int count)
{
    for (int i = 0; i < count; ++i) {
        NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
        HostRequest host = request(kinds[i % 3]);
        host.flags = CVyUserIO::FileNameModeChoices;
        host.start = path("plan2.dwg");
        const bool accepts = i % 2 == 0;
        run(host, {onPanel([i, accepts](NSSavePanel* panel) {
                if ([panel isKindOfClass:[NSOpenPanel class]])
                    selectNames(panel, {"plan.dwg"});
                if (i % 5 == 0)
                    choose(popup(panel, @selector(filterChanged:)), 2);
                (accepts ? accept() : cancel())(panel);
            })});
        [pool drain];
    }
}

void PanelLeakTest::hundredPanelsLeaveNothing()
{
    addFile("plan.dwg");
    runPanels(10); // what is made once
    ObjectCount::start();
    const PanelHoldings before;
    runPanels(90);
    QTest::qWait(50);
    const PanelHoldings after;

    QCOMPARE(ObjectCount::freed([NSOpenPanelExtWithSelectAll class]), 30);
    QCOMPARE(ObjectCount::freed([NSOpenPanelExt class]), 30);
    QCOMPARE(ObjectCount::freed([CVyNSOpenSavePanelDelegate class]), 60);
    QCOMPARE(ObjectCount::freed([CVyViewFilterMacNative class]), 90);
    QCOMPARE(ObjectCount::freed([CVyFileDialogMacOpenNativeCocoa class]), 30);
    QCOMPARE(ObjectCount::freed([CVyFileDialogMacNewNativeCocoa class]), 30);
    QCOMPARE(ObjectCount::freed([CVyFileDialogMacSaveNativeCocoa class]), 30);
    QCOMPARE(after.panels, before.panels);
    QCOMPARE(after.objects, before.objects);
    QCOMPARE(after.threads, before.threads);
    // The AppKit keeps a few of its own, now more, now fewer; images, too, are
    // cached in windows.
    constexpr int few = 5;
    constexpr int caches = 30;
    compareGrowth(after.panelWindows - before.panelWindows, caches, "windows");
    compareGrowth(after.windowsOnScreen - before.windowsOnScreen, caches, "windows on screen");
    compareGrowth(after.descriptors - before.descriptors, few, "descriptors");
    compareGrowth(after.textViews - before.textViews, few, "text views");
    compareGrowth(after.timers - before.timers, few, "timers");
}

void PanelLeakTest::compareGrowth(int growth, int allowed, const char* what)
{
    QVERIFY2(growth <= allowed, qPrintable(QString::number(growth) + " more " + what));
}

void PanelLeakTest::sharedSavePanelPointsAtNothing_data()
{
    QTest::addColumn<bool>("accepts");
    QTest::newRow("accepted") << true;
    QTest::newRow("cancelled") << false;
}

void PanelLeakTest::sharedSavePanelPointsAtNothing()
{
    QFETCH(bool, accepts);
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.start = path("plan.dwg");
    NSSavePanel* shown = nil;
    run(save, {onPanel([&](NSSavePanel* panel) {
                   shown = panel;
                   QVERIFY([panel accessoryView]);
               }),
               accepts ? accept() : cancel()});
    QVERIFY(![shown accessoryView]);
    QVERIFY(![shown delegate]);
    QVERIFY(![shown isVisible]);
    QCOMPARE([NSSavePanel savePanel], shown);
}

void PanelLeakTest::secondRunForgetsTheFirstController_data()
{
    QTest::addColumn<unsigned>("kind");
    QTest::addColumn<Class>("controller");
    QTest::newRow("open") << unsigned(CVyUserIO::FileNameOpen)
                          << [CVyFileDialogMacOpenNativeCocoa class];
    QTest::newRow("new") << unsigned(CVyUserIO::FileNameNew)
                         << [CVyFileDialogMacNewNativeCocoa class];
    QTest::newRow("save") << unsigned(CVyUserIO::FileNameSave)
                          << [CVyFileDialogMacSaveNativeCocoa class];
}

// The record owns one controller, that of its last run; one run before it is
// the price of running an object twice.
void PanelLeakTest::secondRunForgetsTheFirstController()
{
    QFETCH(unsigned, kind);
    QFETCH(Class, controller);
    ObjectCount::start();
    std::unique_ptr<CVyFileDialogMacMacNative> dialog;
    if (kind == CVyUserIO::FileNameOpen)
        dialog = std::make_unique<CVyFileDialogMacOpenMacNative>(false, false, false);
    else if (kind == CVyUserIO::FileNameNew)
        dialog = std::make_unique<CVyFileDialogMacNewMacNative>();
    else
        dialog = std::make_unique<CVyFileDialogMacSaveMacNative>();
    dialog->SetDirectory(path());

    int panels = 0;
    for (int time = 0; time < 2; ++time) {
        const PanelDriver driver({onPanel([&](NSSavePanel*) { ++panels; }), cancel()});
        dialog->DoModal();
    }
    QCOMPARE(panels, 2);
    QCOMPARE(ObjectCount::freed(controller), 0);
    dialog.reset();
    QCOMPARE(ObjectCount::freed(controller), 1);
}

int main(int argc, char* argv[])
{
    return runCounted<PanelLeakTest>(argc, argv);
}

#include "PanelLeakTest.moc"
