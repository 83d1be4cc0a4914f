// SPDX-License-Identifier: MIT
// What becomes of a request when something in its panel raises, and of a host
// that fills a record wrongly.
#include "NativeTest.h"

#include "NSOpenPanelExt.h"
#include "VyFileDialogMacNewMacNative.h"
#include "VyFileDialogMacOpenMacNative.h"
#include "VyFileDialogMacSaveMacNative.h"
#include "VyMacDocumentController.h"
#include "VyNSOpenSavePanelDelegate.h"

#import <objc/runtime.h>

#include <QProcess>

#include <csignal>
#include <cstring>

#include <sys/resource.h>

namespace {

id fail(id, SEL)
{
    [NSException raise:@"TestException" format:@"it broke"];
    return nil;
}

// The warning for it.
constexpr char warning[] = "VyFileDialogs: the native panel raised TestException: it broke";

// While it lives, a method of a class has another implementation. The method
// becomes the class's own before: the runtime does not tell subclasses.
class Replaced
{
public:
    Replaced(Class owner, SEL selector, IMP implementation)
    {
        m_method = class_getInstanceMethod(owner, selector);
        if (class_addMethod(owner, selector, method_getImplementation(m_method),
                            method_getTypeEncoding(m_method)))
            m_method = class_getInstanceMethod(owner, selector);
        m_original = method_setImplementation(m_method, implementation);
    }
    ~Replaced() { method_setImplementation(m_method, m_original); }
    Q_DISABLE_COPY(Replaced)

    IMP original() const { return m_original; }

private:
    Method m_method;
    IMP m_original;
};

Class panelClass(unsigned type)
{
    switch (type) {
    case CVyUserIO::FileNameOpen:
        return [NSOpenPanelExtWithSelectAll class];
    case CVyUserIO::FileNameNew:
        return [NSOpenPanelExt class];
    default:
        return object_getClass([NSSavePanel savePanel]);
    }
}

// Does something while the panel handles an event. What a driver's step raises
// would get no further than the driver's timer.
class EventWork
{
public:
    EventWork(unsigned type, std::function<void(NSSavePanel*)> work)
        : m_sendEvent(panelClass(type), @selector(sendEvent:), reinterpret_cast<IMP>(sendEvent))
    {
        s_original = m_sendEvent.original();
        s_work = std::move(work);
    }

    static PanelDriver::Step post()
    {
        return onPanel([](NSSavePanel* panel) {
            [NSApp postEvent:[NSEvent otherEventWithType:NSApplicationDefined
                                                location:NSZeroPoint
                                           modifierFlags:0
                                               timestamp:0
                                            windowNumber:[panel windowNumber]
                                                 context:nil
                                                 subtype:0
                                                   data1:0
                                                   data2:0]
                     atStart:NO];
        });
    }

private:
    static void sendEvent(id self, SEL selector, NSEvent* event)
    {
        reinterpret_cast<void (*)(id, SEL, NSEvent*)>(s_original)(self, selector, event);
        if ([event type] == NSApplicationDefined)
            s_work(self);
    }

    static inline IMP s_original = nullptr;
    static inline std::function<void(NSSavePanel*)> s_work;
    const Replaced m_sendEvent;
};

int visiblePanels()
{
    int count = 0;
    for (NSWindow* window in [NSApp windows])
        count += [window isKindOfClass:[NSSavePanel class]] && [window isVisible];
    return count;
}

const std::pair<const char*, unsigned> kinds[] = {{"open", CVyUserIO::FileNameOpen},
                                                  {"new", CVyUserIO::FileNameNew},
                                                  {"save", CVyUserIO::FileNameSave}};

} // namespace

Q_DECLARE_METATYPE(SEL)
Q_DECLARE_METATYPE(Class)

class PanelFailureTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void raisingCancels_data();
    void raisingCancels();
    void raisingDelegateCancels_data();
    void raisingDelegateCancels();
    void raisingActionCancels_data();
    void raisingActionCancels();
    void unequalListsStopTheProgram_data();
    void unequalListsStopTheProgram();
    void unequalListsOfOtherKindsDoNotStop_data();
    void unequalListsOfOtherKindsDoNotStop();

private:
    /// Makes the request that fails, and then one that does not.
    void compareFailure(unsigned type, std::vector<PanelDriver::Step> steps,
                        const std::function<void()>& mend);
};

