// SPDX-License-Identifier: MIT
// There is one native panel at a time: what becomes of a request that is made
// while another one waits for its panel or has it up.
#include "NativeTest.h"

namespace {

struct Kind
{
    const char* name;
    unsigned type;
    CVyUserIO::_FileNameRetVal cancelledMode; ///< what a cancelled request answers
};

const Kind kinds[] = {
    {"open", CVyUserIO::FileNameOpen, CVyUserIO::Open},
    {"new", CVyUserIO::FileNameNew, CVyUserIO::NewFromTemplate},
    {"save", CVyUserIO::FileNameSave, CVyUserIO::Save},
};

int visiblePanels()
{
    int count = 0;
    for (NSWindow* window in [NSApp windows]) {
        if ([window isKindOfClass:[NSSavePanel class]] && [window isVisible])
            ++count;
    }
    return count;
}

// What a second request could disturb in the first one's panel.
struct PanelLook
{
    explicit PanelLook(NSSavePanel* panel)
        : view(accessoryView(panel))
        , delegate([panel delegate])
        , title(text([panel title]))
        , names(shownNames(panel))
        , types(texts([panel allowedFileTypes]))
        , folder(text([panel directory]))
        , fileName(text([panel nameFieldStringValue]))
    {}

    bool operator==(const PanelLook& other) const
    {
        return view == other.view && delegate == other.delegate && title == other.title &&
               names == other.names && types == other.types && folder == other.folder &&
               fileName == other.fileName;
    }

    NSView* view;
    id delegate;
    QString title;
    QStringList names;
    QStringList types;
    QString folder;
    QString fileName;
};

} // namespace

class NestedRequestTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void isCancelledWhileAnotherWaitsForItsPanel_data();
    void isCancelledWhileAnotherWaitsForItsPanel();
    void isCancelledWhileAPanelIsUp_data();
    void isCancelledWhileAPanelIsUp();
    void isCancelledWhenATimerMakesItUnderAPanel_data();
    void isCancelledWhenATimerMakesItUnderAPanel();
    void everyOneIsCancelled();
    void worksFromTheAnswerOn();

private:
    static void addPairs();
    HostRequest firstRequest(unsigned type);
    PanelDriver::Step answerFirst() const;
    void compareFirst(const HostRequest& first) const;
    HostRequest secondRequest(const Kind& kind) const;
    static void compareCancelled(const HostRequest& second, const Kind& kind);
};

Q_DECLARE_METATYPE(Kind)

void NestedRequestTest::addPairs()
{
    QTest::addColumn<Kind>("first");
    QTest::addColumn<Kind>("second");
    QTest::addColumn<bool>("several");
    for (const Kind& first : kinds) {
        for (const Kind& second : kinds) {
            for (const bool several : {false, true})
                QTest::addRow("%s%s during %s", second.name, several ? ", several files" : "",
                              first.name)
                    << first << second << several;
        }
    }
}

// Each with a folder of its own and a type that is not the first.
HostRequest NestedRequestTest::firstRequest(unsigned type)
{
    for (const char* name : {"first/a.dwg", "first/b.txt", "second/c.dwg", "second/d.dwt"})
        addFile(QLatin1String(name));
    HostRequest first = request(type);
    first.title = "First";
    first.start = path("first") + (type == CVyUserIO::FileNameSave ? "/new.dwg" : "");
    first.flags = CVyUserIO::FileNameModeChoices;
    return first;
}

PanelDriver::Step NestedRequestTest::answerFirst() const
{
    return onPanel([](NSSavePanel* panel) {
        if (NSPopUpButton* const modes = popup(panel, @selector(openmodeChanged:)))
            choose(modes, 1);
        if ([panel isKindOfClass:[NSOpenPanel class]])
            selectNames(panel, {"a.dwg"});
    });
}

void NestedRequestTest::compareFirst(const HostRequest& first) const
{
    const bool saves = first.type == CVyUserIO::FileNameSave;
    QCOMPARE(first.status, VyStatus::Accepted);
    // The name of a save is completed by the whole list of its type.
    QCOMPARE(first.paths, QStringList(path(saves ? "first/new.dwg.dwg;dxf" : "first/a.dwg")));
    QCOMPARE(first.mode, saves                                   ? CVyUserIO::Save
                         : first.type == CVyUserIO::FileNameOpen ? CVyUserIO::OpenReadOnly
                                                                 : CVyUserIO::NewImperial);
    QCOMPARE(first.typeIndex, 0);
}

HostRequest NestedRequestTest::secondRequest(const Kind& kind) const
{
    HostRequest second = request(kind.type);
    second.title = "Second";
    second.start = path("second");
    second.typeIndex = 1;
    second.templateName = "template";
    return second;
}

