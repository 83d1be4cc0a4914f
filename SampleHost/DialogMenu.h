// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"

#include <QMenu>

/// The menu "Dialogs": which dialogs are shown, and what they offer.
class DialogMenu : public QMenu
{
    Q_OBJECT

public:
    explicit DialogMenu(QWidget* parent = nullptr);

    /// Whether the build has native panels.
    static bool hasNativePanels();

    CVyFileDialog::_Style style() const;
    /// Native panels are not chosen where the build has none.
    void setStyle(CVyFileDialog::_Style style);

    /// Chooses the Qt dialog, and tells at the native one's entry why: it could not
    /// be shown for \a reason. It can be chosen again, as the reason may pass.
    void tellNativeFails(const QString& reason);

    /// A request of \a kind with all that is set here.
    Options options(CVyUserIO::_FileNameType kind) const;

private:
    QAction* add(const char* name, const QString& text, const QString& tip);
    void addStyles();

    QAction* m_qt;
    QAction* m_native;
    QAction* m_preview;
    QAction* m_modes;
    QAction* m_readOnly;
    QAction* m_templateFolder;
};
