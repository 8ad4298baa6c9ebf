// usage: LongTake SECONDS FOLDER
// Records so many seconds of sound into a take, as fast as the machine can, and then looks for all
// of it: by reading the file from its first sample to its last, and by jumping to places all over
// it. Says what it found, a fact a line. Exit status 0 when nothing is missing.

#include "audio/engine/DecodedSource.h"
#include "audio/engine/Recordings.h"
#include "audio/engine/Take.h"
#include "support/DecodedAudio.h"
#include "support/FileContent.h"
#include "support/ResidentMemory.h"
#include "support/TestSound.h"

#include <QCoreApplication>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

using namespace tarvelo;

namespace {

constexpr int Rate = 44100;
constexpr double Alike = 0.98;
constexpr double AlikeInShort = 0.95; // over a tenth of a second
constexpr double MostOff = 1e-5;      // seconds, in what file and player say of its length
constexpr int Jumps = 200;
constexpr double MostAhead = engine::Take::SecondsInRing / 2.0;
constexpr int Patience = 600000; // milliseconds, for a machine that has other things to do

// Two tunes over each other that begin anew at different times: it takes years until a moment comes
// again.
class LongTune
{
public:
    std::vector<float> piece(std::int64_t from, std::int64_t count) const
    {
        std::vector<float> sound(static_cast<std::size_t>(count));
        auto one = static_cast<std::size_t>(from) % m_one.size();
        auto other = static_cast<std::size_t>(from) % m_other.size();
        for (float &sample : sound) {
            sample = (m_one[one] + m_other[other]) / 2;
            one = one + 1 == m_one.size() ? 0 : one + 1;
            other = other + 1 == m_other.size() ? 0 : other + 1;
        }
        return sound;
    }

private:
    std::vector<float> m_one = tests::tune(Rate, 61.0, 1);
    std::vector<float> m_other = tests::tune(Rate, 59.003, 2);
};

double secondsSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::vector<float> onBothSides(const std::vector<float> &sound)
{
    std::vector<float> both;
    both.reserve(2 * sound.size());
    for (const float sample : sound)
        both.insert(both.end(), 2, sample);
    return both;
}

std::span<const float> left(std::vector<float> &stereo, std::size_t frames)
{
    for (std::size_t frame = 0; frame < frames; ++frame)
        stereo[frame] = stereo[2 * frame];
    return std::span(stereo).first(frames);
}

// Every second of the sound, in one go.
bool isAllThere(engine::DecodedSource &source, const LongTune &tune, std::int64_t frames)
{
    double worst = 1;
    std::int64_t found = 0;
    std::vector<float> stereo(2 * Rate);
    while (const std::size_t count = source.read(stereo)) {
        const auto played = tune.piece(found, static_cast<std::int64_t>(count));
        if (count > Rate / 10) // what is left in the end may be too short to compare
            worst = std::min(worst, tests::correlation(played, left(stereo, count)));
        found += static_cast<std::int64_t>(count);
    }
    std::printf("frames_played %lld\nworst_second %.4f\n", static_cast<long long>(found), worst);
    return found == frames && worst >= Alike;
}

// The first tenth of a second after a jump.
bool isFoundByJumping(engine::DecodedSource &source, const LongTune &tune, std::int64_t frames)
{
    std::mt19937_64 random(1);
    std::uniform_int_distribution<std::int64_t> places(0, frames - Rate / 10);
    double worst = 1;
    double longest = 0;
    std::vector<float> stereo(2 * (Rate / 10));
    for (int jump = 0; jump < Jumps; ++jump) {
        const std::int64_t place = places(random);
        const auto start = std::chrono::steady_clock::now();
        source.seek(place);
        const std::size_t count = source.read(stereo);
        longest = std::max(longest, secondsSince(start));
        worst =
            std::min(worst, tests::correlation(tune.piece(place, Rate / 10), left(stereo, count)));
    }
    std::printf("jumps %d\nworst_jump %.4f\nlongest_jump_ms %.1f\n", Jumps, worst, longest * 1000);
    return worst >= AlikeInShort;
}

// Gives the take sound as soon as it can be written.
bool record(engine::Take &take, const LongTune &tune, std::int64_t frames, int reports)
{
    const std::int64_t interval = std::max<std::int64_t>(frames / reports, Rate);
    double first = 0;
    double most = 0;
    for (std::int64_t at = 0; at < frames; at += Rate) {
        const auto hasRoom = [&] {
            return static_cast<double>(at) / Rate - take.secondsInFile() < MostAhead;
        };
        if (!QTest::qWaitFor(hasRoom, Patience))
            return false;
        take.put(onBothSides(tune.piece(at, std::min<std::int64_t>(Rate, frames - at))));
        if (at == std::min<std::int64_t>(60, frames / Rate / 2) * Rate)
            first = tests::residentMebibytes();
        if (at > 0 && at % interval < Rate) {
            most = std::max(most, tests::residentMebibytes());
            std::printf("resident %.2f h %.2f MiB\n", static_cast<double>(at) / Rate / 3600,
                        tests::residentMebibytes());
            std::fflush(stdout);
        }
    }
    most = std::max(most, tests::residentMebibytes());
    std::printf("resident_first %.2f\nresident_most %.2f\n", first, most);
    return std::abs(take.seconds() - static_cast<double>(frames) / Rate) < 1e-6;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 3)
        return 2;
    // No whole number of seconds, nor of the encoder's frames.
    const std::int64_t frames = std::llround(std::atof(argv[1]) * Rate) + 12345;
    const QString path = QString::fromLocal8Bit(argv[2]) + QStringLiteral("/long.m4a");
    // Who has listened to a lecture before records no worse.
    if (!engine::DecodedSource::open(tests::recordingOf(tests::tune(Rate, 1))))
        return 2;

    const LongTune tune;
    const auto start = std::chrono::steady_clock::now();
    const auto take = engine::Take::start(QFile::encodeName(path).toStdString(), {Rate, 2}, {});
    if (!take || !record(*take, tune, frames, 25))
        return 1;
    std::printf("recorded_s %.1f\n", secondsSince(start));
    const auto end = std::chrono::steady_clock::now();
    const bool isComplete = take->finish();
    std::printf("finished_s %.2f\nresident_after %.2f\n", secondsSince(end),
                tests::residentMebibytes());

    const auto facts = tests::MovieFacts::read(path);
    const QByteArray bytes = tests::contentOf(path);
    const auto source = engine::DecodedSource::open(bytes);
    if (!facts || !source)
        return 1;
    const double length = static_cast<double>(frames) / Rate;
    const double off =
        std::max(std::abs(source->seconds() - length), std::abs(facts->seconds - length));
    std::printf("bytes %lld\nindexed %d\nframes_recorded %lld\nlength_s %.6f\noff_s %.6f\n",
                static_cast<long long>(bytes.size()), facts->isFragmented ? 0 : 1,
                static_cast<long long>(frames), length, off);
    const bool isWhole = isComplete && !facts->isFragmented && isAllThere(*source, tune, frames);
    return isWhole && isFoundByJumping(*source, tune, frames) && off < MostOff ? 0 : 1;
}
