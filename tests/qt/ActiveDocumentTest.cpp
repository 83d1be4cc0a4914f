// SPDX-License-Identifier: MIT
// The cursor over the active document's view while the Qt dialog is up, and
// afterwards, whatever becomes of the document meanwhile.
#include "HostDrawings.h"
#include "HostRequest.h"

#include <QTimer>
#include <QtTest>

class ActiveDocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }

    void whateverTheHostDoes_data() { addDrawingsChanges(); }
    void whateverTheHostDoes();
    void survivesTheWindowThatIsItsParent();
    void worksWithoutADocument();
    void worksWithoutAView();
    void aDocumentOpenedMeanwhile();
    void requestInsideARequest();
    void aViewWithoutACursorOfItsOwn();
};

// The host's timer does it.
void ActiveDocumentTest::whateverTheHostDoes()
{
    QFETCH(int, index);
    QFETCH(bool, accepts);
    const DrawingsChange& row = drawingsChanges[index];
    HostDrawings host;
    HostRequest request;
    request.getFileName({[&](QDialog& dialog) {
        QCOMPARE(host.cursors(), QString("arrow, hourglass"));
        QTimer::singleShot(0, &dialog, [&] {
            row.change(host);
            dialog.done(accepts ? QDialog::Accepted : QDialog::Rejected);
        });
    }});
    QCOMPARE(request.status, accepts ? VyStatus::Accepted : VyStatus::Cancelled);
    QCOMPARE(host.cursors(), QString(row.afterQtDialog));
}

void ActiveDocumentTest::survivesTheWindowThatIsItsParent()
{
    HostDrawings host;
    HostRequest request;
    request.parent = host.window->winId();
    request.getFileName({[&](QDialog&) { delete host.window; }});
    QCOMPARE(request.status, VyStatus::Cancelled);
    QCOMPARE(host.cursors(), QString("gone, hourglass"));
}

void ActiveDocumentTest::worksWithoutADocument()
{
    const HostDrawings host;
    VySetActiveDocument(nullptr);
    HostRequest().getFileName({[&](QDialog& dialog) {
        QCOMPARE(host.cursors(), QString("cross, hourglass"));
        dialog.reject();
    }});
    QCOMPARE(host.cursors(), QString("cross, hourglass"));
}

void ActiveDocumentTest::worksWithoutAView()
{
    const HostDrawings host;
    VySetActiveDocument(host.viewless.get());
    HostRequest().getFileName({[&](QDialog& dialog) {
        QCOMPARE(host.cursors(), QString("cross, hourglass"));
        dialog.reject();
    }});
    QCOMPARE(host.cursors(), QString("cross, hourglass"));
}

// None was saved for it: it gets the cursor that a widget begins with.
void ActiveDocumentTest::aDocumentOpenedMeanwhile()
{
    const HostDrawings host;
    VySetActiveDocument(nullptr);
    HostRequest().getFileName({[&](QDialog& dialog) {
        VySetActiveDocument(host.otherDocument.get());
        dialog.reject();
    }});
    QCOMPARE(host.cursors(), QString("cross, arrow"));
}

void ActiveDocumentTest::requestInsideARequest()
{
    const HostDrawings host;
    HostRequest inner;
    HostRequest().getFileName({[&](QDialog& outer) {
        inner.getFileName({[](QDialog& dialog) { dialog.reject(); }});
        QCOMPARE(host.cursors(), QString("arrow, hourglass"));
        outer.reject();
    }});
    QCOMPARE(inner.status, VyStatus::Cancelled);
    QCOMPARE(host.cursors(), QString("cross, hourglass"));
}

// It goes on to follow the window that it is in.
void ActiveDocumentTest::aViewWithoutACursorOfItsOwn()
{
    const HostDrawings host;
    host.view->unsetCursor();
    host.window->setCursor(Qt::CrossCursor);
    HostRequest().getFileName({[&](QDialog& dialog) {
        QCOMPARE(host.cursors(), QString("arrow, hourglass"));
        dialog.reject();
    }});
    QCOMPARE(host.cursors(), QString("cross, hourglass"));
    host.window->setCursor(Qt::WaitCursor);
    QCOMPARE(host.cursors(), QString("hourglass, hourglass"));
}

QTEST_MAIN(ActiveDocumentTest)
#include "ActiveDocumentTest.moc"
