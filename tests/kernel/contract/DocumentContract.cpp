// SPDX-License-Identifier: MIT
#include "KernelUnderTest.h"
#include "VyDocument.h"

#include <QtTest>

#include <memory>

/// The active document and its view, as the dialogs ask for them before and
/// after they run.
class DocumentContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { KernelUnderTest::closeDocument(); }

    void thereMayBeNone();
    void handsOutItsView();
    void needsNoView();
    void forgetsADeletedView();
    void forgetsAViewDeletedWithItsWindow();
    void leavesTheViewToTheHost();
    void theLatestIsActive();
    void noneIsLeftByAClosedOne();
};

void DocumentContract::thereMayBeNone()
{
    QVERIFY(!ACTIVE_DOCUMENT());
}

void DocumentContract::handsOutItsView()
{
    QWidget view;
    KernelUnderTest::openDocument(&view);
    QVERIFY(ACTIVE_DOCUMENT());
    QCOMPARE(ACTIVE_DOCUMENT()->GetViewWidget(), &view);
}

void DocumentContract::needsNoView()
{
    KernelUnderTest::openDocument(nullptr);
    QVERIFY(ACTIVE_DOCUMENT());
    QVERIFY(!ACTIVE_DOCUMENT()->GetViewWidget());
}

void DocumentContract::forgetsADeletedView()
{
    auto view = std::make_unique<QWidget>();
    KernelUnderTest::openDocument(view.get());
    view.reset();
    QVERIFY(ACTIVE_DOCUMENT());
    QVERIFY(!ACTIVE_DOCUMENT()->GetViewWidget());
}

void DocumentContract::forgetsAViewDeletedWithItsWindow()
{
    auto window = std::make_unique<QWidget>();
    KernelUnderTest::openDocument(new QWidget(window.get()));
    window.reset();
    QVERIFY(ACTIVE_DOCUMENT());
    QVERIFY(!ACTIVE_DOCUMENT()->GetViewWidget());
}

void DocumentContract::leavesTheViewToTheHost()
{
    QWidget window;
    const QPointer<QWidget> view = new QWidget(&window);
    KernelUnderTest::openDocument(view);
    KernelUnderTest::closeDocument();
    QVERIFY(view);
}

void DocumentContract::theLatestIsActive()
{
    QWidget first;
    QWidget second;
    KernelUnderTest::openDocument(&first);
    KernelUnderTest::openDocument(&second);
    QCOMPARE(ACTIVE_DOCUMENT()->GetViewWidget(), &second);
}

void DocumentContract::noneIsLeftByAClosedOne()
{
    QWidget view;
    KernelUnderTest::openDocument(&view);
    KernelUnderTest::closeDocument();
    QVERIFY(!ACTIVE_DOCUMENT());
}

QTEST_MAIN(DocumentContract)
#include "DocumentContract.moc"
