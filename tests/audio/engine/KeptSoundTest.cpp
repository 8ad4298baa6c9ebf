#include "audio/engine/KeptSound.h"
#include "support/TestCase.h"

#include <vector>

using tarvelo::engine::KeptSound;
using tarvelo::tests::TestCase;

using Samples = std::vector<float>;

namespace {

Samples takeAll(KeptSound &sound, std::int64_t keptBack = 0)
{
    Samples samples(1000);
    samples.resize(2 * sound.take(samples, keptBack));
    return samples;
}

} // namespace

class KeptSoundTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsAddedIsTakenInOrder()
    {
        KeptSound sound(2, 0);
        sound.append(Samples{1, 2, 3, 4});
        sound.append(Samples{5, 6});

        QCOMPARE(sound.frames(), 3);
        QCOMPARE(takeAll(sound), (Samples{1, 2, 3, 4, 5, 6}));

        QVERIFY(sound.isEmpty());
        QCOMPARE(sound.begin(), 3);
        QCOMPARE(sound.end(), 3);
    }

    void theLastFramesAreKeptBackWhenThatIsAskedFor()
    {
        KeptSound sound(2, 0);
        sound.append(Samples{1, 2, 3, 4, 5, 6});

        QCOMPARE(takeAll(sound, 2), (Samples{1, 2}));
        QCOMPARE(takeAll(sound, 2), Samples());
        QCOMPARE(takeAll(sound, 5), Samples());
        QCOMPARE(sound.frames(), 2);
    }

    void framesCountOnOverWhatWasTaken()
    {
        KeptSound sound(2, 0);
        sound.append(Samples(20));
        Samples portion(6);

        QCOMPARE(sound.take(portion, 0), 3U);

        QCOMPARE(sound.begin(), 3);
        QCOMPARE(sound.end(), 10);
        sound.clear();
        QCOMPARE(sound.begin(), 0);
        QVERIFY(sound.isEmpty());
    }

    void whatReplacesComesUpWhileTheOldSoundGoes()
    {
        KeptSound sound(2, 3);
        sound.append(Samples(20, 1));
        Samples taken(4);
        sound.take(taken, 0);

        Samples silence(12, 0);
        sound.replaceFrom(5, silence);

        QCOMPARE(sound.end(), 11);
        QCOMPARE(takeAll(sound), (Samples{1, 1, 1, 1, 1, 1, 0.75F, 0.75F, 0.5F, 0.5F, 0.25F, 0.25F,
                                          0, 0, 0, 0, 0, 0}));
    }

    void whatReplacesTheVeryEndComesUpFromSilence()
    {
        KeptSound sound(1, 3);
        sound.append(Samples{1});

        Samples tone(5, 1);
        sound.replaceFrom(1, tone);

        Samples all(6);
        QCOMPARE(sound.take(all, 0), 6U);
        QCOMPARE(all, (Samples{1, 0.25F, 0.5F, 0.75F, 1, 1}));
    }

    void whatIsShorterThanTheFadeIsFadedAsFarAsItGoes()
    {
        KeptSound sound(1, 3);
        sound.append(Samples(10, 1));

        Samples brief(1, 0);
        sound.replaceFrom(2, brief);

        QCOMPARE(sound.end(), 3);
    }
};

QTEST_GUILESS_MAIN(KeptSoundTest)
#include "KeptSoundTest.moc"
