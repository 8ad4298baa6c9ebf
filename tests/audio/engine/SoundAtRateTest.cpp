#include "audio/engine/SoundAtRate.h"
#include "audio/engine/Recordings.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

#include <cmath>
#include <random>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

class SoundAtRateTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void atTheRecordedRateEverySampleStays()
    {
        const auto source = openExact(tune(44100, 2));
        const auto before = heard(*source, 0, 1.0);
        std::vector<float> direct(before.size());
        source->seek(0);

        QCOMPARE(source->read(direct), before.size());

        for (std::size_t at = 0; at < before.size(); ++at)
            QCOMPARE(before[at], direct[at]);
    }

    void theLengthIsThatOfTheSoundDividedByTheRate_data() { rates(); }
    void theLengthIsThatOfTheSoundDividedByTheRate()
    {
        QFETCH(double, rate);
        const auto source = open(tune(44100, 3.3));
        const double frames = source->seconds() * 44100;

        const auto fromStart = heard(*source, 0, rate);
        const auto fromMiddle = heard(*source, 50000, rate);

        QVERIFY(std::abs(static_cast<double>(fromStart.size()) - frames / rate) <= 1);
        QVERIFY(std::abs(static_cast<double>(fromMiddle.size()) - (frames - 50000) / rate) <= 1);
    }

    void aToneKeepsItsPitch_data() { rates(); }
    void aToneKeepsItsPitch()
    {
        QFETCH(double, rate);
        const auto source = open(tone(44100, 3, 440));

        const auto sound = heard(*source, 0, rate);

        const auto middle = std::span(sound).subspan(sound.size() / 4, 44100);
        const double cents = 1200 * std::log2(pitch(middle) / 440);
        QVERIFY2(std::abs(cents) < 5, qPrintable(QString::number(cents)));
    }

    // A thing has two places, and both must be right: where it begins to be heard, and the middle
    // of its energy.
    void everythingHappensAtItsTime_data() { rates(); }
    void everythingHappensAtItsTime()
    {
        QFETCH(double, rate);
        const auto bursts = someBursts();
        const auto source = openExact(soundOf(bursts, 6));
        constexpr std::int64_t Middle = 133000;

        const auto sound = heard(*source, 0, rate);
        const auto fromMiddle = heard(*source, Middle, rate);

        for (const Burst &burst : bursts)
            QCOMPARE(misplaced(sound, burst, 0, rate), QString());
        for (const Burst &burst : std::span(bursts).last(4))
            QCOMPARE(misplaced(fromMiddle, burst, Middle / 44100.0, rate), QString());
    }

    void theSoundGoesOnToItsEnd_data() { rates(); }
    void theSoundGoesOnToItsEnd()
    {
        QFETCH(double, rate);
        const auto source = open(tone(44100, 2, 440));

        const auto sound = heard(*source, 0, rate);

        const std::size_t last = 44100 / 20;
        const auto end = std::span(sound).last(2 * last).first(last);
        QVERIFY(std::ranges::max(end) > 0.3F);
    }

    void nothingIsLeftBehindTheEnd()
    {
        const auto source = open(tune(44100, 1));

        for (const double rate : {1.0, 0.2})
            QVERIFY(heard(*source, 100000, rate).empty());
    }

