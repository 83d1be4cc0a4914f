// SPDX-License-Identifier: MIT
#include "VyWindowManager.h"

#include <QGuiApplication>

namespace VyWindowManager {

Order merged(const Order& before, const Order& now)
{
    Order all = now;
    int above = 0; // the window that was looked at last
    for (const WId window : before) {
        const int at = all.indexOf(window);
        if (at < 0)
            all.insert(above, window);
        above = (at < 0 ? above : at) + 1;
    }
    return all;
}

Order creationOrder()
{
    Order order;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (const QWindow* window : windows) {
        if (window->isVisible())
            order.append(window->winId());
    }
    return order;
}

void keepActive(QWindow* active)
{
    // Wayland leaves no choice, and Qt says so on the log.
    if (active && !QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        active->requestActivate();
}

} // namespace VyWindowManager
