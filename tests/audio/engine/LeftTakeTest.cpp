#include "audio/engine/LeftTake.h"

#include "audio/engine/BadPlace.h"
#include "audio/engine/Recordings.h"
#include "audio/engine/TakeCase.h"
#include "support/DecodedAudio.h"
#include "support/TestSound.h"

#include <QDir>

#include <atomic>
#include <cmath>
#include <thread>

using namespace Qt::StringLiterals;
using namespace tarvelo::engine;
using namespace tarvelo::tests;

class LeftTakeTest final : public TakeCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTakeInFragmentsBecomesAnIndexedOneThatSoundsTheSame()
    {
        write(recordingOf(tune(44100, 4), Ending::CutOff));
        QVERIFY(MovieFacts::read(path())->isFragmented);
        const auto before = DecodedAudio::read(path());

        QVERIFY(finishLeftTake(path()));

        const auto after = DecodedAudio::read(path());
        QVERIFY(!MovieFacts::read(path())->isFragmented);
        QVERIFY(before->samples == after->samples);
        QVERIFY(std::abs(MovieFacts::read(path())->seconds - before->seconds()) < 0.025);
    }

    void itsLengthIsKnownBeforeAndAfter()
    {
        write(recordingOf(tune(44100, 4), Ending::CutOff));
        const double seconds = secondsOfLeftTake(path());
        QVERIFY(seconds > 3 && seconds <= 4.05);

        QVERIFY(finishLeftTake(path()));

        QVERIFY(std::abs(secondsOfLeftTake(path()) - seconds) < 0.03);
    }

    void theLengthOfALongTakeIsThatOfAllOfIt()
    {
        write(recordingOf(tune(44100, 25), Ending::CutOff));
        const double seconds = secondsOfLeftTake(path());
        QVERIFY(seconds > 24 && seconds <= 25.05);

        QVERIFY(finishLeftTake(path()));

        QVERIFY(std::abs(secondsOfLeftTake(path()) - seconds) < 0.03);
    }

    // Wherever the last bytes were cut off, what stands before that is kept.
    void whatWasCutOffIsKeptAsFarAsItIsWhole()
    {
        const QByteArray take = recordingOf(tune(44100, 4), Ending::CutOff);
        for (const qsizetype size :
             {take.size() - 1, take.size() - 100, take.size() * 3 / 4, take.size() / 2}) {
            write(take.left(size));
            const double seconds = secondsOfLeftTake(path());
            const double share = static_cast<double>(size) / static_cast<double>(take.size());
            QVERIFY(seconds > 4 * share - 1.2);

            QVERIFY(finishLeftTake(path()));

            QVERIFY(DecodedAudio::read(path())->seconds() > seconds - 0.05);
            QVERIFY(!MovieFacts::read(path())->isFragmented);
        }
    }

    void aFinishedTakeIsLeftAsItIs()
    {
        const QByteArray take = recordingOf(tune(44100, 2));
        write(take);

        QVERIFY(finishLeftTake(path()));

        QCOMPARE(content(), take);
    }

    void whatIsNoTakeIsLeftAsItIs_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("a shopping list");
        QTest::newRow("zeros") << QByteArray(100'000, '\0');
        QTest::newRow("only a head") << recordingOf(tune(44100, 2), Ending::CutOff).left(28);
    }
    void whatIsNoTakeIsLeftAsItIs()
    {
        QFETCH(QByteArray, bytes);
        write(bytes);

        QCOMPARE(secondsOfLeftTake(path()), 0.0);
        finishLeftTake(path());

        QCOMPARE(content(), bytes);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }

    void aFileThatIsMissingIsNone()
    {
        QCOMPARE(secondsOfLeftTake(path()), 0.0);
        QVERIFY(!finishLeftTake(path()));
        QVERIFY(!QFile::exists(path()));
    }

    void whereNoCopyCanBeMadeTheTakeStays()
    {
        const QByteArray take = recordingOf(tune(44100, 2), Ending::CutOff);
        write(take);
        QVERIFY(QDir(m_folder->path()).mkdir(u".take.m4a.indexed"_s));

        QVERIFY(!finishLeftTake(path()));

        QCOMPARE(content(), take);
    }

    // A disk that wears out, once or for good.
    void aTakeThatCannotBeReadToItsEndStays_data()
    {
        QTest::addColumn<int>("times");
        QTest::newRow("once") << 1;
        QTest::newRow("always") << BadPlace::Always;
    }
    void aTakeThatCannotBeReadToItsEndStays()
    {
        QFETCH(int, times);
        const QByteArray take = recordingOf(tune(44100, 4), Ending::CutOff);
        for (const qsizetype place : {take.size() / 5, take.size() / 2, take.size() - 3000}) {
            write(take);
            const bool isFinished = [&] {
                const BadPlace bad(place, EIO, times);
                return finishLeftTake(path());
            }();

            QVERIFY(isFinished || content() == take);
            QVERIFY(DecodedAudio::read(path())->seconds() > 3.5);
            QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
        }
    }

    void aSignalThatBreaksOffReadingCostsNothing()
    {
        const QByteArray take = recordingOf(tune(44100, 4), Ending::CutOff);
        write(take);
        const double seconds = secondsOfLeftTake(path());
        {
            const BadPlace bad(take.size() / 2, EINTR, 3);
            QCOMPARE(secondsOfLeftTake(path()), seconds);
            QVERIFY(finishLeftTake(path()));
        }

        QVERIFY(!MovieFacts::read(path())->isFragmented);
        QVERIFY(std::abs(secondsOfLeftTake(path()) - seconds) < 0.03);
    }

    // Another program empties the file, or records into it, meanwhile.
    void aTakeThatChangesWhileItIsReadDoesNoHarm()
    {
        const QByteArray take = recordingOf(tune(44100, 4), Ending::CutOff);
        write(take);
        std::atomic<bool> isEnough = false;
        std::thread changes([&] {
            while (!isEnough) {
                QFile::resize(path(), 5000);
                std::this_thread::yield();
                write(take);
                std::this_thread::yield();
            }
        });

        bool isAlright = true;
        for (int time = 0; time < 300; ++time)
            isAlright = isAlright && secondsOfLeftTake(path()) < 5;
        isEnough = true;
        changes.join();

        QVERIFY(isAlright);
    }

private:
    void write(const QByteArray &bytes) const { QVERIFY(writeContent(path(), bytes)); }
};

QTEST_GUILESS_MAIN(LeftTakeTest)
#include "LeftTakeTest.moc"
