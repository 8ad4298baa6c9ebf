#include "app/TaskbarEntry.h"

#include "app/XcbAtoms.h"

#include <QEvent>
#include <QGuiApplication>
#include <QTimer>
#include <QWidget>

#include <xcb/xcb.h>

namespace tarvelo::app {

TaskbarEntry::TaskbarEntry(QWidget &window)
    : QObject(&window)
    , m_window(window)
{
    window.installEventFilter(this);
}

void TaskbarEntry::setWanted(bool wanted)
{
    if (wanted == m_wanted)
        return;
    m_wanted = wanted;
    if (m_window.isVisible())
        tellWindowManager();
}

bool TaskbarEntry::eventFilter(QObject *watched, QEvent *event)
{
    // The window manager forgets what it was told when a window goes, so that it is told at every
    // show: after the event, when the window has been asked to come.
    if (event->type() == QEvent::Show && !m_wanted)
        QTimer::singleShot(0, this, &TaskbarEntry::tellWindowManager);
    return QObject::eventFilter(watched, event);
}

void TaskbarEntry::tellWindowManager()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || !m_window.isVisible())
        return;
    xcb_connection_t *connection = x11->connection();
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(m_window.winId());
    message.type = atomNamed(connection, "_NET_WM_STATE");
    // Add or remove, the two states, and that an application asks.
    message.data.data32[0] = m_wanted ? 0 : 1;
    message.data.data32[1] = atomNamed(connection, "_NET_WM_STATE_SKIP_TASKBAR");
    message.data.data32[2] = atomNamed(connection, "_NET_WM_STATE_SKIP_PAGER");
    message.data.data32[3] = 1;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_send_event(connection, 0, root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(connection);
}

} // namespace tarvelo::app
