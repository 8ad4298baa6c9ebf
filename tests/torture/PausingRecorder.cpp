// Records into a file and does in the meantime what it is told to:
//
//     PausingRecorder FILE [pause:MILLISECONDS] [resume:MILLISECONDS] [stop:MILLISECONDS]
//
// at such times after its beginning. It tells "begin", "pause", "resume", "stop" before it stops
// and "stopped" when it has, and every few milliseconds "recorded", each with the recorded seconds,
// until somebody ends it.

#include "audio/engine/AudioEngine.h"
#include "audio/engine/Settings.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

using namespace tarvelo;

namespace {

void tell(const char *what, const engine::AudioRecorder &recorder)
{
    std::printf("%s %.6f\n", what, recorder.currentTime());
    std::fflush(stdout);
}

void perform(const QString &deed, engine::AudioRecorder &recorder)
{
    if (deed == u"stop") {
        tell("stop", recorder);
        recorder.stop();
        tell("stopped", recorder);
    } else if (deed == u"pause") {
        recorder.pause();
        tell("pause", recorder);
    } else {
        recorder.record();
        tell("resume", recorder);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const auto engine = engine::makeSoundServerEngine();
    const auto recorder = engine->makeRecorder(arguments.value(1), tests::lectureSettings());
    if (!recorder || !recorder->prepareToRecord() || !recorder->record())
        return 1;
    tell("begin", *recorder);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &application,
                     [&recorder] { tell("recorded", *recorder); });
    timer.start(10);
    for (const QString &told : arguments.mid(2)) {
        const QString deed = told.section(u':', 0, 0);
        QTimer::singleShot(told.section(u':', 1).toInt(), Qt::PreciseTimer, &application,
                           [deed, &recorder] { perform(deed, *recorder); });
    }
    return QCoreApplication::exec();
}
