#pragma once

#include "app/AppDelegate.h"
#include "calendar/CKCalendarView.h"
#include "lectures/LectureWindows.h"
#include "lectures/MediaLinksArrayController.h"
#include "platform/Dates.h"
#include "platform/UserDefaults.h"
#include "store/LectureDatabase.h"
#include "support/FakeAlerts.h"
#include "support/FakeAudioEngine.h"
#include "support/FakeClock.h"
#include "support/FakeMailComposer.h"
#include "support/FakeSleepInhibitor.h"
#include "support/FakeWorkspace.h"
#include "support/FileContent.h"
#include "support/TemporaryPlaces.h"
#include "widgets/SlidingWindow.h"

#include <QLabel>

namespace tarvelo::tests {

// The whole program but for its process: real windows, controller, settings and store, in a home
// and at a time of its own. Each one is a process of its own as far as its flags go.
struct Application
{
    explicit Application(const QByteArray &locale = "en_US")
        : dates(clock, {locale, QStringLiteral("UTC")})
        , settingsFile(home.places().applicationSupport + QStringLiteral("/Tarvelo.conf"))
        , defaults(settingsFile)
        , database(home.places(), clock)
        , windows(dates)
        , controller({dates, home.places(), defaults, database, engine, alerts, workspace, mail,
                      sleep, flags.controllerIsAwake, flags.pendingRow},
                     windows)
        , delegate({dates, defaults, database, alerts, windows, controller,
                    app::LoginItem(home.places().applicationSupport + QStringLiteral("/autostart"),
                                   QStringLiteral("/usr/bin/Tarvelo")),
                    app::Help(workspace, home.places().resources), flags,
                    [this](const QString &program, const QStringList &arguments) {
                        launched.append(QStringList(program) + arguments);
                    }})
    {
    }

    // As a launch does it.
    void launch()
    {
        controller.awakeFromNib();
        delegate.awakeFromNib();
        delegate.applicationDidFinishLaunching(nullptr);
    }
    widgets::SlidingWindow &window() { return windows.mainWindow(); }
    QString header() const { return windows.mainOutlets().lblDateDisplay->accessibleName(); }
    // A lecture that is being made is what counts as recording.
    void startRecording() { windows.newLectureOutlets().newNoteWindow->show(); }
    void store(const char *key, const QVariant &value)
    {
        defaults.setValue(QLatin1String(key), value);
        defaults.synchronize();
    }
    QByteArray settings() const { return contentOf(settingsFile); }

    TemporaryPlaces home;
    FakeClock clock;
    platform::Dates dates;
    QString settingsFile;
    platform::UserDefaults defaults;
    store::LectureDatabase database;
    FakeAudioEngine engine;
    FakeAlerts alerts;
    FakeWorkspace workspace;
    FakeMailComposer mail;
    FakeSleepInhibitor sleep;
    QList<QStringList> launched;
    app::ProcessFlags flags;
    lectures::LectureWindows windows;
    lectures::MediaLinksArrayController controller;
    app::AppDelegate delegate;
};

inline QDateTime noonOf(int year, int month, int day)
{
    return QDateTime(QDate(year, month, day), QTime(12, 0), Qt::UTC);
}

} // namespace tarvelo::tests
