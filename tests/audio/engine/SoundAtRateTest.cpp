#include "audio/engine/SoundAtRate.h"
#include "audio/engine/Recordings.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

#include <cmath>
#include <numbers>

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

    void everythingHappensAtItsTime_data() { rates(); }
    void everythingHappensAtItsTime()
    {
        QFETCH(double, rate);
        const std::vector<double> times{0.5, 1.0, 1.7, 2.6};
        const auto source = openExact(bursts(3, times));

        const auto sound = heard(*source, 0, rate);
        const auto fromMiddle = heard(*source, 33000, rate);

        const auto isInPlace = [rate](const std::vector<float> &in, double burst) {
            const double off = middle(in, burst / rate, 0.1 / rate) - burst / rate;
            return std::abs(off) < 0.02;
        };
        for (const double time : times)
            QVERIFY2(isInPlace(sound, time), qPrintable(QString::number(time)));
        QVERIFY(isInPlace(fromMiddle, 1.7 - 33000 / 44100.0));
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

    // As it is, with one channel: an encoder smears what it does not take for important.
    static std::unique_ptr<DecodedSource> openExact(std::span<const float> sound)
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("sound.wav")));
        const bool isThere = writeWav(file.fileName(), sound, 44100) && file.open(QFile::ReadOnly);
        return DecodedSource::open(isThere ? file.readAll() : QByteArray());
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

    // Short bursts of a high tone in silence, in the middle of which the times are.
    static std::vector<float> bursts(double seconds, const std::vector<double> &times)
    {
        std::vector<float> sound(static_cast<std::size_t>(44100 * seconds));
        const auto burst = tone(44100, 0.03, 2000);
        for (const double time : times)
            std::ranges::copy(burst, sound.begin() + std::lround((time - 0.015) * 44100));
        return sound;
    }

    // The middle, in seconds, of all that is loud at most `reach` seconds from a place.
    static double middle(std::span<const float> sound, double about, double reach)
    {
        double energy = 0;
        double moment = 0;
        const auto from = static_cast<std::size_t>((about - reach) * 44100);
        const auto to = std::min(sound.size(), static_cast<std::size_t>((about + reach) * 44100));
        for (std::size_t at = from; at < to; ++at) {
            const double here = std::pow(static_cast<double>(sound[at]), 2);
            energy += here;
            moment += here * static_cast<double>(at) / 44100;
        }
        return moment / energy;
    }
};

QTEST_GUILESS_MAIN(SoundAtRateTest)
#include "SoundAtRateTest.moc"
