// How fast is a take encoded and written, beside the ffmpeg command with the same encoder and
// settings? Both read the same file, one after the other, on one core, each in a process of its
// own.

#include "ChildProcess.h"
#include "audio/engine/PcmFormat.h"
#include "audio/engine/TakeWriter.h"
#include "support/TestSound.h"

#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdio>
#include <sched.h>

using namespace tarvelo;

namespace {

constexpr int Seconds = 300;
constexpr int Rounds = 3;
constexpr int WavHeader = 44;

int encode(const char *wav, const char *take)
{
    std::FILE *input = std::fopen(wav, "rb");
    const auto writer = engine::TakeWriter::create(take, {44100, 2}, {});
    if (!input || !writer || std::fseek(input, WavHeader, SEEK_SET) != 0)
        return 1;
    std::array<std::int16_t, 8192> block{};
    std::array<float, 8192> samples{};
    while (const auto count = std::fread(block.data(), 2, block.size(), input)) {
        std::transform(block.begin(), block.begin() + count, samples.begin(),
                       [](std::int16_t it) { return static_cast<float>(it) / 32768.0F; });
        writer->write(std::span(samples).first(count));
    }
    std::fclose(input);
    return writer->finish() ? 0 : 1;
}

void stayOnOneCore()
{
    cpu_set_t cores;
    CPU_ZERO(&cores);
    CPU_SET(static_cast<std::size_t>(sched_getcpu()), &cores);
    sched_setaffinity(0, sizeof cores, &cores);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 4) // --encode WAV TAKE
        return encode(argv[2], argv[3]);
    const QTemporaryDir folder;
    const std::string wav = folder.filePath(QStringLiteral("in.wav")).toStdString();
    const std::string out = folder.filePath(QStringLiteral("out.m4a")).toStdString();
    tests::writeWav(QString::fromStdString(wav), tests::tune(44100, Seconds), 44100, 2);
    stayOnOneCore();
    double ours = 1e9;
    double theirs = 1e9;
    for (int round = 0; round < Rounds; ++round) {
        ours = std::min(ours, bench::processorSecondsOf({argv[0], "--encode", wav, out}));
        theirs = std::min(theirs, bench::processorSecondsOf(
                                      {"ffmpeg", "-nostdin", "-v", "quiet", "-y", "-i", wav, "-c:a",
                                       "aac", "-b:a", "80000", "-ar", "44100", "-ac", "2", out}));
    }
    std::printf("%-34s %10s %14s\n", "encoding 5 minutes, best of 3", "seconds", "x real time");
    std::printf("%-34s %10.2f %14.1f\n", "a take (with its indexed copy)", ours, Seconds / ours);
    std::printf("%-34s %10.2f %14.1f\n", "the ffmpeg command", theirs, Seconds / theirs);
    std::printf("%-34s %10.2f   (at least 0.80 wanted)\n", "our speed / its speed", theirs / ours);
    return theirs / ours >= 0.8 ? 0 : 1;
}
