// Records ten minutes (or as many seconds as it is told) from a sound server of its own, lays what
// came out over what was played, and prints how well the two agree. Exit status 0 when they do.

#include "audio/engine/AudioEngine.h"
#include "audio/engine/Settings.h"
#include "support/DecodedAudio.h"
#include "support/PrivateSoundServer.h"
#include "support/TestSound.h"

#include <QCoreApplication>
#include <QTest>

#include <cstdio>

using namespace tarvelo::tests;

int main(int argc, char **argv)
{
    constexpr int Rate = 44100;
    const QCoreApplication application(argc, argv);
    const double seconds = argc > 1 ? QCoreApplication::arguments().at(1).toDouble() : 600;
    const QTemporaryDir folder;
    const QString wav = folder.filePath(QStringLiteral("played.wav"));
    const QString path = folder.filePath(QStringLiteral("take.m4a"));
    const auto played = tune(Rate, seconds + 30);
    PrivateSoundServer server;
    if (!writeWav(wav, played, Rate) || !server.start() || !server.speak(wav))
        return 2;

    const auto recorder =
        tarvelo::engine::makeSoundServerEngine()->makeRecorder(path, lectureSettings());
    if (!recorder || !recorder->prepareToRecord() || !recorder->record())
        return 2;
    const bool recorded = QTest::qWaitFor([&] { return recorder->currentTime() >= seconds; },
                                          static_cast<int>(seconds * 2000) + 60000);
    recorder->stop();

    const auto take = DecodedAudio::read(path);
    if (!recorded || !take)
        return 2;
    const auto likeness = compare(played, take->channel(0), Rate, 20);
    const double length = std::abs(take->seconds() - recorder->currentTime());
    std::printf("recorded                      %10.3f s\n"
                "length against recorded time  %10.3f ms\n"
                "correlation, whole            %10.5f\n"
                "correlation, worst second     %10.5f\n"
                "greatest drift                %10.3f ms\n",
                recorder->currentTime(), length * 1000, likeness.correlation,
                likeness.worstCorrelation, likeness.drift * 1000);
    const bool agrees = likeness.correlation >= 0.98 && likeness.worstCorrelation >= 0.98 &&
                        likeness.drift < 0.02 && length < 0.05;
    return agrees ? 0 : 1;
}
