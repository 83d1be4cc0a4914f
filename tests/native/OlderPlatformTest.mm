// SPDX-License-Identifier: MIT
// Systems before macOS 10.6 get other messages. Which system this is, is made
// up; that the answers come out right shows that the messages suffice.
#include "NativeTest.h"

#include "NSOpenPanelExt.h"
#include "VyNSOpenSavePanelDelegate.h"

#import <objc/runtime.h>

namespace {

struct Hook
{
    Class owner;
    SEL selector;
    IMP original;
};

// Notes what is sent to a panel by code that is not the panel's own, and passes
// it on. Methods once replaced stay so: the runtime forgets to tell subclasses
// of a second change.
class Recorder
{
public:
    Recorder();
    Q_DISABLE_COPY(Recorder)

    static QStringList take()
    {
        const QStringList result = messages;
        messages.clear();
        return result;
    }

    static IMP original(id receiver, SEL selector)
    {
        const Class owner = object_getClass(receiver);
        for (const Hook& hook : s_hooks) {
            if (owner == hook.owner && sel_isEqual(hook.selector, selector))
                return hook.original;
        }
        return nullptr;
    }

    // While it lives, messages are the panel's own.
    class Passing
    {
    public:
        Passing() { ++s_depth; }
        ~Passing() { --s_depth; }
        Q_DISABLE_COPY(Passing)
    };

    // While it lives, messages are others' again: for a driver's step.
    class Listening
    {
    public:
        Listening() { s_depth = 0; }
        ~Listening() { s_depth = m_depth; }
        Q_DISABLE_COPY(Listening)

    private:
        const int m_depth = s_depth;
    };

    static void note(SEL selector, NSString* argument)
    {
        if (s_depth > 0)
            return;
        const QString name = QString::fromLatin1(sel_getName(selector));
        messages += argument ? QString(name + QLatin1Char(' ') + text(argument)) : name;
    }

private:
    static inline QStringList messages;
    static inline std::vector<Hook> s_hooks;
    static inline int s_depth = 0;
};

void passOn(id self, SEL selector, id argument)
{
    const Recorder::Passing passing;
    reinterpret_cast<void (*)(id, SEL, id)>(Recorder::original(self, selector))(self, selector,
                                                                                argument);
}

void noteString(id self, SEL selector, NSString* string)
{
    Recorder::note(selector, string);
    passOn(self, selector, string);
}

void noteUrl(id self, SEL selector, NSURL* url)
{
    Recorder::note(selector, [url path]);
    passOn(self, selector, url);
}

void noteTypes(id self, SEL selector, NSArray* types)
{
    Recorder::note(selector, types ? [types componentsJoinedByString:@" "] : @"nil");
    passOn(self, selector, types);
}

NSInteger noteRun(id self, SEL selector)
{
    Recorder::note(selector, nil);
    const Recorder::Passing passing;
    return reinterpret_cast<NSInteger (*)(id, SEL)>(Recorder::original(self, selector))(self,
                                                                                        selector);
}

// Before its title a panel has only been sent what it sends itself.
void noteTitle(id self, SEL selector, NSString* title)
{
    Recorder::take();
    passOn(self, selector, title);
}

void replace(std::vector<Hook>& hooks, Class owner, SEL selector, IMP replacement)
{
    const Method method = class_getInstanceMethod(owner, selector);
    hooks.push_back({owner, selector, method_getImplementation(method)});
    // A method that the class inherits becomes its own.
    if (!class_addMethod(owner, selector, replacement, method_getTypeEncoding(method)))
        method_setImplementation(method, replacement);
}

// A subclass comes before its superclass, so that it keeps what it inherited.
std::vector<Hook> replaceMethods()
{
    std::vector<Hook> hooks;
    for (Class panel : {[NSOpenPanelExtWithSelectAll class],
                        [NSOpenPanelExt class],
                        object_getClass([NSSavePanel savePanel])}) {
        replace(hooks, panel, @selector(setTitle:), reinterpret_cast<IMP>(noteTitle));
        replace(hooks, panel, @selector(setDirectory:), reinterpret_cast<IMP>(noteString));
        replace(hooks, panel, @selector(setNameFieldStringValue:),
                reinterpret_cast<IMP>(noteString));
        replace(hooks, panel, @selector(setDirectoryURL:), reinterpret_cast<IMP>(noteUrl));
        replace(hooks, panel, @selector(setAllowedFileTypes:), reinterpret_cast<IMP>(noteTypes));
        replace(hooks, panel, @selector(runModal), reinterpret_cast<IMP>(noteRun));
    }
    return hooks;
}

Recorder::Recorder()
{
    if (s_hooks.empty())
        s_hooks = replaceMethods();
    take();
}

constexpr int before10_6 = 7;

} // namespace

class OlderPlatformTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void isToldByItsVersion_data();
    void isToldByItsVersion();
    void openPanelIsSentOtherMessages_data();
    void openPanelIsSentOtherMessages();
    void openRequestIsAnswered();
    void severalFilesAreAnswered();
    void typeGoesToTheDelegateAlone();
    void newPanelIsRunAlike_data();
    void newPanelIsRunAlike();
    void saveTakesNoName_data();
    void saveTakesNoName();
};

void OlderPlatformTest::isToldByItsVersion_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<bool>("newer");
    for (int version = 2; version < 8; ++version)
        QTest::addRow("10.%d", version - 2) << version << false;
    QTest::newRow("10.6") << 8 << true;
    QTest::newRow("10.7") << 9 << true;
    QTest::newRow("10.12") << 14 << true;
    QTest::newRow("newer than Qt") << 0 << true;
    QTest::newRow("no Macintosh") << 0xffff << true;
}

void OlderPlatformTest::isToldByItsVersion()
{
    QFETCH(int, version);
    VyCocoa::setMacintoshVersion(version);
    QTEST(VyCocoa::isNewerPlatform(), "newer");
}

void OlderPlatformTest::openPanelIsSentOtherMessages_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<QStringList>("expected");
    const QStringList older{"setDirectory: FOLDER", "setAllowedFileTypes: dwg dxf",
                            "setDirectoryURL: FOLDER/(null)", "setAllowedFileTypes: dwg dxf",
                            "runModal"};
    const QStringList newer{"setAllowedFileTypes: dwg dxf", "setDirectoryURL: FOLDER",
                            "setAllowedFileTypes: dwg dxf", "runModal"};
    QTest::newRow("10.0") << 2 << older;
    QTest::newRow("10.5") << 7 << older;
    QTest::newRow("10.6") << 8 << newer;
    QTest::newRow("newer than Qt") << 0 << newer;
    QTest::newRow("no Macintosh") << 0xffff << newer;
}

void OlderPlatformTest::openPanelIsSentOtherMessages()
{
    QFETCH(int, version);
    QFETCH(QStringList, expected);
    VyCocoa::setMacintoshVersion(version);
    HostRequest open = request(CVyUserIO::FileNameOpen);
    Recorder recorder;
    run(open, {cancel()});
    QCOMPARE(recorder.take().join("; "), expected.replaceInStrings("FOLDER", path()).join("; "));
    QCOMPARE(open.status, VyStatus::Cancelled);
}

void OlderPlatformTest::openRequestIsAnswered()
{
    VyCocoa::setMacintoshVersion(before10_6);
    for (const char* name : {"plan.dwg", "plan.dxf", "notes.txt", "house.dwt"})
        addFile(QLatin1String(name));
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.flags = CVyUserIO::FileNameModeChoices;
    run(open, {onPanel([this](NSSavePanel* panel) {
                   QCOMPARE(text([panel directory]), path());
                   QCOMPARE(shownNames(panel), QStringList({"plan.dwg", "plan.dxf"}));
                   choose(popup(panel, @selector(openmodeChanged:)), 1);
                   selectNames(panel, {"plan.dxf"});
               }),
               accept()});
    QCOMPARE(open.status, VyStatus::Accepted);
    QCOMPARE(open.paths, QStringList(path("plan.dxf")));
    QCOMPARE(open.mode, CVyUserIO::OpenReadOnly);
}

void OlderPlatformTest::severalFilesAreAnswered()
{
    VyCocoa::setMacintoshVersion(before10_6);
    for (const char* name : {"a.dwg", "b.dwg", "c.dwg"})
        addFile(QLatin1String(name));
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.flags = CVyUserIO::FileNameModeChoices;
    runSeveral(open, {onPanel([](NSSavePanel* panel) {
                          selectNames(panel, {"a.dwg", "c.dwg"});
                      }),
                      accept()});
    QCOMPARE(open.status, VyStatus::Accepted);
    QCOMPARE(open.paths, QStringList({path("a.dwg"), path("c.dwg")}));
}

