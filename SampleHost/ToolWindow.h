// SPDX-License-Identifier: MIT
#pragma once

#include "DrawingView.h"

#include <QPointer>
#include <QWidget>

class QAbstractButton;

/// The floating window "Tools", with the zoom of the drawing in front. Native
/// panels have the kernel hide it while they are up.
class ToolWindow : public QWidget
{
    Q_OBJECT

public:
    explicit ToolWindow(QWidget* owner);

    /// The tools work on \a view from now on; on none with null.
    void setView(DrawingView* view);

Q_SIGNALS:
    /// Its user has closed it.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QAbstractButton* addTool(const char* name, const QString& text, void (ToolWindow::*work)());
    void zoomIn();
    void zoomOut();
    void fit();
    void updateTools();

    QPointer<DrawingView> m_view;
    QAbstractButton* m_zoomIn;
    QAbstractButton* m_zoomOut;
    QAbstractButton* m_fit;
};
