#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "app/DesktopService.h"
#include "app/SingleInstance.h"
#include "app/WaysOut.h"
#include "audio/engine/AudioEngine.h"
#include "lectures/LectureWindows.h"
#include "lectures/MediaLinksArrayController.h"
#include "platform/Alerts.h"
#include "platform/Clock.h"
#include "platform/Dates.h"
#include "platform/DelayedCall.h"
#include "platform/Images.h"
#include "platform/MailComposer.h"
#include "platform/Places.h"
#include "platform/PrivateFiles.h"
#include "platform/Region.h"
#include "platform/SleepInhibitor.h"
#include "platform/Texts.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "store/DailyCheck.h"
#include "store/LectureDatabase.h"
#include "widgets/ControlStyle.h"

#include <QApplication>
#include <QFileInfo>
#include <QObject>
#include <QStringList>

#include <chrono>
#include <cstdio>
#include <memory>

using namespace tarvelo;

namespace {

// The program keeps no log. What Qt remarks about the desktop, such as a missing status bar, is
// nothing to the user; only what ends the program is said.
void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        fprintf(stderr, "%s\n", qPrintable(message));
}

// After which a day is chosen and its list shows.
constexpr std::chrono::milliseconds LaunchTime{600};

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int at = 0; at < argc; ++at)
        arguments.append(QString::fromLocal8Bit(argv[at]));
    return arguments;
}

// The status with which the program ends.
int give(const app::CommandLine &line)
{
    fputs(line.answer.constData(), line.status == 0 ? stdout : stderr);
    return line.status;
}

void describe(QApplication &application)
{
    platform::installTexts();
    QApplication::setApplicationName(QStringLiteral("Tarvelo"));
    QApplication::setDesktopFileName(QStringLiteral("org.tarvelo.Tarvelo"));
    QApplication::setWindowIcon(platform::imageNamed(QStringLiteral("icon")).icon());
    QApplication::setQuitOnLastWindowClosed(false);
    // One look on every desktop: the windows' own drawings go with no other.
    QApplication::setStyle(new widgets::ControlStyle);
    application.setLayoutDirection(platform::text("LAYOUT_DIRECTION") == u"RTL" ? Qt::RightToLeft
                                                                                : Qt::LeftToRight);
}

// What the program stands on. It comes into being in this order.
struct Ground
{
    Ground()
    {
        platform::keepFolderPrivate(QFileInfo(platform::UserDefaults::standardFile()).path());
    }

    platform::SystemClock clock;
    platform::Dates dates{clock, platform::Region::ofUser()};
    platform::UserDefaults defaults{platform::UserDefaults::standardFile()};
    platform::Places places = platform::Places::ofProcess();
    store::LectureDatabase database{places, clock};
    std::unique_ptr<engine::AudioEngine> sound = engine::makeSoundServerEngine();
    platform::WindowAlerts alerts;
    platform::DesktopWorkspace workspace;
    platform::DesktopMailComposer mail;
    platform::DesktopSleepInhibitor sleep{platform::text("REASON_RECORDING")};
    app::ProcessFlags &flags = app::ProcessFlags::ofProcess();
};

lectures::LectureServices servicesOn(Ground &ground)
{
    return {ground.dates,           ground.places,
            ground.defaults,        ground.database,
            *ground.sound,          ground.alerts,
            ground.workspace,       ground.mail,
            ground.sleep,           ground.flags.controllerIsAwake,
            ground.flags.pendingRow};
}

// What somebody outside asks of the program that runs.
void answerRequests(const app::SingleInstance &instance, const app::DesktopService &service,
                    app::AppDelegate &delegate)
{
    const auto perform = [&delegate](app::Request request) { delegate.perform(request); };
    QObject::connect(&instance, &app::SingleInstance::requested, &delegate, perform);
    QObject::connect(&service, &app::DesktopService::requested, &delegate, perform);
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(handleMessage);
    // Answered also where there is no display.
    if (const app::CommandLine question = app::questionIn(argumentsOf(argc, argv));
        question.endsAtOnce())
        return give(question);
    QApplication application(argc, argv);
    const app::CommandLine line = app::commandLineOf(QApplication::arguments());
    if (line.endsAtOnce())
        return give(line);
    const app::SingleInstance instance(app::SingleInstance::standardFolder());
    if (!instance.isFirst()) {
        instance.askFirst(line.request);
        return 0;
    }
    describe(application);

    Ground ground;
    const lectures::LectureWindows windows(ground.dates);
    lectures::MediaLinksArrayController controller(servicesOn(ground), windows);
    app::AppDelegate delegate(
        {ground.dates, ground.defaults, ground.database, ground.alerts, windows, controller,
         app::LoginItem(app::LoginItem::standardFolder(), QApplication::applicationFilePath()),
         app::Help(ground.workspace, ground.places.resources), ground.flags});

    const app::WaysOut waysOut(application, delegate, controller);
    const app::DesktopService service;
    answerRequests(instance, service, delegate);

    controller.awakeFromNib();
    delegate.awakeFromNib();
    delegate.applicationDidFinishLaunching(&application);
    const store::DailyCheck check(ground.database, ground.clock);
    platform::DelayedCall firstRequest(ground.clock, [&] { delegate.perform(line.request); });
    if (line.request != app::Request::Reopen)
        firstRequest.schedule(LaunchTime);
    return QApplication::exec();
}
