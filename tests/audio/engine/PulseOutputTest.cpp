#include "audio/engine/PulseOutput.h"
#include "audio/engine/SpeakerRecording.h"
#include "support/TestCase.h"

#include <atomic>
#include <optional>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

constexpr int Patience = 60000;

namespace {

// Sound in which every sample says which frame it is, up to whole rounds. It is never silent.
struct NumberedFrames final : SoundSupply
{
    static constexpr std::int64_t Round = 16384;

    explicit NumberedFrames(double seconds)
        : end(std::llround(seconds * 44100))
    {
    }

    static float sample(std::int64_t frame)
    {
        return 0.1F + 0.8F * static_cast<float>(frame % Round) / static_cast<float>(Round);
    }
    // To within a frame or two: the speaker has 16 bits.
    static std::int64_t frameOf(float sample)
    {
        return std::lround((sample - 0.1F) / 0.8F * Round);
    }

    PcmFormat format() const override { return {44100, 1}; }
    std::size_t take(std::span<float> interleaved) override
    {
        const std::int64_t left = (isHeldBack ? 0 : end.load()) - next;
        const auto count = std::min<std::int64_t>(std::ssize(interleaved), std::max(left, 0L));
        for (std::int64_t at = 0; at < count; ++at)
            interleaved[static_cast<std::size_t>(at)] = sample(next++);
        return static_cast<std::size_t>(count);
    }
    bool isAtEnd() const override { return next >= end; }
    double secondsAt(double frame) const override
    {
        return (frame + static_cast<double>(first)) / 44100;
    }
    void restartAt(double frame) override
    {
        first += std::llround(frame);
        next = first.load();
    }

    std::atomic<std::int64_t> first = 0; // its frame 0 is this one of the sound
    std::atomic<std::int64_t> next = 0;
    std::atomic<std::int64_t> end;
    std::atomic<bool> isHeldBack = false;
};

} // namespace

class PulseOutputTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyFrameIsHeardOnceAndInOrder()
    {
        begin();
        NumberedFrames supply(2);

        m_output->start(supply);
        QTRY_COMPARE_WITH_TIMEOUT(m_ends.load(), 1, Patience);

        QTRY_COMPARE_WITH_TIMEOUT(framesHeard(), supply.end.load(), Patience);
    }

    void aPauseLosesNoFrameAndStandsAtTheNextOne()
    {
        begin();
        NumberedFrames supply(3);
        m_output->start(supply);

        for (const double place : {0.6, 1.2, 1.9}) {
            QTRY_VERIFY_WITH_TIMEOUT(m_output->seconds() > place, Patience);
            m_output->pause();
            QTRY_VERIFY_WITH_TIMEOUT(m_speaker->isSilentFor(0.3), Patience);
            const auto paused = std::llround(m_output->seconds() * 44100);
            QVERIFY2(std::abs(paused - framesHeard()) <= 2, qPrintable(QString::number(paused)));
            m_output->resume();
        }

        QTRY_COMPARE_WITH_TIMEOUT(m_ends.load(), 1, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(framesHeard(), supply.end.load(), Patience);
    }

    void theEndIsToldWhenTheLastFrameWasHeard()
    {
        begin();
        NumberedFrames supply(0.7);

        m_output->start(supply);
        QVERIFY(!m_output->isFinished());
        QTRY_COMPARE_WITH_TIMEOUT(m_ends.load(), 1, Patience);

        QVERIFY(m_output->isFinished());
        QCOMPARE(m_output->seconds(), 0.7);
        m_output->stop();
        QVERIFY(!m_output->isFinished());
    }

    void soundThatIsShorterThanAnyBufferIsHeard()
    {
        begin();
        NumberedFrames supply(0.01);

        m_output->start(supply);
        QTRY_COMPARE_WITH_TIMEOUT(m_ends.load(), 1, Patience);

        QTRY_COMPARE_WITH_TIMEOUT(framesHeard(), supply.end.load(), Patience);
    }

    void aPausedSoundHasNoEnd()
    {
        begin();
        NumberedFrames supply(0.15);
        m_output->start(supply);
        m_output->pause();
        QTRY_VERIFY_WITH_TIMEOUT(supply.isAtEnd(), Patience);
        QTRY_VERIFY_WITH_TIMEOUT(m_speaker->isSilentFor(0.5), Patience);
        QCOMPARE(m_ends.load(), 0);

        m_output->resume();

        QTRY_COMPARE_WITH_TIMEOUT(m_ends.load(), 1, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(framesHeard(), supply.end.load(), Patience);
    }

    // A rate that is changed near the end gives such a supply.
    void aSupplyThatHasMoreAfterItsEndGoesOn()
    {
        begin();
        NumberedFrames supply(0.5);
        m_output->start(supply);
        QTRY_VERIFY_WITH_TIMEOUT(supply.isAtEnd(), Patience);

        supply.end += 22050;
        m_output->moreIsThere();

        QTRY_VERIFY_WITH_TIMEOUT(m_output->isFinished(), Patience);
        QTRY_COMPARE_WITH_TIMEOUT(framesHeard(), supply.end.load(), Patience);
    }

    void aSupplyThatHasTooLittleGoesOnWhenItHasMore()
    {
        begin();
        NumberedFrames supply(1);
        supply.isHeldBack = true;
        m_output->start(supply);
        QTRY_VERIFY_WITH_TIMEOUT(m_speaker->isSilentFor(0.3), Patience);
        QCOMPARE(m_output->seconds(), 0.0);

        supply.isHeldBack = false;
        m_output->moreIsThere();

        QTRY_COMPARE_WITH_TIMEOUT(m_ends.load(), 1, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(framesHeard(), supply.end.load(), Patience);
    }

    void afterTheStopNothingIsTakenAnyMore()
    {
        begin();
        NumberedFrames supply(60);
        m_output->start(supply);
        QTRY_VERIFY_WITH_TIMEOUT(m_speaker->hearsSound(), Patience);

        m_output->stop();

        const auto next = supply.next.load();
        QTRY_VERIFY_WITH_TIMEOUT(m_speaker->isSilentFor(0.5), Patience);
        QCOMPARE(supply.next.load(), next);
        QCOMPARE(m_output->seconds(), 0.0);
        QCOMPARE(m_ends.load(), 0);
    }

    void aServerThatDiesIsAskedAgainFromTheFrameThatWasHeard()
    {
        begin();
        NumberedFrames supply(3);
        m_output->start(supply);
        QTRY_VERIFY_WITH_TIMEOUT(m_output->seconds() > 1, Patience);

        m_server->kill();
        QTRY_VERIFY_WITH_TIMEOUT(supply.first > 0, Patience);
        const double place = m_output->seconds();
        listen();
        m_output->resume();

        QTRY_COMPARE_WITH_TIMEOUT(m_ends.load(), 1, Patience);
        QVERIFY(place > 1);
        QTRY_COMPARE_WITH_TIMEOUT(framesHeard(supply.first), supply.end.load(), Patience);
    }

private:
    void begin()
    {
        m_ends = 0;
        m_server = std::make_unique<PrivateSoundServer>();
        listen();
        m_output = std::make_unique<PulseOutput>([this] { ++m_ends; });
        QVERIFY(m_output->prepare());
    }

    void listen()
    {
        m_speaker.reset();
        QVERIFY(m_server->start());
        m_speaker = std::make_unique<SpeakerRecording>();
        QVERIFY(m_speaker->start());
    }

    void finish() override
    {
        m_output.reset();
        m_speaker.reset();
        m_server.reset();
    }

    // What comes behind the last frame that was heard, or -1 when not all up to it were in order.
    // Silence between them is none of them.
    std::int64_t framesHeard(std::int64_t next = 0)
    {
        for (const float sample : m_speaker->all()) {
            if (sample < 0.05F)
                continue;
            const std::int64_t number = NumberedFrames::frameOf(sample);
            const std::int64_t expected = next % NumberedFrames::Round;
            const std::int64_t off = std::abs(number - expected);
            if (std::min(off, NumberedFrames::Round - off) > 2)
                return -1;
            ++next;
        }
        return next;
    }

    std::atomic<int> m_ends = 0;
    std::unique_ptr<PrivateSoundServer> m_server;
    std::unique_ptr<SpeakerRecording> m_speaker;
    std::unique_ptr<PulseOutput> m_output;
};

QTEST_GUILESS_MAIN(PulseOutputTest)
#include "PulseOutputTest.moc"
