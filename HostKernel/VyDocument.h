// SPDX-License-Identifier: MIT
#pragma once

#include "VyHostKernelExport.h"

#include <QPointer>
#include <QWidget>

/// \file
/// The active document.

/// A drawing that the host has open, as far as the dialogs know it.
class VY_HOSTKERNEL_EXPORT CVyDocument
{
public:
    /// \a view is the widget that shows the drawing, or null; the host owns it
    /// and may delete it at any time.
    explicit CVyDocument(QWidget* view = nullptr);
    /// A document that goes while it is the active one leaves none active.
    ~CVyDocument();

    /// The widget whose cursor the dialogs save and restore; null when there is
    /// none or it has been deleted.
    QWidget* GetViewWidget() const { return m_view.data(); }

private:
    Q_DISABLE_COPY(CVyDocument)

    QPointer<QWidget> m_view;
};

/// The document that the user works on; null when there is none.
VY_HOSTKERNEL_EXPORT CVyDocument* ACTIVE_DOCUMENT();

/// Names the active document, or none with null. The host keeps ownership.
VY_HOSTKERNEL_EXPORT void VySetActiveDocument(CVyDocument* document);
