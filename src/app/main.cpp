#include "app/AppDelegate.h"
#include "app/SingleInstance.h"
#include "app/WaysOut.h"
#include "audio/engine/AudioRecorder.h"
#include "lectures/LectureWindows.h"
#include "lectures/MediaLinksArrayController.h"
#include "platform/Alerts.h"
#include "platform/Dates.h"
#include "platform/Images.h"
#include "platform/MailComposer.h"
#include "platform/Texts.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "store/LectureDatabase.h"

#include <QApplication>

using namespace tarvelo;

namespace {

// The program keeps no log. What Qt remarks about the desktop, such as a missing status bar, is
// nothing to the user; only what ends the program is said.
void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        fprintf(stderr, "%s\n", qPrintable(message));
}

void describe(QApplication &application)
{
    platform::installTexts();
    QApplication::setApplicationName(QStringLiteral("Tarvelo"));
    QApplication::setDesktopFileName(QStringLiteral("org.tarvelo.Tarvelo"));
    QApplication::setWindowIcon(platform::imageNamed(QStringLiteral("icon")).icon());
    QApplication::setQuitOnLastWindowClosed(false);
    // One look on every desktop: the windows' own drawings go with no other.
    QApplication::setStyle(QStringLiteral("Fusion"));
    application.setLayoutDirection(platform::text("LAYOUT_DIRECTION") == u"RTL" ? Qt::RightToLeft
                                                                                : Qt::LeftToRight);
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(handleMessage);
    QApplication application(argc, argv);
    const app::SingleInstance instance(app::SingleInstance::standardFolder());
    if (!instance.isFirst()) {
        instance.askFirstToReopen();
        return 0;
    }
    describe(application);

    platform::SystemClock clock;
    platform::Dates dates(clock, platform::Region::ofUser());
    platform::UserDefaults defaults(platform::UserDefaults::standardFile());
    const platform::Places places = platform::Places::ofProcess();
    store::LectureDatabase database(places);
    const auto engine = engine::makeSoundServerEngine();
    platform::WindowAlerts alerts;
    platform::DesktopWorkspace workspace;
    platform::DesktopMailComposer mail;
    app::ProcessFlags &flags = app::ProcessFlags::ofProcess();

    const lectures::LectureWindows windows(dates);
    lectures::MediaLinksArrayController controller({dates, places, defaults, database, *engine,
                                                    alerts, workspace, mail,
                                                    flags.controllerIsAwake, flags.pendingRow},
                                                   windows);
    app::AppDelegate delegate(
        {dates, defaults, alerts, windows, controller,
         app::LoginItem(app::LoginItem::standardFolder(), QApplication::applicationFilePath()),
         flags});

    const app::WaysOut waysOut(application, delegate, controller);
    QObject::connect(&instance, &app::SingleInstance::reopenRequested, &delegate,
                     &app::AppDelegate::reopen);

    controller.awakeFromNib();
    delegate.awakeFromNib();
    delegate.applicationDidFinishLaunching(&application);
    return QApplication::exec();
}