private:
    static void rates()
    {
        QTest::addColumn<double>("rate");
        QTest::newRow("1") << 1.0;
        QTest::newRow("half") << 0.5;
        QTest::newRow("third") << static_cast<double>(1.0F / 3.0F);
        QTest::newRow("quarter") << 0.25;
        QTest::newRow("fifth") << static_cast<double>(1.0F / 5.0F);
    }

    static std::unique_ptr<DecodedSource> open(std::span<const float> sound)
    {
        return DecodedSource::open(recordingOf(sound));
    }

    static std::unique_ptr<DecodedSource> openExact(std::span<const float> sound)
    {
        return DecodedSource::open(exactRecordingOf(sound));
    }

    // The left channel, to the end.
    static std::vector<float> heard(DecodedSource &source, std::int64_t from, double rate)
    {
        SoundAtRate sound(source, from, rate);
        std::vector<float> all;
        const auto channels = static_cast<std::size_t>(source.format().channels);
        std::vector<float> block(channels * 3000);
        while (const std::size_t count = sound.read(block))
            for (std::size_t at = 0; at < count; ++at)
                all.push_back(block[channels * at]);
        return all;
    }

    // By the crossings of zero, upwards, first to last.
    static double pitch(std::span<const float> sound)
    {
        double first = -1;
        double last = 0;
        int count = 0;
        for (std::size_t at = 1; at < sound.size(); ++at) {
            if (sound[at - 1] >= 0 || sound[at] < 0)
                continue;
            const double rise = static_cast<double>(sound[at] - sound[at - 1]);
            last = static_cast<double>(at) - static_cast<double>(sound[at]) / rise;
            if (count++ == 0)
                first = last;
        }
        return (count - 1) * 44100.0 / (last - first);
    }

    struct Burst
    {
        double begin = 0; // seconds
        double length = 0;
        bool isNoise = false;
    };

    static std::vector<Burst> someBursts()
    {
        std::vector<Burst> bursts;
        for (const double length : {0.01, 0.03, 0.1})
            for (const bool isNoise : {false, true})
                for (const double offset : {0.0, 0.0077})
                    bursts.push_back({0.2 + 0.4671 * static_cast<double>(bursts.size()) + offset,
                                      length, isNoise});
        return bursts;
    }

    static std::vector<float> soundOf(const std::vector<Burst> &bursts, double seconds)
    {
        std::vector<float> sound(static_cast<std::size_t>(44100 * seconds));
        std::mt19937 random(1);
        std::normal_distribution<float> noise(0, 0.3F);
        for (const Burst &burst : bursts) {
            auto samples = tone(44100, burst.length, 1000);
            if (burst.isNoise)
                std::ranges::generate(samples, [&] { return noise(random); });
            std::ranges::copy(samples, sound.begin() + std::lround(burst.begin * 44100));
        }
        return sound;
    }

    // Nothing when it is less than 20 ms from where it should be in what was heard from a second
    // on.
    static QString misplaced(std::span<const float> sound, Burst burst, double from, double rate)
    {
        burst.begin = (burst.begin - from) / rate;
        burst.length /= rate;
        const auto levels =
            levelsAround(sound, burst.begin - 0.15, burst.begin + burst.length + 0.15);
        const auto loud = std::ranges::max_element(levels, {}, &Level::value)->value;
        const auto first =
            std::ranges::find_if(levels, [loud](const Level &it) { return it.value > 0.1 * loud; });
        const double early = first->time - burst.begin;
        const double off = middle(levels) - burst.begin - burst.length / 2;
        if (std::abs(early) < 0.02 && std::abs(off) < 0.02)
            return {};
        return QStringLiteral("%1: begins off by %2, middle by %3")
            .arg(burst.begin)
            .arg(early)
            .arg(off);
    }

    // Effective, of two milliseconds.
    struct Level
    {
        double time = 0;
        double value = 0;
    };

    static std::vector<Level> levelsAround(std::span<const float> sound, double from, double to)
    {
        constexpr std::size_t Window = 88;
        std::vector<Level> levels;
        auto at = static_cast<std::size_t>(std::max(from, 0.0) * 44100);
        for (; at + Window < sound.size() && static_cast<double>(at) < to * 44100; at += 11) {
            double energy = 0;
            for (const float sample : sound.subspan(at, Window))
                energy += std::pow(static_cast<double>(sample), 2);
            const double time = (static_cast<double>(at) + Window / 2.0) / 44100;
            levels.push_back({time, std::sqrt(energy / Window)});
        }
        return levels;
    }

    static double middle(const std::vector<Level> &levels)
    {
        double energy = 0;
        double moment = 0;
        for (const Level &level : levels) {
            energy += level.value * level.value;
            moment += level.value * level.value * level.time;
        }
        return moment / energy;
    }
};

QTEST_GUILESS_MAIN(SoundAtRateTest)
#include "SoundAtRateTest.moc"
