// A program that records into the file it is given and says every few milliseconds how far it has
// come, until somebody ends it.

#include "audio/engine/AudioEngine.h"
#include "audio/engine/Settings.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const auto engine = tarvelo::engine::makeSoundServerEngine();
    const auto recorder = engine->makeRecorder(QCoreApplication::arguments().value(1),
                                               tarvelo::tests::lectureSettings());
    if (!recorder || !recorder->prepareToRecord() || !recorder->record())
        return 1;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &application, [&recorder] {
        std::printf("%.6f\n", recorder->currentTime());
        std::fflush(stdout);
    });
    timer.start(10);
    return QCoreApplication::exec();
}