void PanelFailureTest::compareFailure(unsigned type, std::vector<PanelDriver::Step> steps,
                                      const std::function<void()>& mend)
{
    addFile("plan.dwg");
    QWidget floating(nullptr, Qt::Tool);
    floating.show();
    HostRequest host = request(type);
    host.withTypeIndex = false; // the name is answered as it is
    host.flags = CVyUserIO::FileNameModeChoices;
    host.start = path("plan2.dwg");
    run(host, std::move(steps));
    QCOMPARE(host.status, VyStatus::Cancelled);
    QCOMPARE(host.paths, QStringList());
    QCOMPARE(takeMessages(), QStringList(warning));
    QCOMPARE(visiblePanels(), 0);
    QVERIFY(![NSApp modalWindow]);
    QVERIFY(floating.isVisible());

    mend();
    const bool saves = type == CVyUserIO::FileNameSave;
    run(host, {onPanel([&](NSSavePanel* panel) {
                   QVERIFY(!floating.isVisible());
                   QVERIFY(accessoryView(panel));
                   QCOMPARE([panel delegate] == nil, saves);
                   if (!saves)
                       selectNames(panel, {"plan.dwg"});
               }),
               accept()});
    QCOMPARE(host.status, VyStatus::Accepted);
    QCOMPARE(host.paths, QStringList(path(saves ? "plan2.dwg" : "plan.dwg")));
    QVERIFY(floating.isVisible());
}

void PanelFailureTest::raisingCancels_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<Class>("owner");
    QTest::addColumn<SEL>("selector");
    QTest::addColumn<bool>("answers");
    const Class view = [CVyViewFilterMacNative class];
    for (const auto& [name, type] : kinds) {
        const Class panel = panelClass(type);
        const SEL harvest = type == CVyUserIO::FileNameSave ? @selector(URL) : @selector(URLs);
        QTest::addRow("%s, the title", name) << type << panel << @selector(setTitle:) << false;
        QTest::addRow("%s, the making of the view", name)
            << type << view << @selector(getAllowedFileType:) << false;
        QTest::addRow("%s, the setting of the view", name)
            << type << panel << @selector(setAccessoryView:) << false;
        QTest::addRow("%s, the folder", name)
            << type << panel << @selector(setDirectoryURL:) << false;
        QTest::addRow("%s, the types", name)
            << type << panel << @selector(setAllowedFileTypes:) << false;
        QTest::addRow("%s, the run", name) << type << panel << @selector(runModal) << false;
        QTest::addRow("%s, the answer", name) << type << panel << harvest << true;
        // A saved path is answered before the host hears of it.
        if (type != CVyUserIO::FileNameSave)
            QTest::addRow("%s, the host's bookmarks", name)
                << type << [VyMacDocumentController class] << @selector(createBookmark:) << true;
    }
}

void PanelFailureTest::raisingCancels()
{
    QFETCH(unsigned, type);
    QFETCH(Class, owner);
    QFETCH(SEL, selector);
    QFETCH(bool, answers);
    auto broken = std::make_unique<Replaced>(owner, selector, reinterpret_cast<IMP>(fail));
    std::vector<PanelDriver::Step> steps;
    if (answers)
        steps = {onPanel([](NSSavePanel* panel) {
                     if ([panel isKindOfClass:[NSOpenPanel class]])
                         selectNames(panel, {"plan.dwg"});
                 }),
                 accept()};
    compareFailure(type, steps, [&] { broken.reset(); });
}

void PanelFailureTest::raisingDelegateCancels_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::newRow("open") << unsigned(CVyUserIO::FileNameOpen);
    QTest::newRow("new") << unsigned(CVyUserIO::FileNameNew);
}

// The panel asks its delegate when it is given its types, and shows its folder.
void PanelFailureTest::raisingDelegateCancels()
{
    QFETCH(unsigned, type);
    auto broken = std::make_unique<Replaced>([CVyNSOpenSavePanelDelegate class],
                                             @selector(panel:shouldShowFilename:),
                                             reinterpret_cast<IMP>(fail));
    compareFailure(type, {}, [&] { broken.reset(); });
}

void PanelFailureTest::raisingActionCancels_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<SEL>("action");
    for (const auto& [name, type] : kinds) {
        QTest::addRow("%s, file type", name) << type << @selector(filterChanged:);
        if (type != CVyUserIO::FileNameSave)
            QTest::addRow("%s, mode", name) << type << @selector(openmodeChanged:);
    }
}

