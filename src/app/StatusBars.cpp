#include "app/StatusBars.h"

#include "app/XcbAtoms.h"
#include "platform/WindowLevel.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

namespace tarvelo::app {

namespace {

xcb_connection_t *x11Connection()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_atom_t barSelection(xcb_connection_t *connection)
{
    return atomNamed(connection, "_NET_SYSTEM_TRAY_S0");
}

bool embedsWindows(xcb_connection_t *connection)
{
    const auto cookie = xcb_get_selection_owner(connection, barSelection(connection));
    const XcbReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, cookie, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

} // namespace

StatusBars::StatusBars()
{
    connect(&m_host, &platform::StatusNotifierHost::appeared, this, &StatusBars::appeared);
    qGuiApp->installNativeEventFilter(this);
}

StatusBars::~StatusBars()
{
    if (qGuiApp)
        qGuiApp->removeNativeEventFilter(this);
}

bool StatusBars::isKnown() const
{
    if (QGuiApplication::platformName() != u"xcb" && !platform::isOnWayland())
        return true;
    xcb_connection_t *const connection = x11Connection();
    return connection && embedsWindows(connection);
}

// Who becomes the bar of an X11 screen says so to every program.
bool StatusBars::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    xcb_connection_t *const connection = x11Connection();
    if (!connection || eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE)
        return false;
    const auto *told = static_cast<const xcb_client_message_event_t *>(message);
    if (told->type == atomNamed(connection, "MANAGER") &&
        told->data.data32[1] == barSelection(connection))
        Q_EMIT appeared();
    return false;
}

} // namespace tarvelo::app
