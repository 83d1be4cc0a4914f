// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

/// A drawing that is open in Acme. The latest is the active one.
class CVyDocument
{
public:
    /// \a view shows it and is not the document's own; there may be none.
    explicit CVyDocument(QWidget* view);
    ~CVyDocument();
    Q_DISABLE_COPY(CVyDocument)

    /// The widget whose cursor the dialogs make an arrow meanwhile.
    QWidget* GetViewWidget() const { return m_view; }

private:
    QPointer<QWidget> m_view;
};

/// The active one, or null.
CVyDocument* ACTIVE_DOCUMENT();
