// SPDX-License-Identifier: MIT
#include "VyFloatingWindows.h"

#include <QApplication>

VyFloatingWindows HideFloatingWindows()
{
    VyFloatingWindows token;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->windowType() == Qt::Tool && window->isVisible())
            token.append(window);
    }
    for (const QPointer<QWidget>& window : qAsConst(token)) {
        if (window)
            window->hide();
    }
    return token;
}

void ShowFloatingWindows(const VyFloatingWindows& token)
{
    for (const QPointer<QWidget>& window : token) {
        if (!window)
            continue;
        const bool shownInactive = window->testAttribute(Qt::WA_ShowWithoutActivating);
        window->setAttribute(Qt::WA_ShowWithoutActivating);
        window->show();
        if (window)
            window->setAttribute(Qt::WA_ShowWithoutActivating, shownInactive);
    }
}
