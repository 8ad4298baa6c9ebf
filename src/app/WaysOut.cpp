#include "app/WaysOut.h"

#include "app/AppDelegate.h"
#include "lectures/MediaLinksArrayController.h"

#include <QApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>

#include <cstdlib>

namespace tarvelo::app {

namespace {

lectures::MediaLinksArrayController *s_controller = nullptr;

// Who loses the connection to the screen is ended by the toolkit, from where nothing of the windows
// may be touched any more.
void closeTakeAtExit()
{
    if (s_controller)
        s_controller->closeTake();
}

} // namespace

WaysOut::WaysOut(QApplication &application, AppDelegate &delegate,
                 lectures::MediaLinksArrayController &controller)
    : m_delegate(delegate)
    , m_controller(controller)
{
    s_controller = &controller;
    std::atexit(closeTakeAtExit);
    application.installEventFilter(this);
    connect(&m_signals, &TerminationSignals::terminationRequested, this, &WaysOut::leave);
    connect(&delegate, &AppDelegate::terminationAllowed, this, &WaysOut::leave);
    connect(&application, &QGuiApplication::commitDataRequest, this, &WaysOut::commitData);
}

WaysOut::~WaysOut()
{
    s_controller = nullptr;
}

bool WaysOut::eventFilter(QObject *, QEvent *event)
{
    // Left to itself the toolkit would ask every window whether it may be closed, and would stay
    // when one refuses, until the session kills it.
    if (event->type() != QEvent::Quit)
        return false;
    leave();
    return true;
}

// The end of the session is put off while a lecture is being recorded, when that may be asked.
void WaysOut::commitData(QSessionManager &session)
{
    if (!m_delegate.isRecordingNow() || !session.allowsInteraction())
        return;
    m_delegate.applicationShouldTerminate(&session);
    session.cancel();
    session.release();
}

void WaysOut::leave()
{
    m_controller.closeTake();
    m_controller.saveWhatWaits();
    QApplication::exit(0);
}

} // namespace tarvelo::app
