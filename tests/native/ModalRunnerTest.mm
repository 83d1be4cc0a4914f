// SPDX-License-Identifier: MIT
// The modal runner, mostly with a stand-in for the panel: any object that
// understands the messages of a run will do.
#include "NativeTest.h"

#include "VyFileDialogMacDoModal.h"

#include <QMetaMethod>
#include <QThread>

#include <limits>

namespace {

// What the stand-in was sent, and what it does when it is run.
struct PanelScript
{
    QStringList messages;
    std::function<NSInteger()> run;
};

} // namespace

@interface PanelStandIn : NSObject {
@public
    PanelScript* script;
}
@end

@implementation PanelStandIn

- (void)setDirectoryURL:(NSURL*)url
{
    script->messages += QStringLiteral("setDirectoryURL: ") + text([url absoluteString]);
}

- (void)setAllowedFileTypes:(NSArray*)types
{
    script->messages += QStringLiteral("setAllowedFileTypes: ") +
                        (types ? texts(types).join(QLatin1Char(' ')) : QStringLiteral("nil"));
}

- (NSInteger)runModal
{
    script->messages += QStringLiteral("runModal");
    return script->run();
}

@end

class ModalRunnerTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void answersNoPanelAfterATurnOfTheLoop();
    void runsFromANestedLoopAfterADelay_data();
    void runsFromANestedLoopAfterADelay();
    void answersWhatThePanelAnswers_data();
    void answersWhatThePanelAnswers();
    void sendsFolderAndTypesFirst_data();
    void sendsFolderAndTypesFirst();
    void keepsNothing_data();
    void keepsNothing();
    void takesBackOneOverrideCursor_data();
    void takesBackOneOverrideCursor();
    void cancelsAPanelThatRaises_data();
    void cancelsAPanelThatRaises();
    void cancelsAPanelThatThrowsAnotherObject_data();
    void cancelsAPanelThatThrowsAnotherObject();
    void onlyTheNewerHelperCatches();
    void endsWithTheHost_data();
    void endsWithTheHost();
    void runsNothingOnceTheHostHasEnded();
    void hostThatEndsCancelsItsRequest();
    void hostThatEndsUnderAPanelKeepsTheAnswer();
    void hasTwoSlots();
    void answersItsClassName();
    void dispatchesItsOwnCallsOnly();

private:
    enum Form
    {
        PanelAlone,
        WithFolder
    };
    static void addForms();
    static int doModal(Form form, id panel);
    static int runHost(const std::function<void()>& host);
    /// A new one, which does \a work when it is run.
    PanelStandIn* standIn(std::function<NSInteger()> work);
    PanelStandIn* standIn(NSInteger response);

    PanelScript m_script;
};

Q_DECLARE_METATYPE(NSInteger)

PanelStandIn* ModalRunnerTest::standIn(std::function<NSInteger()> work)
{
    m_script.messages.clear();
    m_script.run = std::move(work);
    PanelStandIn* const panel = [[[PanelStandIn alloc] init] autorelease];
    panel->script = &m_script;
    return panel;
}

PanelStandIn* ModalRunnerTest::standIn(NSInteger response)
{
    return standIn([response] { return response; });
}

void ModalRunnerTest::addForms()
{
    QTest::addColumn<int>("form");
    QTest::newRow("panel alone") << int(PanelAlone);
    QTest::newRow("with folder and types") << int(WithFolder);
}

int ModalRunnerTest::doModal(Form form, id panel)
{
    CVyFileDialogMacDoModal runner;
    return form == PanelAlone
               ? runner.doModal(panel)
               : runner.doModal(panel, @"/Users/a", @"b.dwg", [NSArray arrayWithObject:@"dwg"]);
}

// The host's own event loop, around what the host does in it.
int ModalRunnerTest::runHost(const std::function<void()>& host)
{
    QTimer::singleShot(0, qApp, host);
    return QCoreApplication::exec();
}

void ModalRunnerTest::answersNoPanelAfterATurnOfTheLoop()
{
    const int outerLevel = QThread::currentThread()->loopLevel();
    int innerLevel = 0;
    const QObject here;
    QTimer::singleShot(0, &here, [&] { innerLevel = QThread::currentThread()->loopLevel(); });
    QElapsedTimer elapsed;
    elapsed.start();
    QCOMPARE(CVyFileDialogMacDoModal().doModal(nullptr), 0);
    QVERIFY(elapsed.elapsed() >= 99);
    QVERIFY(elapsed.elapsed() < 5000);
    QCOMPARE(innerLevel, outerLevel + 1);
    QCOMPARE(QThread::currentThread()->loopLevel(), outerLevel);
}

