#include "audio/engine/OnsetKeeper.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

#include <algorithm>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

namespace {

constexpr PcmFormat Mono{44100, 1};

// A second of silence, and one of a tone.
std::vector<float> sudden()
{
    auto sound = tone(44100, 2, 440);
    std::fill_n(sound.begin(), 44100, 0.0F);
    return sound;
}

float loudest(std::span<const float> sound)
{
    const auto [low, high] = std::ranges::minmax(sound);
    return std::max(-low, high);
}

} // namespace

class OnsetKeeperTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsAsLoudAsTheOriginalStaysAsItIs()
    {
        const auto original = tune(44100, 2);
        auto stretched = original;
        OnsetKeeper keeper(Mono, 1, 0);

        keeper.follow(original);
        keeper.shape(stretched);

        QVERIFY(stretched == original);
    }

    void soundThatComesInOddPiecesIsFollowedAsInOne()
    {
        auto atOnce = tone(44100, 10, 440);
        auto inPieces = atOnce;
        const auto original = sudden();
        OnsetKeeper one(Mono, 0.2, 0);
        OnsetKeeper other(Mono, 0.2, 0);

        one.follow(original);
        for (std::size_t at = 0; at < original.size(); at += 77)
            other.follow(
                std::span(original).subspan(at, std::min<std::size_t>(77, original.size() - at)));
        one.shape(atOnce);
        other.shape(inPieces);

        QVERIFY(atOnce == inPieces);
    }

    void whatTheOriginalHasNoSoundForIsSilent()
    {
        auto stretched = tone(44100, 1, 440);
        OnsetKeeper keeper(Mono, 1, 0);

        keeper.shape(stretched);

        QCOMPARE(loudest(std::span(stretched).last(22050)), 0.0F);
    }

    void whatIsHeardBeforeItHappensIsTakenOut()
    {
        constexpr double Rate = 0.2;
        auto smeared = tone(44100, 10, 440);
        OnsetKeeper keeper(Mono, Rate, 0);

        keeper.follow(sudden());
        keeper.shape(smeared);

        const std::span sound(smeared);
        constexpr std::size_t Onset = 5 * 44100;
        QCOMPARE(loudest(sound.first(Onset - 441 * 2).last(44100)), 0.0F);
        QVERIFY(loudest(sound.subspan(Onset, 441)) > 0.95F);
        QVERIFY(
            std::ranges::equal(sound.subspan(Onset + 441),
                               std::span<const float>(tone(44100, 10, 440)).subspan(Onset + 441)));
    }

    void nothingIsCutWithAStep()
    {
        auto smeared = std::vector<float>(2 * 44100, 0.5F);
        OnsetKeeper keeper(Mono, 1, 0);

        keeper.follow(sudden());
        keeper.shape(smeared);

        for (std::size_t at = 1; at < smeared.size(); ++at)
            QVERIFY(std::abs(smeared[at] - smeared[at - 1]) < 0.01F);
    }

    void aVoiceOfTheLowestPitchIsNotChopped()
    {
        std::vector<float> original(44100);
        for (std::size_t at = 0; at < original.size(); at += 500) // 88 hertz
            original[at] = 0.5F;
        std::vector<float> stretched(4 * 44100, 0.5F);
        OnsetKeeper keeper(Mono, 0.25, 0);

        keeper.follow(original);
        keeper.shape(stretched);

        QCOMPARE(std::ranges::min(std::span(stretched).first(170000)), 0.5F);
    }

    void whatComesBeforeTheFirstFrameOnlyShowsWhatFollows()
    {
        auto smeared = tone(44100, 0.5, 440);
        const auto wanted = smeared;
        OnsetKeeper keeper(Mono, 1, 44100 + 441);

        keeper.follow(sudden());
        keeper.shape(smeared);

        QVERIFY(smeared == wanted);
    }

    void bothChannelsAreTreatedAlike()
    {
        std::vector<float> original(2 * 44100);
        for (std::size_t at = 44100; at < original.size(); at += 2)
            original[at] = 0.5F; // on the left, in the second half of the second
        std::vector<float> smeared(2 * 44100, 0.5F);
        OnsetKeeper keeper({44100, 2}, 1, 0);

        keeper.follow(original);
        keeper.shape(smeared);

        for (std::size_t at = 0; at < smeared.size(); at += 2)
            QCOMPARE(smeared[at], smeared[at + 1]);
        QCOMPARE(smeared[20000], 0.0F);
        QCOMPARE(smeared[60000], 0.5F);
    }
};

QTEST_GUILESS_MAIN(OnsetKeeperTest)
#include "OnsetKeeperTest.moc"
