// SPDX-License-Identifier: MIT
#pragma once

#include "VyDocument.h"

#include <QPointer>
#include <QWidget>
#include <QtTest>

#include <functional>
#include <memory>

/// A host with two drawings open, of which the first is active. Its view has a
/// cross for a cursor, that of the second an hourglass.
struct HostDrawings
{
    HostDrawings()
    {
        view->setCursor(Qt::CrossCursor);
        otherView->setCursor(Qt::WaitCursor);
        VySetActiveDocument(document.get());
    }
    ~HostDrawings()
    {
        VySetActiveDocument(nullptr);
        delete window;
        delete otherView;
    }
    Q_DISABLE_COPY(HostDrawings)

    /// The cursors of both views, "gone" where there is no view any more.
    QString cursors() const { return name(view) + QStringLiteral(", ") + name(otherView); }

    QPointer<QWidget> window = new QWidget;
    QPointer<QWidget> view = new QWidget(window);
    QPointer<QWidget> otherView = new QWidget;
    std::unique_ptr<CVyDocument> document = std::make_unique<CVyDocument>(view);
    std::unique_ptr<CVyDocument> otherDocument = std::make_unique<CVyDocument>(otherView);
    std::unique_ptr<CVyDocument> viewless = std::make_unique<CVyDocument>();

private:
    static QString name(const QWidget* widget)
    {
        if (!widget)
            return QStringLiteral("gone");
        switch (widget->cursor().shape()) {
        case Qt::ArrowCursor:
            return QStringLiteral("arrow");
        case Qt::CrossCursor:
            return QStringLiteral("cross");
        case Qt::WaitCursor:
            return QStringLiteral("hourglass");
        default:
            return QStringLiteral("another");
        }
    }
};

/// What the host does while a dialog is up, and the cursors afterwards.
struct DrawingsChange
{
    const char* name;
    std::function<void(HostDrawings&)> change;
    const char* afterQtDialog;
    const char* afterPanel; ///< which never touches a cursor
};

inline const DrawingsChange drawingsChanges[] = {
    {"nothing", [](HostDrawings&) {}, "cross, hourglass", "cross, hourglass"},
    {"deletes the view", [](HostDrawings& host) { delete host.view; }, "gone, hourglass",
     "gone, hourglass"},
    {"deletes the window around the view", [](HostDrawings& host) { delete host.window; },
     "gone, hourglass", "gone, hourglass"},
    // No document is active then, whose view could be given a cursor.
    {"deletes the document", [](HostDrawings& host) { host.document.reset(); }, "arrow, hourglass",
     "cross, hourglass"},
    {"deletes the document and the view",
     [](HostDrawings& host) {
         host.document.reset();
         delete host.view;
     },
     "gone, hourglass", "gone, hourglass"},
    {"deletes the view and the document",
     [](HostDrawings& host) {
         delete host.view;
         host.document.reset();
     },
     "gone, hourglass", "gone, hourglass"},
    {"gives the view another document",
     [](HostDrawings& host) {
         host.document = std::make_unique<CVyDocument>(host.view);
         VySetActiveDocument(host.document.get());
     },
     "cross, hourglass", "cross, hourglass"},
    {"makes none active", [](HostDrawings&) { VySetActiveDocument(nullptr); }, "arrow, hourglass",
     "cross, hourglass"},
    // The dialog asks anew which document is active.
    {"makes another one active",
     [](HostDrawings& host) { VySetActiveDocument(host.otherDocument.get()); }, "arrow, cross",
     "cross, hourglass"},
    {"makes another one active and deletes the first",
     [](HostDrawings& host) {
         VySetActiveDocument(host.otherDocument.get());
         host.document.reset();
         delete host.window;
     },
     "gone, cross", "gone, hourglass"},
    {"makes another one active and back again",
     [](HostDrawings& host) {
         VySetActiveDocument(host.otherDocument.get());
         VySetActiveDocument(host.document.get());
     },
     "cross, hourglass", "cross, hourglass"},
    {"makes one without a view active",
     [](HostDrawings& host) { VySetActiveDocument(host.viewless.get()); }, "arrow, hourglass",
     "cross, hourglass"},
    {"deletes one that is not active", [](HostDrawings& host) { host.otherDocument.reset(); },
     "cross, hourglass", "cross, hourglass"},
    {"changes the view's cursor", [](HostDrawings& host) { host.view->setCursor(Qt::BusyCursor); },
     "cross, hourglass", "another, hourglass"},
};

/// The rows of a test that makes each change, in a dialog that is then accepted, and
/// in one that is cancelled.
inline void addDrawingsChanges()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("accepts");
    int index = 0;
    for (const DrawingsChange& row : drawingsChanges) {
        QTest::addRow("%s, accepted", row.name) << index << true;
        QTest::addRow("%s, cancelled", row.name) << index++ << false;
    }
}