void ModalRunnerTest::runsFromANestedLoopAfterADelay_data()
{
    addForms();
}

// Timers that are due come in their order, however slow the machine is.
void ModalRunnerTest::runsFromANestedLoopAfterADelay()
{
    QFETCH(int, form);
    const int outerLevel = QThread::currentThread()->loopLevel();
    int innerLevel = 0;
    QStringList order;
    PanelStandIn* const panel = standIn([&] {
        innerLevel = QThread::currentThread()->loopLevel();
        order += "panel";
        return NSInteger(0);
    });
    const QObject here;
    QTimer::singleShot(0, &here, [&] { order += "at once"; });
    QTimer::singleShot(90, &here, [&] { order += "90 ms"; });
    QTimer::singleShot(150, &here, [&] { order += "150 ms"; });
    QCOMPARE(doModal(Form(form), panel), 0);
    order = order.mid(0, 3);
    QCOMPARE(order, QStringList({"at once", "90 ms", "panel"}));
    QCOMPARE(innerLevel, outerLevel + 1);
    QCOMPARE(QThread::currentThread()->loopLevel(), outerLevel);
}

void ModalRunnerTest::answersWhatThePanelAnswers_data()
{
    QTest::addColumn<NSInteger>("response");
    QTest::addColumn<int>("answer");
    QTest::newRow("OK") << NSInteger(1) << 1;
    QTest::newRow("cancel") << NSInteger(0) << 0;
    QTest::newRow("another button") << NSInteger(2) << 2;
    QTest::newRow("alert button") << NSInteger(1000) << 1000;
    QTest::newRow("stopped") << NSInteger(-1000) << -1000;
    QTest::newRow("aborted") << NSInteger(-1001) << -1001;
    QTest::newRow("minus one") << NSInteger(-1) << -1;
    QTest::newRow("largest") << NSInteger(std::numeric_limits<int>::max())
                             << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << NSInteger(std::numeric_limits<int>::min())
                              << std::numeric_limits<int>::min();
}

void ModalRunnerTest::answersWhatThePanelAnswers()
{
    QFETCH(NSInteger, response);
    QTEST(doModal(PanelAlone, standIn(response)), "answer");
    QCOMPARE(m_script.messages, QStringList("runModal"));
    QTEST(doModal(WithFolder, standIn(response)), "answer");
}

void ModalRunnerTest::sendsFolderAndTypesFirst_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("types");
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("typesSent");
    const QStringList none;
    QTest::newRow("folder and name") << "/Users/a"
                                     << "b.dwg" << QStringList{"dwg"} << "file:///Users/a/b.dwg"
                                     << "dwg";
    QTest::newRow("order of types")
        << "/Users/a"
        << "b.dwg" << QStringList{"dxf", "dwg", "*"} << "file:///Users/a/b.dwg"
        << "dxf dwg *";
    QTest::newRow("no types") << "/Users/a"
                              << "b.dwg" << none << "file:///Users/a/b.dwg"
                              << "nil";
    QTest::newRow("no name") << "/Users/a" << QString() << QStringList{"dwg"}
                             << "file:///Users/a/(null)"
                             << "dwg";
    QTest::newRow("neither name nor types")
        << "/Users/a" << QString() << none << "file:///Users/a/(null)"
        << "nil";
    QTest::newRow("blank and percent sign")
        << "/Users/a b"
        << "50%@.dwg" << none << "file:///Users/a%20b/50%25@.dwg"
        << "nil";
}

void ModalRunnerTest::sendsFolderAndTypesFirst()
{
    QFETCH(QString, folder);
    QFETCH(QString, name);
    QFETCH(QStringList, types);
    QFETCH(QString, url);
    QFETCH(QString, typesSent);
    NSArray* const typeArray =
        types.isEmpty() ? nil : [CVyViewFilterToolMacNative getArrayFilter:&types];
    NSString* const nativeName =
        name.isNull() ? nil : [NSString stringWithUTF8String:name.toUtf8().constData()];
    QCOMPARE(CVyFileDialogMacDoModal().doModal(
                 standIn(1), [NSString stringWithUTF8String:folder.toUtf8().constData()],
                 nativeName, typeArray),
             1);
    QCOMPARE(m_script.messages, QStringList({"setDirectoryURL: " + url,
                                             "setAllowedFileTypes: " + typesSent, "runModal"}));
}

