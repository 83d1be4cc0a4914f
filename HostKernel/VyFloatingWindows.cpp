// SPDX-License-Identifier: MIT
#include "VyFloatingWindows.h"

#include "VyWindowManager.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QThread>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// A window that was hidden, and for how many tokens.
class HiddenWindow : public QObject
{
public:
    HiddenWindow(QWidget* window, const VyWindowManager::Notes& notes)
        : m_window(window)
        , m_notes(notes)
    {
        // So that a hide() of the host's shows; on a window that was explicitly
        // hidden it would do nothing at all.
        window->setAttribute(Qt::WA_WState_ExplicitShowHide, false);
        window->installEventFilter(this);
    }

    QWidget* window() const { return m_window.data(); }
    const VyWindowManager::Notes& notes() const { return m_notes; }
    bool isLeftToHost() const
    {
        return !m_window || m_window->isVisible() ||
               m_window->testAttribute(Qt::WA_WState_ExplicitShowHide);
    }
    void forget()
    {
        if (m_window)
            m_window->removeEventFilter(this);
        m_window.clear();
    }
    // QWidget::close() leaves the hide() out on a hidden window, so that the event
    // is all that tells of it; and whether the window takes it is known afterwards.
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::Close || m_isClosing)
            return false;
        const QPointer<HiddenWindow> self(this);
        m_isClosing = true;
        QCoreApplication::sendEvent(m_window, event);
        if (!self)
            return true;
        m_isClosing = false;
        if (m_window && event->isAccepted())
            m_window->setAttribute(Qt::WA_WState_ExplicitShowHide);
        return true;
    }

    int holders = 0;

private:
    QPointer<QWidget> m_window;
    VyWindowManager::Notes m_notes;
    bool m_isClosing = false;
};

using HiddenWindows = std::vector<std::shared_ptr<HiddenWindow>>;

// Both are empty at start-up and cost nothing then.
HiddenWindows s_hidden; // clazy:exclude=non-pod-global-static
// Of the windows on screen and the hidden ones.
VyWindowManager::Order s_order; // clazy:exclude=non-pod-global-static

bool hasWindows()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) &&
           QThread::currentThread() == qApp->thread();
}

// A modal one is being worked with; hiding it would end it.
bool isFloating(const QWidget& window)
{
    return window.windowType() == Qt::Tool && !window.isModal();
}

std::vector<QPointer<QWidget>> floatingWindows()
{
    std::vector<QPointer<QWidget>> floating;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (isFloating(*window) && window->isVisible())
            floating.emplace_back(window);
    }
    return floating;
}

void forgetThoseLeftToHost()
{
    const auto isOver = [](const std::shared_ptr<HiddenWindow>& hidden) {
        if (!hidden->isLeftToHost())
            return false;
        hidden->forget(); // for the tokens that hold it; it may be hidden once more
        return true;
    };
    s_hidden.erase(std::remove_if(s_hidden.begin(), s_hidden.end(), isOver), s_hidden.end());
}

// A window manager places a window that is shown as it likes, but for one that
// says that its place was chosen. Qt hands "without activating" on to a native
// window only when that is made; this one is there already.
void showInItsPlace(const QPointer<QWidget>& window, const VyWindowManager::Notes& notes)
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
        VyWindowManager::prepare(*handle, notes);
    }
    window->show();
    if (handle)
        handle->setProperty(inactive, handleWasInactive);
    if (!window)
        return;
    window->setAttribute(Qt::WA_ShowWithoutActivating, wasInactive);
    window->setAttribute(Qt::WA_Moved, wasMoved);
}

WId idOf(const QWidget* window)
{
    const QWindow* const handle = window ? window->windowHandle() : nullptr;
    return handle && handle->handle() ? handle->winId() : 0; // which would make it
}

// Those behind come first, so that each comes to the front over them.
void showAll(HiddenWindows windows)
{
    using VyWindowManager::Order;
    const QPointer<QWindow> active = QGuiApplication::focusWindow();
    const Order now = VyWindowManager::current();
    const Order all = VyWindowManager::merged(s_order, now);
    s_order = s_hidden.empty() ? Order() : all;
    const auto place = [&all](const auto& hidden) { return all.indexOf(idOf(hidden->window())); };
    std::stable_sort(windows.begin(), windows.end(), [&place](const auto& one, const auto& other) {
        return place(one) < place(other);
    });
    for (const auto& hidden : windows) {
        if (!hidden->isLeftToHost())
            showInItsPlace(hidden->window(), hidden->notes());
    }
    Order shown;
    for (const auto& hidden : windows)
        shown.append(idOf(hidden->window()));
    Order order;
    std::copy_if(all.begin(), all.end(), std::back_inserter(order),
                 [&](WId window) { return now.contains(window) || shown.contains(window); });
    VyWindowManager::place(shown, order, active);
}

} // namespace

class VyFloatingWindowsHold
{
public:
    VyFloatingWindowsHold() = default;
    ~VyFloatingWindowsHold() { release(); }
    Q_DISABLE_COPY(VyFloatingWindowsHold)

    void hold(const std::shared_ptr<HiddenWindow>& window)
    {
        ++window->holders;
        m_windows.push_back(window);
    }
    void release()
    {
        if (!hasWindows())
            return;
        HiddenWindows free;
        for (const auto& hidden : std::exchange(m_windows, {})) {
            if (--hidden->holders == 0 && !hidden->isLeftToHost())
                free.push_back(hidden);
        }
        s_hidden.erase(std::remove_if(s_hidden.begin(), s_hidden.end(),
                                      [](const auto& hidden) { return hidden->holders == 0; }),
                       s_hidden.end());
        if (!free.empty())
            showAll(free);
    }

private:
    HiddenWindows m_windows;
};

VyFloatingWindows HideFloatingWindows()
{
    if (!hasWindows())
        return {};
    auto token = std::make_shared<VyFloatingWindowsHold>();
    forgetThoseLeftToHost();
    s_order = VyWindowManager::merged(s_order, VyWindowManager::current());
    for (const auto& hidden : s_hidden)
        token->hold(hidden);
    for (const QPointer<QWidget>& window : floatingWindows()) {
        // A host's hideEvent() may change the others, and its own window.
        if (!window || !window->isVisible())
            continue;
        const auto notes = VyWindowManager::notes(*window->windowHandle());
        window->hide();
        if (!window || window->isVisible())
            continue;
        s_hidden.push_back(std::make_shared<HiddenWindow>(window, notes));
        token->hold(s_hidden.back());
    }
    return token;
}

void ShowFloatingWindows(const VyFloatingWindows& token)
{
    if (token)
        token->release();
}
