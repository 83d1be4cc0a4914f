// SPDX-License-Identifier: MIT
#include "TransientParent.h"

#include <QCoreApplication>
#include <QPlatformSurfaceEvent>

namespace {

// The moment between a window's creation and its being shown, which is when its
// parent is told to the window manager.
bool isSurfaceCreated(const QEvent* event)
{
    return event->type() == QEvent::PlatformSurface &&
           static_cast<const QPlatformSurfaceEvent*>(event)->surfaceEventType() ==
               QPlatformSurfaceEvent::SurfaceCreated;
}

} // namespace

TransientParent::TransientParent(WId window)
    : m_parent(QWindow::fromWinId(window))
{
    if (m_parent)
        QCoreApplication::instance()->installEventFilter(this);
}

bool TransientParent::eventFilter(QObject* watched, QEvent* event)
{
    if (!isSurfaceCreated(event))
        return false;
    auto* window = qobject_cast<QWindow*>(watched);
    if (window && window->type() == Qt::Dialog && !window->transientParent())
        window->setTransientParent(m_parent.get());
    return false;
}