void ModalRunnerTest::keepsNothing_data()
{
    addForms();
}

void ModalRunnerTest::keepsNothing()
{
    QFETCH(int, form);
    NSUInteger countMeanwhile = 0;
    PanelStandIn* panel = nil;
    panel = standIn([&] {
        countMeanwhile = [panel retainCount];
        return NSInteger(1);
    });
    const NSUInteger count = [panel retainCount];
    doModal(Form(form), panel);
    QCOMPARE(countMeanwhile, count);
    QCOMPARE([panel retainCount], count);
}

void ModalRunnerTest::takesBackOneOverrideCursor_data()
{
    addForms();
}

void ModalRunnerTest::takesBackOneOverrideCursor()
{
    QFETCH(int, form);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    QList<Qt::CursorShape> shapes;
    const auto look = [&shapes] { shapes += QGuiApplication::overrideCursor()->shape(); };
    const QObject here;
    QTimer::singleShot(0, &here, look);
    doModal(Form(form), standIn([&] {
                look();
                return NSInteger(0);
            }));
    look();
    QGuiApplication::restoreOverrideCursor();
    QCOMPARE(shapes, QList<Qt::CursorShape>({Qt::WaitCursor, Qt::WaitCursor, Qt::WaitCursor}));

    QCOMPARE(doModal(Form(form), standIn(1)), 1); // there is none left to take back
    QVERIFY(!QGuiApplication::overrideCursor());
}

void ModalRunnerTest::cancelsAPanelThatRaises_data()
{
    addForms();
}

void ModalRunnerTest::cancelsAPanelThatRaises()
{
    QFETCH(int, form);
    const int level = QThread::currentThread()->loopLevel();
    PanelStandIn* const broken = standIn([]() -> NSInteger {
        [NSException raise:NSGenericException format:@"the panel %@", @"broke"];
        return 1;
    });
    QCOMPARE(doModal(Form(form), broken), 0);
    QCOMPARE(takeMessages(), QStringList("VyFileDialogs: the native panel raised " +
                                         text(NSGenericException) + ": the panel broke"));
    QCOMPARE(QThread::currentThread()->loopLevel(), level);

    QCOMPARE(doModal(Form(form), standIn(1)), 1);
}

void ModalRunnerTest::cancelsAPanelThatThrowsAnotherObject_data()
{
    addForms();
}

// Whatever is thrown, it is no answer, and the host's loop is not to be left by it.
void ModalRunnerTest::cancelsAPanelThatThrowsAnotherObject()
{
    QFETCH(int, form);
    PanelStandIn* const panel = standIn([]() -> NSInteger { @throw @"no exception object"; });
    int response = -1;
    bool escaped = false;
    @try {
        response = doModal(Form(form), panel);
    } @catch (NSString* thrown) {
        escaped = true;
    }
    QVERIFY(!escaped);
    QCOMPARE(response, 0);
    QCOMPARE(takeMessages().size(), 1);
}

void ModalRunnerTest::onlyTheNewerHelperCatches()
{
    PanelStandIn* const panel = standIn([]() -> NSInteger {
        [NSException raise:NSRangeException format:@"out of range"];
        return 1;
    });
    QCOMPARE(CVyFileDialogMacDoModalCocoa().doModal_10_6(nullptr), 0);
    QCOMPARE(CVyFileDialogMacDoModalCocoa().doModal_10_6(panel), 0);
    QCOMPARE(takeMessages().size(), 1);

    QString raised;
    @try {
        CVyFileDialogMacDoModalCocoa().doModal_10_5(panel, @"/a", nil, nil);
    } @catch (NSException* exception) {
        raised = text([exception reason]);
    }
    QCOMPARE(raised, QString("out of range"));
}

void ModalRunnerTest::endsWithTheHost_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<int>("code");
    for (const int form : {int(PanelAlone), int(WithFolder)}) {
        const char* const name = form == PanelAlone ? "panel alone" : "with folder and types";
        QTest::addRow("exit(1), %s", name) << form << 1;
        QTest::addRow("exit(0), %s", name) << form << 0;
        QTest::addRow("exit(7), %s", name) << form << 7;
        QTest::addRow("quit, %s", name) << form << -1;
    }
}

