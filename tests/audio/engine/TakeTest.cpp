#include "audio/engine/Take.h"
#include "audio/engine/RecorderSettings.h"
#include "support/DecodedAudio.h"
#include "support/FolderCase.h"
#include "support/SmallFiles.h"
#include "support/TestSound.h"

using namespace tarvelo::engine;
using namespace tarvelo::tests;

constexpr PcmFormat Mono{44100, 1};

class TakeTest final : public FolderCase
{
    Q_OBJECT

private Q_SLOTS:
    // All of the ring at once is what a disk that stands still for as long makes of it.
    void aDiskThatStandsStillForTenSecondsLosesNothing()
    {
        const auto sound = tune(44100, 10);
        const auto take = Take::start(path(), Mono, {});

        take->put(sound);
        QCOMPARE(take->seconds(), 10.0);
        QVERIFY(take->finish());

        const auto heard = DecodedAudio::read(name());
        QVERIFY(std::abs(heard->seconds() - 10) < 0.025);
        QVERIFY(correlation(sound, heard->channel(0)) > 0.98);
    }

    void soundIsCountedAtOnce()
    {
        const auto take = Take::start(path(), Mono, {});
        QCOMPARE(take->seconds(), 0.0);

        take->put(std::vector<float>(441));
        QCOMPARE(take->seconds(), 0.01);
        take->breakOff();
        QCOMPARE(take->seconds(), 0.01);
        take->put(std::vector<float>(441));

        QCOMPARE(take->seconds(), 0.02);
    }

    void soundGetsIntoTheFileWhileTheTakeGoesOn()
    {
        const auto take = Take::start(path(), Mono, {});

        take->put(tune(44100, 3));

        const auto playing = [this] {
            const auto heard = DecodedAudio::read(name());
            return heard ? heard->seconds() : 0;
        };
        QTRY_VERIFY_WITH_TIMEOUT(playing() > 2.3, 60000);
    }

    void manyBreaksLeaveTheLengthAsItIs()
    {
        const auto sound = tone(44100, 0.2, 2000);
        const auto take = Take::start(path(), Mono, {});

        for (int part = 0; part < 40; ++part) {
            take->put(sound);
            take->breakOff();
        }
        QVERIFY(take->finish());

        const auto heard = DecodedAudio::read(name());
        QVERIFY(std::abs(heard->seconds() - take->seconds()) < 0.05);
        QVERIFY(std::abs(MovieFacts::read(name())->seconds - take->seconds()) < 0.05);
        const auto sounding = heard->channel(0);
        const auto inside = std::span(sounding).subspan(2205, 44100 * 8 - 4410);
        QVERIFY(longestDisturbance(inside, 44100, 2000) < 0.005);
    }

    void onAFullDiskOnlyWhatIsSafeCounts()
    {
        const auto take = Take::start(path(), Mono, {});
        const SmallFiles disk(30000);

        take->put(tune(44100, 12));
        QTRY_VERIFY_WITH_TIMEOUT(take->seconds() < 6, 60000);
        QVERIFY(!take->finish());

        QVERIFY(std::abs(DecodedAudio::read(name())->seconds() - take->seconds()) < 0.05);
    }

    void whereNothingCanBeWrittenThereIsNoTake()
    {
        QVERIFY(!Take::start(path() + "/missing", Mono, {}));
    }

private:
    QString name() const { return m_folder->filePath(QStringLiteral("take.m4a")); }
    std::string path() const { return name().toStdString(); }
};

QTEST_GUILESS_MAIN(TakeTest)
#include "TakeTest.moc"
