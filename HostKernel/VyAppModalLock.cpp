// SPDX-License-Identifier: MIT
#include "VyAppModalLock.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QDrag>
#include <QInputMethod>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QThread>
#include <QVector>
#include <QWindow>

#include <algorithm>
#include <iterator>

namespace {

// Leaving, and losing the focus or the mouse, is none of it: a window that was
// left must know.
bool isFromUser(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Enter:
    case QEvent::ToolTip:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
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

// Whichever window it is sent to, Qt hands it on to the widget that was pressed;
// outside its window it clicks nothing.
void releaseButtons()
{
    const QPoint outside(-1, -1);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
        QWindow* const window = QGuiApplication::focusWindow();
        if (!window || !QGuiApplication::mouseButtons().testFlag(button))
            continue;
        QMouseEvent release(QEvent::MouseButtonRelease, outside, outside,
                            window->mapToGlobal(outside), button, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &release);
    }
}

// Ends what the user has begun, since he cannot end it himself: a button would
// stay down, a drag would never end, an open popup would keep mouse and keyboard
// from the dialog.
void endInput()
{
    QGuiApplication::inputMethod()->commit();
    if (QGuiApplication::mouseButtons() != Qt::NoButton) // else there is none, and a
        QDrag::cancel();                                 // platform without drags would warn
    while (QWidget* popup = QApplication::activePopupWidget()) {
        if (!popup->close())
            break;
    }
    releaseButtons();
}

// Takes the user's events away from windows. An event filter rather than
// QWidget::setEnabled(), which would change how the windows look and move their
// focus.
class WindowLock : public QObject
{
public:
    explicit WindowLock(const QWidget* usable)
        : m_usable(usable)
    {
        endInput();
        const QWindowList windows = QGuiApplication::allWindows();
        std::copy_if(windows.begin(), windows.end(), std::back_inserter(m_modalBefore),
                     isOpenModal);
        qApp->installEventFilter(this);
    }

    // The window under the mouse learns of it at last.
    ~WindowLock() override
    {
        if (!qApp || !m_entered)
            return;
        qApp->removeEventFilter(this);
        const QPoint mouse = QCursor::pos();
        const QPoint local = m_entered->mapFromGlobal(mouse);
        QEnterEvent enter(local, local, mouse);
        QCoreApplication::sendEvent(m_entered, &enter);
    }

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::Hide && !event->spontaneous())
            m_modalBefore.removeAll(qobject_cast<QWindow*>(receiver));
        if (event->type() == QEvent::Leave && receiver == m_entered)
            m_entered = nullptr;
        if (!isFromUser(event->type()) || isFree(receiver))
            return false;
        if (event->type() == QEvent::Enter)
            m_entered = qobject_cast<QWindow*>(receiver);
        // Qt looks for a shortcut unless the window wants the key for itself.
        event->setAccepted(event->type() == QEvent::ShortcutOverride);
        return true;
    }

private:
    static bool isOpenModal(const QWindow* window)
    {
        return window->isVisible() && window->modality() != Qt::NonModal;
    }

    // Nothing else can be used as long as such a window is open, so it must be.
    bool comesFirst(QWindow* window) const
    {
        return (isOpenModal(window) && !m_modalBefore.contains(window)) ||
               (window->isVisible() && window->type() == Qt::Popup);
    }

    bool isFree(QObject* receiver) const
    {
        if (const auto* action = qobject_cast<QAction*>(receiver))
            return isActionFree(*action);
        for (; receiver; receiver = receiver->parent()) {
            if (receiver->isWidgetType())
                return isWidgetFree(static_cast<QWidget*>(receiver));
            if (receiver->isWindowType())
                return isWindowFree(static_cast<QWindow*>(receiver));
        }
        return true;
    }

    bool isWindowFree(QWindow* window) const
    {
        if (!window)
            return false;
        return (m_usable && window == m_usable->window()->windowHandle()) || comesFirst(window) ||
               isWindowFree(window->parent()) || isWindowFree(window->transientParent());
    }

    bool isWidgetFree(const QWidget* widget) const
    {
        return isWindowFree(widget->window()->windowHandle());
    }

    // An action is where it is offered, whoever its parent is.
    bool isActionFree(const QAction& action) const
    {
        const QList<QWidget*> places = action.associatedWidgets();
        return std::any_of(places.begin(), places.end(), [this](const QWidget* place) {
            const auto* menu = qobject_cast<const QMenu*>(place);
            return isWidgetFree(place) || (menu && isActionFree(*menu->menuAction()));
        });
    }

    const QPointer<const QWidget> m_usable;
    QVector<QPointer<QWindow>> m_modalBefore;
    QPointer<QWindow> m_entered; ///< without having been told
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