void PanelFailureTest::raisingActionCancels()
{
    QFETCH(unsigned, type);
    QFETCH(SEL, action);
    auto broken = std::make_unique<Replaced>([CVyViewFilterMacNative class], action,
                                             reinterpret_cast<IMP>(fail));
    auto work = std::make_unique<EventWork>(
        type, [action](NSSavePanel* panel) { choose(popup(panel, action), 1); });
    compareFailure(type, {EventWork::post()}, [&] {
        broken.reset();
        work.reset();
    });
}

void PanelFailureTest::unequalListsStopTheProgram_data()
{
    QTest::addColumn<QString>("filters");
    QTest::addColumn<QString>("extensions");
    QTest::newRow("more descriptions") << "a|b"
                                       << "dwg";
    QTest::newRow("more extensions") << "a"
                                     << "dwg|dxf";
    QTest::newRow("no extensions") << "a"
                                   << "";
    QTest::newRow("no descriptions") << ""
                                     << "dwg";
}

void PanelFailureTest::unequalListsStopTheProgram()
{
    QFETCH(QString, filters);
    QFETCH(QString, extensions);
    QProcess host;
    host.start(QCoreApplication::applicationFilePath(), {"--open", filters, extensions});
    QVERIFY(host.waitForFinished());
    QCOMPARE(host.exitStatus(), QProcess::CrashExit);
    QCOMPARE(host.exitCode(), SIGABRT);
    const QByteArray said = host.readAllStandardError();
    QVERIFY(said.contains("\"listFilterFileExt.length() == listFilter.length()\""));
    QVERIFY(said.contains("VyFileDialogs/VyFileDialogMacOpenMacNative,"));
}

void PanelFailureTest::unequalListsOfOtherKindsDoNotStop_data()
{
    QTest::addColumn<bool>("saves");
    QTest::addColumn<QStringList>("filters");
    QTest::addColumn<QStringList>("extensions");
    const QStringList none;
    for (const bool saves : {false, true}) {
        const char* const name = saves ? "save" : "new";
        QTest::addRow("%s, more descriptions", name)
            << saves << QStringList{"a", "b"} << QStringList{"dwg"};
        QTest::addRow("%s, more extensions", name)
            << saves << QStringList{"a"} << QStringList{"dwg", "dxf"};
        QTest::addRow("%s, no extensions", name) << saves << QStringList{"a", "b"} << none;
        QTest::addRow("%s, no descriptions", name) << saves << none << QStringList{"dwg"};
        QTest::addRow("%s, nothing", name) << saves << none << none;
    }
}

void PanelFailureTest::unequalListsOfOtherKindsDoNotStop()
{
    QFETCH(bool, saves);
    QFETCH(QStringList, filters);
    QFETCH(QStringList, extensions);
    std::unique_ptr<CVyFileDialogMacMacNative> dialog;
    if (saves)
        dialog = std::make_unique<CVyFileDialogMacSaveMacNative>();
    else
        dialog = std::make_unique<CVyFileDialogMacNewMacNative>();
    if (!saves)
        addFile("plan.dwg");
    dialog->SetListFilter(filters);
    dialog->SetListFilterFileExt(extensions);
    dialog->SetDirectory(path());
    dialog->SetDefaultFileName("plan.dwg");
    const PanelDriver driver({onPanel([&](NSSavePanel* panel) {
                                  NSPopUpButton* const types =
                                      popup(panel, @selector(filterChanged:));
                                  QCOMPARE(titles(types), filters);
                                  if (filters.size() > 1)
                                      choose(types, 1);
                                  if (!saves)
                                      selectNames(panel, {"plan.dwg"});
                              }),
                              accept()});
    dialog->DoModal();
    QStringList answer;
    dialog->GetFileNames(answer);
    QCOMPARE(answer, QStringList(path("plan.dwg")));
}

namespace {

// A host that fills an open panel's record with the lists, each joined by "|".
int openWithLists(const char* filters, const char* extensions)
{
    const rlimit noCore = {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    const auto list = [](const char* joined) {
        return QString::fromLatin1(joined).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    };
    CVyFileDialogMacOpenMacNative dialog(false, false, false);
    dialog.SetListFilter(list(filters));
    dialog.SetListFilterFileExt(list(extensions));
    const PanelDriver driver({cancel()});
    dialog.DoModal();
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    if (argc == 4 && std::strcmp(argv[1], "--open") == 0)
        return VyCocoa::canShowPanels() ? openWithLists(argv[2], argv[3]) : 1;
    PanelFailureTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PanelFailureTest.moc"
