#pragma once

#include <QByteArray>
#include <QString>

namespace tarvelo::platform {

// Where the user is: the locale that dates are written in, and the time zone that days are counted
// in.
struct Region
{
    QByteArray locale; // an ICU locale identifier, such as "de_DE" or "th_TH@calendar=buddhist"
    QString timeZone;  // an IANA time zone name, such as "Europe/Berlin"

    // What the session's environment says (LC_ALL, LC_TIME, LANG; the system's time zone).
    static Region ofUser();
};

} // namespace tarvelo::platform