// The code that the host ends with is no answer of the panel.
void ModalRunnerTest::endsWithTheHost()
{
    QFETCH(int, form);
    QFETCH(int, code);
    int response = -1;
    const int hostCode = runHost([&] {
        QTimer::singleShot(20, [code] {
            if (code < 0)
                QCoreApplication::quit();
            else
                QCoreApplication::exit(code);
        });
        response = doModal(Form(form), standIn(1));
    });
    QCOMPARE(hostCode, code < 0 ? 0 : code);
    QCOMPARE(response, 0);
    QTest::qWait(150);
    QCOMPARE(m_script.messages, QStringList());
}

void ModalRunnerTest::runsNothingOnceTheHostHasEnded()
{
    int response = -1;
    runHost([&] {
        QCoreApplication::exit(1);
        response = doModal(PanelAlone, standIn(1));
    });
    QCOMPARE(response, 0);
    QTest::qWait(150);
    QCOMPARE(m_script.messages, QStringList());
}

void ModalRunnerTest::hostThatEndsCancelsItsRequest()
{
    addFile("plan.dwg");
    HostRequest open = request(CVyUserIO::FileNameOpen);
    const int hostCode = runHost([&] {
        QTimer::singleShot(20, [] { QCoreApplication::exit(1); });
        run(open, {});
    });
    QCOMPARE(hostCode, 1);
    QCOMPARE(open.status, VyStatus::Cancelled);
    QCOMPARE(open.paths, QStringList());
    run(open, {onPanel([](NSSavePanel* panel) { selectNames(panel, {"plan.dwg"}); }), accept()});
    QCOMPARE(open.status, VyStatus::Accepted);
}

void ModalRunnerTest::hostThatEndsUnderAPanelKeepsTheAnswer()
{
    addFile("plan.dwg");
    HostRequest open = request(CVyUserIO::FileNameOpen);
    const int hostCode = runHost([&] {
        run(open, {onPanel([](NSSavePanel* panel) {
                       QCoreApplication::exit(3);
                       selectNames(panel, {"plan.dwg"});
                   }),
                   accept()});
    });
    QCOMPARE(hostCode, 3);
    QCOMPARE(open.status, VyStatus::Accepted);
    QCOMPARE(open.paths, QStringList(path("plan.dwg")));
}

void ModalRunnerTest::hasTwoSlots()
{
    const QMetaObject& meta = CVyFileDialogMacDoModal::staticMetaObject;
    QCOMPARE(meta.className(), "CVyFileDialogMacDoModal");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    const char* const signatures[] = {"slot_doModal_10_6()", "slot_doModal_10_5()"};
    for (int index = 0; index < 2; ++index) {
        const QMetaMethod method = meta.method(meta.methodOffset() + index);
        QCOMPARE(method.methodSignature(), QByteArray(signatures[index]));
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        QCOMPARE(method.access(), QMetaMethod::Public);
        QCOMPARE(method.returnType(), int(QMetaType::Void));
    }
}

void ModalRunnerTest::answersItsClassName()
{
    CVyFileDialogMacDoModal runner;
    QCOMPARE(runner.metaObject(), &CVyFileDialogMacDoModal::staticMetaObject);
    QVERIFY(!runner.parent());
    QCOMPARE(runner.qt_metacast("CVyFileDialogMacDoModal"), static_cast<void*>(&runner));
    QCOMPARE(runner.qt_metacast("QObject"), static_cast<void*>(static_cast<QObject*>(&runner)));
    QVERIFY(!runner.qt_metacast("QTimer"));
    QVERIFY(!runner.qt_metacast(nullptr));
}

void ModalRunnerTest::dispatchesItsOwnCallsOnly()
{
    CVyFileDialogMacDoModal runner;
    const int own = CVyFileDialogMacDoModal::staticMetaObject.methodOffset();
    QCOMPARE(runner.qt_metacall(QMetaObject::InvokeMetaMethod, own + 5, nullptr), 3);
    for (const int index : {0, 1}) {
        int argumentType = 7;
        int argument = 0;
        void* arguments[] = {&argumentType, &argument};
        QCOMPARE(
            runner.qt_metacall(QMetaObject::RegisterMethodArgumentMetaType, own + index, arguments),
            index - 2);
        QCOMPARE(argumentType, -1);
    }
}

QTEST_MAIN(ModalRunnerTest)
#include "ModalRunnerTest.moc"
