// SPDX-License-Identifier: MIT
#include "VyDocument.h"

#include <QtTest>

#include <memory>

/// The document that the user works on, and its view.
class DocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { VySetActiveDocument(nullptr); }

    void hostNamesTheActiveOne();
    void hostNamesNone();
    void deletedDocumentIsNotActive();
    void deletingAnotherChangesNothing();
    void knowsItsView();
    void needsNoView();
    void forgetsADeletedView();
    void leavesTheViewToTheHost();
};

// As the library was loaded.
void DocumentTest::initTestCase()
{
    QVERIFY(!ACTIVE_DOCUMENT());
}

void DocumentTest::hostNamesTheActiveOne()
{
    CVyDocument first;
    CVyDocument second;
    QVERIFY(!ACTIVE_DOCUMENT());
    VySetActiveDocument(&first);
    QCOMPARE(ACTIVE_DOCUMENT(), &first);
    VySetActiveDocument(&second);
    QCOMPARE(ACTIVE_DOCUMENT(), &second);
}

void DocumentTest::hostNamesNone()
{
    CVyDocument document;
    VySetActiveDocument(&document);
    VySetActiveDocument(nullptr);
    QVERIFY(!ACTIVE_DOCUMENT());
}

void DocumentTest::deletedDocumentIsNotActive()
{
    auto document = std::make_unique<CVyDocument>();
    VySetActiveDocument(document.get());
    document.reset();
    QVERIFY(!ACTIVE_DOCUMENT());
}

void DocumentTest::deletingAnotherChangesNothing()
{
    CVyDocument active;
    auto other = std::make_unique<CVyDocument>();
    VySetActiveDocument(other.get());
    VySetActiveDocument(&active);
    other.reset();
    QCOMPARE(ACTIVE_DOCUMENT(), &active);
}

void DocumentTest::knowsItsView()
{
    QWidget view;
    const CVyDocument document(&view);
    QCOMPARE(document.GetViewWidget(), &view);
}

void DocumentTest::needsNoView()
{
    CVyDocument document(nullptr);
    VySetActiveDocument(&document);
    QVERIFY(!ACTIVE_DOCUMENT()->GetViewWidget());
    QVERIFY(!CVyDocument().GetViewWidget());
}

void DocumentTest::forgetsADeletedView()
{
    auto view = std::make_unique<QWidget>();
    CVyDocument document(view.get());
    VySetActiveDocument(&document);
    view.reset();
    QCOMPARE(ACTIVE_DOCUMENT(), &document);
    QVERIFY(!ACTIVE_DOCUMENT()->GetViewWidget());
}

void DocumentTest::leavesTheViewToTheHost()
{
    QWidget window;
    const QPointer<QWidget> view = new QWidget(&window);
    {
        const CVyDocument document(view);
    }
    QVERIFY(view);
}

QTEST_MAIN(DocumentTest)
#include "DocumentTest.moc"
