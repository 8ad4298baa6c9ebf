#include "audio/engine/SpliceFader.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

using namespace tarvelo::tests;
using tarvelo::engine::SpliceFader;

constexpr int Rate = 44100;

class SpliceFaderTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void soundWithoutABreakStaysAsItIs()
    {
        const auto sound = tone(Rate, 0.5, 2000);
        SpliceFader fader(Rate, 1, collect());

        for (std::size_t at = 0; at < sound.size(); at += 441)
            fader.put(std::span(sound).subspan(at, 441));

        QCOMPARE(m_out.size() + fader.samplesHeldBack(), sound.size());
        QVERIFY(std::equal(m_out.begin(), m_out.end(), sound.begin()));
    }

    void noMoreThanTheFadeIsHeldBack()
    {
        SpliceFader fader(Rate, 2, collect());

        fader.put(tone(Rate, 0.5, 2000));

        QVERIFY(fader.samplesHeldBack() <= std::size_t{2 * Rate / 500});
    }

    void aBreakChangesNoLength()
    {
        const auto sound = tone(Rate, 0.1, 2000);
        SpliceFader fader(Rate, 2, collect());

        for (int part = 0; part < 5; ++part) {
            fader.put(sound);
            fader.breakOff();
        }

        QCOMPARE(fader.samplesHeldBack(), std::size_t{0});
        QCOMPARE(m_out.size(), 5 * sound.size());
    }

    void aBreakIsShortAndWithoutAStep()
    {
        // The two parts meet at opposite full levels.
        const std::vector<float> high(Rate / 10, 1.0F);
        const std::vector<float> low(Rate / 10, -1.0F);
        SpliceFader fader(Rate, 1, collect());

        fader.put(high);
        fader.breakOff();
        fader.put(low);
        fader.breakOff();

        std::size_t soft = 0;
        for (std::size_t at = 1; at + 200 < m_out.size(); ++at) {
            QVERIFY(std::abs(m_out[at] - m_out[at - 1]) < 0.05F);
            soft += std::abs(m_out[at]) < 1.0F ? 1 : 0;
        }
        QVERIFY(soft > 0);
        QVERIFY(soft < std::size_t{Rate / 250});
    }

    void soundShorterThanTheFadeComesOutWithTheBreak()
    {
        SpliceFader fader(Rate, 1, collect());

        fader.put(tone(Rate, 0.001, 2000));
        QVERIFY(m_out.empty());
        fader.breakOff();

        QCOMPARE(m_out.size(), std::size_t{44});
        QCOMPARE(fader.samplesHeldBack(), std::size_t{0});
    }

    void breakingOffTwiceIsBreakingOffOnce()
    {
        const auto sound = tone(Rate, 0.1, 2000);
        SpliceFader fader(Rate, 1, collect());

        fader.breakOff();
        fader.put(sound);

        QVERIFY(std::equal(m_out.begin(), m_out.end(), sound.begin()));
    }

    // The yardstick by which whole recordings are measured.
    void aGapOfSixMillisecondsWouldBeSeen()
    {
        auto sound = tone(Rate, 1, 2000);

        QVERIFY(longestDisturbance(sound, Rate, 2000) < 0.001);
        std::fill_n(sound.begin() + 20000, Rate * 6 / 1000, 0.0F);

        QVERIFY(longestDisturbance(sound, Rate, 2000) > 0.005);
    }

private:
    void prepare() override { m_out.clear(); }
    SpliceFader::Output collect()
    {
        return [this](auto samples) { m_out.insert(m_out.end(), samples.begin(), samples.end()); };
    }

    std::vector<float> m_out;
};

QTEST_GUILESS_MAIN(SpliceFaderTest)
#include "SpliceFaderTest.moc"
