#pragma once

#include "app/TerminationSignals.h"

#include <QObject>

class QApplication;
class QSessionManager;

namespace tarvelo::lectures {
class MediaLinksArrayController;
}

namespace tarvelo::app {

class AppDelegate;

// How the program ends: by the user's wish, by the system's (SIGTERM), with the session, and with
// the screen that it shows itself on. Whichever it is, a lecture that was done a moment ago is
// stored, and a take that runs is closed and stays on the disk. One a process; what it is given
// outlives it.
class WaysOut final : public QObject
{
    Q_OBJECT

public:
    WaysOut(QApplication &application, AppDelegate &delegate,
            lectures::MediaLinksArrayController &controller);
    ~WaysOut() override;

    // Takes the session's word that it is over.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void commitData(QSessionManager &session);
    void leave();

    AppDelegate &m_delegate;
    lectures::MediaLinksArrayController &m_controller;
    const TerminationSignals m_signals;
};

} // namespace tarvelo::app
