// SPDX-License-Identifier: MIT
#include "VyFloatingWindows.h"

#include <QApplication>

QVector<QPointer<QWidget>> HideFloatingWindows()
{
    QVector<QPointer<QWidget>> hidden;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        const bool floats = window->windowType() == Qt::Tool && !window->isModal();
        if (floats && window->isVisible()) {
            window->hide();
            hidden.append(window);
        }
    }
    return hidden;
}

void ShowFloatingWindows(const QVector<QPointer<QWidget>>& windows)
{
    for (const QPointer<QWidget>& window : windows) {
        if (window)
            window->show();
    }
}
