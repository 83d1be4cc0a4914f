// SPDX-License-Identifier: MIT
#include "VyFloatingWindows.h"

#include <QApplication>
#include <QVariant>
#include <QWindow>

namespace {

// A modal one is being worked with; hiding it would end it.
bool isFloating(const QWidget& window)
{
    return window.windowType() == Qt::Tool && !window.isModal();
}

// A window manager places a window that is shown as it likes, but for one that
// says that its place was chosen. Qt hands "without activating" on to a native
// window only when that is made; this one is there already.
void showInItsPlace(const QPointer<QWidget>& window)
{
    const char* const inactive = "_q_showWithoutActivating";
    const QPointer<QWindow> handle = window->windowHandle();
    const QVariant handleWasInactive = handle ? handle->property(inactive) : QVariant();
    const bool wasInactive = window->testAttribute(Qt::WA_ShowWithoutActivating);
    const bool wasMoved = window->testAttribute(Qt::WA_Moved);
    window->setAttribute(Qt::WA_ShowWithoutActivating);
    window->setAttribute(Qt::WA_Moved);
    if (handle) {
        handle->setPosition(handle->position());
        handle->setProperty(inactive, true);
    }
    window->show();
    if (handle)
        handle->setProperty(inactive, handleWasInactive);
    if (!window)
        return;
    window->setAttribute(Qt::WA_ShowWithoutActivating, wasInactive);
    window->setAttribute(Qt::WA_Moved, wasMoved);
}

} // namespace

VyFloatingWindows HideFloatingWindows()
{
    VyFloatingWindows token;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (isFloating(*window) && window->isVisible())
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
    const QPointer<QWindow> active = QGuiApplication::focusWindow();
    for (const QPointer<QWidget>& window : token) {
        if (window)
            showInItsPlace(window);
    }
    if (active)
        active->requestActivate();
}
