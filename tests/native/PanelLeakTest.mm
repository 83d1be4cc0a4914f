// SPDX-License-Identifier: MIT
// A host shows panels all day: a hundred of them leave nothing behind but the
// shared save panel.
#include "NativeTest.h"

#include "NSOpenPanelExt.h"
#include "VyFileDialogMacNewMacNative.h"
#include "VyFileDialogMacNewMacNativePrivate.h"
#include "VyFileDialogMacOpenMacNative.h"
#include "VyFileDialogMacOpenMacNativePrivate.h"
#include "VyFileDialogMacSaveMacNative.h"
#include "VyFileDialogMacSaveMacNativePrivate.h"
#include "VyNSOpenSavePanelDelegate.h"

#import <objc/runtime.h>

#include <QProcess>

#include <map>

// Where QtCore calls who watches its objects come and go: a tool, as a rule.
extern quintptr Q_CORE_EXPORT qtHookData[];

namespace {

constexpr int addObjectHook = 3;
constexpr int removeObjectHook = 4;

int liveQObjects = 0;

// Counts the objects of some classes that are freed, and of two classes of the
// AppKit's those that live: what edits a panel's name field, and timers.
class ObjectCount
{
public:
    static void install();

    /// Since the last start().
    static int freed(Class owner) { return s_freed[owner] - s_freedBefore[owner]; }
    static void start() { s_freedBefore = s_freed; }
    static int liveTextViews() { return s_textViews - s_freed [[NSTextView class]]; }
    static int liveTimers() { return s_timers - s_freed [[NSTimer class]]; }

private:
    static IMP replace(Class owner, SEL selector, IMP replacement);
    static void dealloc(id self, SEL selector);
    static id initTextView(id self, SEL selector, NSRect frame, NSTextContainer* container);
    static id initTimer(id self, SEL selector, NSDate* date, NSTimeInterval interval, id target,
                        SEL action, id userInfo, BOOL repeats);

    static inline std::map<Class, IMP> s_deallocs;
    static inline std::map<Class, int> s_freed;
    static inline std::map<Class, int> s_freedBefore;
    static inline IMP s_initTextView = nullptr;
    static inline IMP s_initTimer = nullptr;
    static inline int s_textViews = 0;
    static inline int s_timers = 0;
};

// An inherited method becomes the class's own.
IMP ObjectCount::replace(Class owner, SEL selector, IMP replacement)
{
    const Method method = class_getInstanceMethod(owner, selector);
    const IMP original = method_getImplementation(method);
    if (!class_addMethod(owner, selector, replacement, method_getTypeEncoding(method)))
        method_setImplementation(method, replacement);
    return original;
}

void ObjectCount::dealloc(id self, SEL selector)
{
    const Class owner = object_getClass(self);
    ++s_freed[owner];
    reinterpret_cast<void (*)(id, SEL)>(s_deallocs[owner])(self, selector);
}

id ObjectCount::initTextView(id self, SEL selector, NSRect frame, NSTextContainer* container)
{
    ++s_textViews;
    return reinterpret_cast<id (*)(id, SEL, NSRect, NSTextContainer*)>(s_initTextView)(
        self, selector, frame, container);
}

id ObjectCount::initTimer(id self, SEL selector, NSDate* date, NSTimeInterval interval, id target,
                          SEL action, id userInfo, BOOL repeats)
{
    ++s_timers;
    return reinterpret_cast<id (*)(id, SEL, NSDate*, NSTimeInterval, id, SEL, id, BOOL)>(
        s_initTimer)(self, selector, date, interval, target, action, userInfo, repeats);
}

// A subclass comes before its superclass, so that it keeps what it inherited.
void ObjectCount::install()
{
    for (Class owner : {[NSOpenPanelExtWithSelectAll class],
                        [NSOpenPanelExt class],
                        [CVyNSOpenSavePanelDelegate class],
                        [CVyViewFilterMacNative class],
                        [CVyFileDialogMacNewNativeCocoa class],
                        [CVyFileDialogMacOpenNativeCocoa class],
                        [CVyFileDialogMacSaveNativeCocoa class],
                        [NSTextView class],
                        [NSTimer class]})
        s_deallocs[owner] = replace(owner, @selector(dealloc), reinterpret_cast<IMP>(dealloc));
    s_initTextView = replace([NSTextView class], @selector(initWithFrame:textContainer:),
                             reinterpret_cast<IMP>(initTextView));
    s_initTimer = replace([NSTimer class],
                          @selector(initWithFireDate:interval:target:selector:userInfo:repeats:),
                          reinterpret_cast<IMP>(initTimer));
}

int entries(const char* folder)
{
    const int count = static_cast<int>(QDir(QString::fromLatin1(folder)).count());
    if (count <= 2)
        QTest::qFail("the system does not tell", __FILE__, __LINE__);
    return count;
}

// The windows of all programs on the display, which is the test's own.
int windowsOnDisplay()
{
    QProcess tool;
    tool.start("xwininfo", {"-root", "-tree"});
    if (!tool.waitForFinished() || tool.exitCode() != 0)
        QTest::qFail("xwininfo does not tell", __FILE__, __LINE__);
    return tool.readAllStandardOutput().count("0x");
}

// Windows of that kind; the list that is counted would keep them.
int liveWindows(Class kind)
{
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    int count = 0;
    for (NSWindow* window in [NSApp windows])
        count += [window isKindOfClass:kind];
    [pool drain];
    return count;
}

struct Resources
{
    int panels = liveWindows([NSPanel class]);
    int windows = liveWindows([NSWindow class]);
    int windowsOnScreen = windowsOnDisplay();
    int qObjects = liveQObjects;
    int files = entries("/proc/self/fd");
    int threads = entries("/proc/self/task");
    int textViews = ObjectCount::liveTextViews();
    int timers = ObjectCount::liveTimers();
};

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
    const Resources before;
    runPanels(90);
    QTest::qWait(50);
    const Resources after;

    QCOMPARE(ObjectCount::freed([NSOpenPanelExtWithSelectAll class]), 30);
    QCOMPARE(ObjectCount::freed([NSOpenPanelExt class]), 30);
    QCOMPARE(ObjectCount::freed([CVyNSOpenSavePanelDelegate class]), 60);
    QCOMPARE(ObjectCount::freed([CVyViewFilterMacNative class]), 90);
    QCOMPARE(ObjectCount::freed([CVyFileDialogMacOpenNativeCocoa class]), 30);
    QCOMPARE(ObjectCount::freed([CVyFileDialogMacNewNativeCocoa class]), 30);
    QCOMPARE(ObjectCount::freed([CVyFileDialogMacSaveNativeCocoa class]), 30);
    QCOMPARE(after.panels, before.panels);
    QCOMPARE(after.qObjects, before.qObjects);
    QCOMPARE(after.threads, before.threads);
    // The AppKit keeps a few of its own, now more, now fewer; images, too, are
    // cached in windows.
    constexpr int few = 5;
    constexpr int caches = 30;
    compareGrowth(after.windows - before.windows, caches, "windows");
    compareGrowth(after.windowsOnScreen - before.windowsOnScreen, caches, "windows on screen");
    compareGrowth(after.files - before.files, few, "files");
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
    qtHookData[addObjectHook] = reinterpret_cast<quintptr>(+[](QObject*) { ++liveQObjects; });
    qtHookData[removeObjectHook] = reinterpret_cast<quintptr>(+[](QObject*) { --liveQObjects; });
    QApplication application(argc, argv);
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    ObjectCount::install();
    [pool drain];
    PanelLeakTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PanelLeakTest.moc"
