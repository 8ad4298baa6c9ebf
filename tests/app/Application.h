#pragma once

#include "app/AppDelegate.h"
#include "audio/engine/AudioRecorder.h"
#include "calendar/CKCalendarView.h"
#include "lectures/LectureWindows.h"
#include "lectures/MediaLinksArrayController.h"
#include "platform/Alerts.h"
#include "platform/Dates.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "store/LectureDatabase.h"
#include "support/FakeClock.h"
#include "support/TemporaryPlaces.h"
#include "widgets/SlidingWindow.h"

#include <QFile>
#include <QLabel>

namespace tarvelo::tests {

// A machine without sound.
class SilentEngine final : public engine::AudioEngine
{
public:
    std::unique_ptr<engine::AudioRecorder> makeRecorder(const QString &,
                                                        const QVariantMap &) override
    {
        return nullptr;
    }
    std::unique_ptr<engine::AudioPlayer> makePlayer(const QByteArray &) override { return nullptr; }
};

// Keeps what was to be shown, and its end handler for the test to call.
class KeptAlerts final : public platform::Alerts
{
public:
    struct Shown
    {
        platform::Alert alert;
        QWidget *window;
        std::function<void(int)> didEnd;
    };
    QList<Shown> shown;

    void beginSheet(const platform::Alert &alert, QWidget &window,
                    std::function<void(int)> didEnd) override
    {
        shown.append({alert, &window, std::move(didEnd)});
    }
};

class KeptWorkspace final : public platform::Workspace
{
public:
    QList<QUrl> revealed;

    void activateFileViewerSelectingURLs(const QList<QUrl> &urls) override { revealed << urls; }
};

// The whole program but for its process: real windows, controller, settings and store, in a home
// and at a time of its own. Each one is a process of its own as far as its flags go.
struct Application
{
    Application()
        : dates(clock, {"en_US", QStringLiteral("UTC")})
        , settingsFile(home.places().applicationSupport + QStringLiteral("/Tarvelo.conf"))
        , defaults(settingsFile)
        , database(home.places())
        , windows(dates)
        , controller({dates, home.places(), defaults, database, engine, alerts, workspace,
                      flags.controllerIsAwake},
                     windows)
        , delegate({dates, defaults, alerts, windows, controller,
                    app::LoginItem(home.places().applicationSupport + QStringLiteral("/autostart"),
                                   QStringLiteral("/usr/bin/Tarvelo")),
                    flags})
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
    QByteArray settings() const
    {
        QFile file(settingsFile);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    TemporaryPlaces home;
    FakeClock clock;
    platform::Dates dates;
    QString settingsFile;
    platform::UserDefaults defaults;
    store::LectureDatabase database;
    SilentEngine engine;
    KeptAlerts alerts;
    KeptWorkspace workspace;
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
