// How much processor time does recording from the sound server take, beside `ffmpeg -f pulse` doing
// the same? One after the other, from the same server, each in a process of its own.

#include "ChildProcess.h"
#include "audio/engine/AudioEngine.h"
#include "support/PrivateSoundServer.h"
#include "support/TestSound.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

using namespace tarvelo;

namespace {

constexpr int Seconds = 30;

// As the program does it: once a second somebody looks at the time.
int record(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    using namespace engine;
    const auto recorder = makeSoundServerEngine()->makeRecorder(
        QString::fromLocal8Bit(argv[2]), {{RecorderSettingKeys::SampleRate, 44100.0F},
                                          {RecorderSettingKeys::NumberOfChannels, 2},
                                          {RecorderSettingKeys::EncoderBitRate, 80000},
                                          {RecorderSettingKeys::Format, 0x61616320}});
    if (!recorder || !recorder->prepareToRecord() || !recorder->record())
        return 1;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &application, [&recorder] {
        if (recorder->currentTime() >= Seconds)
            QCoreApplication::quit();
    });
    timer.start(1000);
    QCoreApplication::exec();
    recorder->stop();
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 3) // --record TAKE
        return record(argc, argv);
    const QTemporaryDir folder;
    const QString wav = folder.filePath(QStringLiteral("in.wav"));
    const std::string out = folder.filePath(QStringLiteral("out.m4a")).toStdString();
    tests::PrivateSoundServer server;
    if (!tests::writeWav(wav, tests::tune(44100, Seconds * 3), 44100, 2) || !server.start() ||
        !server.speak(wav))
        return 2;
    const double ours = bench::processorSecondsOf({argv[0], "--record", out});
    const double theirs = bench::processorSecondsOf(
        {"ffmpeg", "-nostdin", "-v",           "quiet", "-y",
         "-f",     "pulse",    "-sample_rate", "44100", "-channels",
         "2",      "-i",       "default",      "-t",    std::to_string(Seconds),
         "-c:a",   "aac",      "-b:a",         "80000", out});
    std::printf("%-34s %10s %14s\n", "recording 30 seconds", "seconds", "of a core");
    std::printf("%-34s %10.2f %12.2f %%\n", "a take", ours, 100 * ours / Seconds);
    std::printf("%-34s %10.2f %12.2f %%\n", "ffmpeg -f pulse", theirs, 100 * theirs / Seconds);
    std::printf("%-34s %10.2f   (at most 1.30 wanted)\n", "our time / its time", ours / theirs);
    return ours > 0 && theirs > 0 && ours / theirs <= 1.3 ? 0 : 1;
}