// A type that is picked restricts the delegate, and the folder moves by name.
void OlderPlatformTest::typeGoesToTheDelegateAlone()
{
    VyCocoa::setMacintoshVersion(before10_6);
    addFolder("templates");
    const QString templates = path("templates");
    HostRequest open = request(CVyUserIO::FileNameOpen);
    Recorder recorder;
    run(open, {onPanel([&](NSSavePanel* panel) {
                   recorder.take();
                   CVyViewFilterMacNative* const view = accessoryView(panel);
                   const auto delegate = static_cast<CVyNSOpenSavePanelDelegate*>([panel delegate]);
                   const Recorder::Listening listening;
                   choose(popup(panel, @selector(filterChanged:)), 1);
                   QVERIFY([delegate panel:panel shouldShowFilename:@"/x/a.dwt"]);
                   QVERIFY(![delegate panel:panel shouldShowFilename:@"/x/a.dwg"]);
                   const QStringList sent = recorder.take();
                   QCOMPARE(sent.filter("setAllowedFileTypes:"), QStringList());
                   QCOMPARE(sent.filter("setDirectoryURL:"), QStringList());
                   QCOMPARE(sent.filter("setDirectory:").size(), 1);
                   [view setDirectory:[NSString stringWithUTF8String:qPrintable(templates)]];
                   QCOMPARE(recorder.take(), QStringList("setDirectory: " + templates));
                   QCOMPARE(text([panel directory]), templates);
               }),
               cancel()});
}

void OlderPlatformTest::newPanelIsRunAlike_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("expected");
    const QStringList view{"setAllowedFileTypes: dwg dxf"};
    const QStringList run{"setAllowedFileTypes: dwg dxf", "runModal"};
    const QStringList folder{"setDirectoryURL: FOLDER"};
    const QStringList file{"setDirectoryURL: FOLDER/a.dwg"};
    QTest::newRow("older") << 7 << QString() << folder + run;
    QTest::newRow("older, with a name") << 7 << "a.dwg" << file + run;
    QTest::newRow("newer") << 8 << QString() << view + folder + run;
    QTest::newRow("newer, with a name") << 8 << "a.dwg" << view + file + run;
}

void OlderPlatformTest::newPanelIsRunAlike()
{
    QFETCH(int, version);
    QFETCH(QString, name);
    QFETCH(QStringList, expected);
    VyCocoa::setMacintoshVersion(version);
    addFile("a.dwg");
    HostRequest request = this->request(CVyUserIO::FileNameNew);
    request.start = path(name);
    Recorder recorder;
    run(request, {onPanel([](NSSavePanel* panel) { selectNames(panel, {"a.dwg"}); }), accept()});
    QCOMPARE(recorder.take().join("; "), expected.replaceInStrings("FOLDER", path()).join("; "));
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList(path("a.dwg")));
}

void OlderPlatformTest::saveTakesNoName_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("older") << 7 << QString()
                           << QStringList{"setAllowedFileTypes: dwg dxf", "setDirectory: FOLDER",
                                          "runModal"};
    QTest::newRow("newer") << 8 << "plan.dwg"
                           << QStringList{"setNameFieldStringValue: plan.dwg",
                                          "setAllowedFileTypes: dwg dxf", "setDirectoryURL: FOLDER",
                                          "runModal"};
}

void OlderPlatformTest::saveTakesNoName()
{
    QFETCH(int, version);
    QFETCH(QString, name);
    QFETCH(QStringList, expected);
    VyCocoa::setMacintoshVersion(version);
    HostRequest save = request(CVyUserIO::FileNameSave);
    save.start = path("plan.dwg");
    save.withTypeIndex = false; // the name is answered as it is
    Recorder recorder;
    run(save, {onPanel([&](NSSavePanel* panel) {
                   QCOMPARE(text([panel nameFieldStringValue]), name.isNull() ? "" : name);
                   QCOMPARE(text([panel directory]), path());
                   [panel setNameFieldStringValue:@"typed.dwg"];
               }),
               accept()});
    QCOMPARE(recorder.take().join("; "), expected.replaceInStrings("FOLDER", path()).join("; "));
    QCOMPARE(save.status, VyStatus::Accepted);
    QCOMPARE(save.paths, QStringList(path("typed.dwg")));
}

QTEST_MAIN(OlderPlatformTest)
#include "OlderPlatformTest.moc"
