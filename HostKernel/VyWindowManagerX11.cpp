// SPDX-License-Identifier: MIT
// X11, where the window manager is asked by the Extended Window Manager Hints 1.3 of
// the X Desktop Group.
#include "VyWindowManager.h"

#include <QByteArray>
#include <QX11Info>

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace VyWindowManager {

namespace {

struct Free
{
    void operator()(void* reply) const { std::free(reply); }
};
template <typename T>
using Reply = std::unique_ptr<T, Free>;

xcb_window_t root()
{
    return static_cast<xcb_window_t>(QX11Info::appRootWindow());
}

xcb_window_t idOf(const QWindow& window)
{
    return static_cast<xcb_window_t>(window.winId());
}

xcb_atom_t atom(const QByteArray& name)
{
    xcb_connection_t* const server = QX11Info::connection();
    const auto question =
        xcb_intern_atom(server, false, static_cast<std::uint16_t>(name.size()), name.constData());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(server, question, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

QVector<quint32> property(xcb_window_t window, const QByteArray& name, xcb_atom_t type)
{
    constexpr std::uint32_t all = 1U << 20;
    xcb_connection_t* const server = QX11Info::connection();
    const auto question = xcb_get_property(server, false, window, atom(name), type, 0, all);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(server, question, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* values = static_cast<const quint32*>(xcb_get_property_value(reply.get()));
    QVector<quint32> result;
    for (std::uint32_t i = 0; i < reply->value_len; ++i)
        result.append(values[i]);
    return result;
}

void setProperty(xcb_window_t window, const QByteArray& name, xcb_atom_t type,
                 const QVector<quint32>& values)
{
    if (!values.isEmpty())
        xcb_change_property(QX11Info::connection(), XCB_PROP_MODE_REPLACE, window, atom(name), type,
                            32, static_cast<std::uint32_t>(values.size()), values.constData());
}

// Some window managers take the window to the front instead; with all windows from
// there on asked for, one after the other, that comes to the same.
void askForPlaceAbove(WId below, WId window, xcb_atom_t restacking)
{
    constexpr std::uint32_t likeAPager = 2; // the only asker that is allowed it
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window);
    message.type = restacking;
    message.data.data32[0] = likeAPager;
    message.data.data32[1] = static_cast<std::uint32_t>(below);
    message.data.data32[2] = XCB_STACK_MODE_ABOVE;
    xcb_send_event(QX11Info::connection(), false, root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
}

} // namespace

Order current()
{
    if (!QX11Info::isPlatformX11())
        return creationOrder();
    Order order;
    const auto windows = property(root(), "_NET_CLIENT_LIST_STACKING", XCB_ATOM_WINDOW);
    for (const quint32 id : windows)
        order.append(id);
    return order.isEmpty() ? creationOrder() : order;
}

Notes notes(const QWindow& window)
{
    if (!QX11Info::isPlatformX11())
        return {};
    return {window.windowStates(), property(idOf(window), "_NET_WM_STATE", XCB_ATOM_ATOM),
            property(idOf(window), "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL)};
}

// A window manager reads the properties of a window that comes; Qt adds to the states
// what it knows itself.
void prepare(const QWindow& window, const Notes& notes)
{
    if (!QX11Info::isPlatformX11())
        return;
    setProperty(idOf(window), "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL, notes.desktops);
    if (window.windowStates() == notes.qtStates)
        setProperty(idOf(window), "_NET_WM_STATE", XCB_ATOM_ATOM, notes.states);
}

void place(const Order& placed, const Order& order, QWindow* active)
{
    if (!QX11Info::isPlatformX11())
        return keepActive(active);
    const xcb_atom_t restacking = atom("_NET_RESTACK_WINDOW");
    bool reached = false;
    for (int i = 0; i < order.size(); ++i) {
        reached = reached || placed.contains(order.at(i));
        if (reached)
            askForPlaceAbove(i > 0 ? order.at(i - 1) : 0, order.at(i), restacking);
    }
    xcb_flush(QX11Info::connection());
}

} // namespace VyWindowManager
