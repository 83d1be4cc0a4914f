// SPDX-License-Identifier: MIT
// The active document while a native panel is up: whatever becomes of it, the
// request goes on, and no cursor is touched.
#include "HostDrawings.h"
#include "NativeTest.h"

#include <QTimer>

class ActiveDocumentPanelTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void whateverTheHostDoes_data() { addDrawingsChanges(); }
    void whateverTheHostDoes();
    void survivesTheWindowThatIsItsParent();
};

// The host's timer does it.
void ActiveDocumentPanelTest::whateverTheHostDoes()
{
    QFETCH(int, index);
    QFETCH(bool, accepts);
    const DrawingsChange& row = drawingsChanges[index];
    addFile("plan.dwg");
    HostDrawings host;
    HostRequest open = request(CVyUserIO::FileNameOpen);
    QTimer timer;
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, [&] {
        row.change(host);
        (accepts ? accept() : cancel())([NSApp modalWindow]);
    });
    run(open, {onPanel([&](NSSavePanel* panel) {
            QCOMPARE(host.cursors(), QString("cross, hourglass"));
            selectNames(panel, {"plan.dwg"});
            timer.start(0);
        })});
    QCOMPARE(open.status, accepts ? VyStatus::Accepted : VyStatus::Cancelled);
    QCOMPARE(host.cursors(), QString(row.afterPanel));
}

// A panel has no parent of Qt's that could take it away.
void ActiveDocumentPanelTest::survivesTheWindowThatIsItsParent()
{
    addFile("plan.dwg");
    HostDrawings host;
    host.window->show();
    QVERIFY(QTest::qWaitForWindowActive(host.window));
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.parent = host.window->winId();
    QTimer timer;
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, [&] {
        delete host.window;
        accept()([NSApp modalWindow]);
    });
    run(open, {onPanel([&](NSSavePanel* panel) {
            selectNames(panel, {"plan.dwg"});
            timer.start(0);
        })});
    QVERIFY(!host.window);
    QCOMPARE(open.status, VyStatus::Accepted);
    QCOMPARE(host.cursors(), QString("gone, hourglass"));
}

QTEST_MAIN(ActiveDocumentPanelTest)
#include "ActiveDocumentPanelTest.moc"