void NestedRequestTest::compareCancelled(const HostRequest& second, const Kind& kind)
{
    QCOMPARE(second.status, VyStatus::Cancelled);
    QCOMPARE(second.mode, kind.cancelledMode);
    QCOMPARE(second.paths, QStringList());
    QCOMPARE(second.typeIndex, 1);
    QVERIFY(!second.codePage);
}

void NestedRequestTest::isCancelledWhileAnotherWaitsForItsPanel_data()
{
    addPairs();
}

void NestedRequestTest::isCancelledWhileAnotherWaitsForItsPanel()
{
    QFETCH(Kind, first);
    QFETCH(Kind, second);
    QFETCH(bool, several);
    HostRequest outer = firstRequest(first.type);
    HostRequest inner = secondRequest(second);
    int panelsAfterwards = -1;
    const QObject here;
    QTimer::singleShot(20, &here, [&] {
        several ? inner.getFileNames({}) : inner.getFileName({});
        panelsAfterwards = visiblePanels();
    });
    run(outer, {onPanel([](NSSavePanel* panel) {
                    QCOMPARE(visiblePanels(), 1);
                    QCOMPARE(text([panel title]), QString("First"));
                    QVERIFY(accessoryView(panel));
                }),
                answerFirst(), accept()});
    QCOMPARE(panelsAfterwards, 0);
    compareCancelled(inner, second);
    compareFirst(outer);
}

void NestedRequestTest::isCancelledWhileAPanelIsUp_data()
{
    addPairs();
}

void NestedRequestTest::isCancelledWhileAPanelIsUp()
{
    QFETCH(Kind, first);
    QFETCH(Kind, second);
    QFETCH(bool, several);
    HostRequest outer = firstRequest(first.type);
    HostRequest inner = secondRequest(second);
    run(outer, {answerFirst(), onPanel([&](NSSavePanel* panel) {
                    const PanelLook before(panel);
                    several ? inner.getFileNames({}) : inner.getFileName({});
                    QVERIFY(PanelLook(panel) == before);
                    QCOMPARE(visiblePanels(), 1);
                    QVERIFY([panel isVisible]);
                    QCOMPARE([NSApp modalWindow], panel);
                }),
                accept()});
    compareCancelled(inner, second);
    compareFirst(outer);
}

void NestedRequestTest::isCancelledWhenATimerMakesItUnderAPanel_data()
{
    addPairs();
}

// The host's timers go on while a panel is up.
void NestedRequestTest::isCancelledWhenATimerMakesItUnderAPanel()
{
    QFETCH(Kind, first);
    QFETCH(Kind, second);
    QFETCH(bool, several);
    HostRequest outer = firstRequest(first.type);
    HostRequest inner = secondRequest(second);
    QTimer timer;
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, [&] {
        several ? inner.getFileNames({}) : inner.getFileName({});
        QCOMPARE(visiblePanels(), 1);
        accept()([NSApp modalWindow]);
    });
    run(outer, {answerFirst(), onPanel([&](NSSavePanel*) { timer.start(0); })});
    compareCancelled(inner, second);
    compareFirst(outer);
}

// The one that is turned away does not give the turn of the other one back.
void NestedRequestTest::everyOneIsCancelled()
{
    HostRequest outer = firstRequest(CVyUserIO::FileNameOpen);
    std::vector<HostRequest> inner(6, secondRequest(kinds[0]));
    const QObject here;
    QTimer::singleShot(0, &here, [&] {
        inner[0].getFileName({});
        inner[1].getFileName({});
    });
    QTimer::singleShot(50, &here, [&] { inner[2].getFileName({}); });
    run(outer, {onPanel([&](NSSavePanel*) {
                    inner[3].getFileName({});
                    inner[4].getFileName({});
                }),
                onPanel([&](NSSavePanel*) { inner[5].getFileName({}); }), answerFirst(), accept()});
    for (const HostRequest& request : inner)
        compareCancelled(request, kinds[0]);
    compareFirst(outer);
}

void NestedRequestTest::worksFromTheAnswerOn()
{
    for (const bool accepted : {true, false}) {
        HostRequest outer = firstRequest(CVyUserIO::FileNameOpen);
        HostRequest inner = secondRequest(kinds[0]);
        run(outer, {onPanel([&](NSSavePanel*) { inner.getFileName({}); }), answerFirst(),
                    accepted ? accept() : cancel()});
        compareCancelled(inner, kinds[0]);
        QCOMPARE(outer.status, accepted ? VyStatus::Accepted : VyStatus::Cancelled);

        run(inner, {onPanel([](NSSavePanel* panel) {
                        QCOMPARE(text([panel title]), QString("Second"));
                        QCOMPARE(shownNames(panel), QStringList("d.dwt"));
                        selectNames(panel, {"d.dwt"});
                    }),
                    accept()});
        QCOMPARE(inner.status, VyStatus::Accepted);
        QCOMPARE(inner.paths, QStringList(path("second/d.dwt")));
    }
}

QTEST_MAIN(NestedRequestTest)
#include "NestedRequestTest.moc"
