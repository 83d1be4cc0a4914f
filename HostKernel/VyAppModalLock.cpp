// SPDX-License-Identifier: MIT
#include "VyAppModalLock.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QThread>
#include <QVector>
#include <QWindow>

namespace {

bool isFromUser(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::NativeGesture:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

// Takes the user's events away from the windows that were open when the lock
// was made. An event filter rather than QWidget::setEnabled(), which would
// change how the windows look and move their focus.
class WindowLock : public QObject
{
public:
    explicit WindowLock(const QWidget* usable)
    {
        const QWindow* free = usable ? usable->window()->windowHandle() : nullptr;
        const QWindowList windows = QGuiApplication::allWindows();
        for (QWindow* window : windows) {
            if (window != free)
                m_locked.append(window);
        }
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (!isFromUser(event->type()) || !isLocked(windowOf(receiver)))
            return false;
        event->ignore();
        return true;
    }

private:
    bool isLocked(QWindow* window) const { return window && m_locked.contains(window); }

    // Shortcuts and actions receive events too; they belong to the window of
    // their parent.
    static QWindow* windowOf(QObject* receiver)
    {
        for (QObject* object = receiver; object; object = object->parent()) {
            if (object->isWidgetType())
                return static_cast<QWidget*>(object)->window()->windowHandle();
            if (object->isWindowType())
                return static_cast<QWindow*>(object);
        }
        return nullptr;
    }

    QVector<QPointer<QWindow>> m_locked;
};

bool hasWindows()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) &&
           QThread::currentThread() == qApp->thread();
}

} // namespace

CVyAppModalLock::CVyAppModalLock(QWidget* usable)
    : m_filter(hasWindows() ? new WindowLock(usable) : nullptr)
{}

CVyAppModalLock::~CVyAppModalLock()
{
    unlock();
}

void CVyAppModalLock::unlock()
{
    delete m_filter;
    m_filter = nullptr;
}
