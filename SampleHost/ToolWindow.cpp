// SPDX-License-Identifier: MIT
#include "ToolWindow.h"

#include <QPushButton>
#include <QVBoxLayout>

ToolWindow::ToolWindow(QWidget* owner)
    : QWidget(owner, Qt::Tool)
{
    setObjectName(QStringLiteral("toolWindow"));
    setWindowTitle(tr("Tools"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* tools = new QVBoxLayout(this);
    tools->setSizeConstraint(QLayout::SetFixedSize);
    tools->addStrut(20 * fontMetrics().averageCharWidth()); // leaves its frame room for the title
    m_zoomIn = addTool("zoomIn", tr("Zoom &In"), &ToolWindow::zoomIn);
    m_zoomOut = addTool("zoomOut", tr("Zoom &Out"), &ToolWindow::zoomOut);
    m_fit = addTool("fit", tr("Fi&t"), &ToolWindow::fit);
    updateTools();
}

QAbstractButton* ToolWindow::addTool(const char* name, const QString& text,
                                     void (ToolWindow::*work)())
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleDescription(tr("For the picture of the drawing in front"));
    layout()->addWidget(button);
    connect(button, &QPushButton::clicked, this, work);
    return button;
}

void ToolWindow::setView(DrawingView* view)
{
    if (m_view)
        disconnect(m_view, nullptr, this, nullptr);
    m_view = view;
    if (view)
        connect(view, &DrawingView::zoomChanged, this, &ToolWindow::updateTools);
    updateTools();
}

void ToolWindow::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    Q_EMIT closed();
}

void ToolWindow::zoomIn()
{
    m_view->setZoom(m_view->zoom() + 1);
}

void ToolWindow::zoomOut()
{
    m_view->setZoom(m_view->zoom() - 1);
}

void ToolWindow::fit()
{
    m_view->setZoom(0);
}

void ToolWindow::updateTools()
{
    const int zoom = m_view ? m_view->zoom() : 0;
    const int largest = m_view ? m_view->largestZoom() : 0;
    m_zoomIn->setEnabled(zoom < largest);
    m_zoomOut->setEnabled(zoom > 1);
    m_fit->setEnabled(largest > 0);
}
