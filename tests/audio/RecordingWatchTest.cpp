#include "audio/RecordingWatch.h"

#include "audio/StageCase.h"
#include "audio/engine/PcmFormat.h"
#include "audio/engine/Reserve.h"
#include "audio/engine/TakeWriter.h"
#include "platform/Texts.h"
#include "support/TestSound.h"
#include "widgets/Colours.h"

#include <optional>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

using tarvelo::audio::RecordingWatch;
using tarvelo::engine::Reserve;

namespace {

constexpr qint64 Minute = 60 * RecordingWatch::BytesASecond;

const QString NothingHeard = u"Nothing is heard. Is the microphone on?"_s;

QString little(int minutes)
{
    return u"Room left on the disk: %1 min"_s.arg(minutes);
}

QString hardlyAny(int minutes)
{
    return u"The disk is almost full. Minutes left: %1"_s.arg(minutes);
}

} // namespace

class RecordingWatchTest final : public tarvelo::tests::StageCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tarvelo::platform::installTexts(); }

    void aLineIsHiddenWhileNothingIsWrong()
    {
        open();
        QCOMPARE(line(), QString());
        m_stage->start();
        hearFor(60);

        QCOMPARE(line(), QString());
        QVERIFY(m_stage->window.lblRecordingWarning.isHidden());
    }

    // -- Room

    void lessThanHalfAnHourOfRoomIsSaidWhenTheWindowOpens()
    {
        m_room = 30 * Minute - 1;

        record();

        QCOMPARE(line(), little(29));
        QCOMPARE(takeSaid(), little(29));
    }

    void onlyWhatIsUrgentHasTheColourOfWarnings()
    {
        m_room = 20 * Minute;
        record();
        QCOMPARE(colour(), tarvelo::widgets::colours().ink);

        m_room = 4 * Minute;
        hearFor(5);
        QCOMPARE(colour(), tarvelo::widgets::colours().warning);

        m_room = 20 * Minute;
        hearFor(5);
        QCOMPARE(line(), little(20));
        QCOMPARE(colour(), tarvelo::widgets::colours().ink);
        beQuietFor(10);
        QVERIFY(line().endsWith(NothingHeard));
        QCOMPARE(colour(), tarvelo::widgets::colours().warning);
    }

    void halfAnHourOfRoomIsEnough()
    {
        m_room = 30 * Minute;

        record();

        QCOMPARE(line(), QString());
    }

    void theMinutesGoDownInTheLineAndAreSaidOnce()
    {
        m_room = 20 * Minute;
        record();
        takeSaid();

        m_room = 18 * Minute;
        hearFor(5);

        QCOMPARE(line(), little(18));
        QCOMPARE(takeSaid(), QString());
    }

    void lessThanFiveMinutesAreSaidAgainAndEachOfThem()
    {
        m_room = 5 * Minute;
        record();
        QCOMPARE(line(), little(5));
        for (int left = 4; left >= 0; --left) {
            m_room = (left + 1) * Minute - 1;
            hearFor(5);
            QCOMPARE(line(), hardlyAny(left));
            QCOMPARE(takeSaid(), hardlyAny(left));
        }

        hearFor(5);

        QCOMPARE(takeSaid(), QString());
    }

    void theDiskIsLookedAtEveryFiveSeconds()
    {
        record();
        const int looks = m_looks;

        hearFor(60);

        QCOMPARE(m_looks, looks + 12);
        QCOMPARE(m_folder, QFileInfo(m_stage->takePath()).path());
    }

    void theLineGoesWhenThereIsRoomAgain()
    {
        m_room = 3 * Minute;
        record();
        m_room = 6 * Minute;
        hearFor(5);
        QCOMPARE(line(), little(6));

        m_room = 31 * Minute;
        hearFor(5);

        QCOMPARE(line(), QString());
    }

    void roomThatComesAndGoesByALittleDoesNotMakeTheLineFlicker()
    {
        m_room = 30 * Minute - 1;
        record();

        m_room = 30 * Minute + 1;
        hearFor(5);
        QCOMPARE(line(), little(30));
        m_room = 4 * Minute;
        hearFor(5);
        m_room = 5 * Minute + 1;
        hearFor(5);

        QCOMPARE(line(), hardlyAny(5));
    }

    void aDiskThatTellsNothingIsNotWarnedOf()
    {
        m_room.reset();

        record();
        hearFor(60);

        QCOMPARE(line(), QString());
    }

    void aSecondOfATakeNeedsAtMostWhatIsCounted()
    {
        const QByteArray path = QFile::encodeName(m_stage->takePath());
        const auto take = tarvelo::engine::TakeWriter::create(path.toStdString(), {44100, 1}, {});

        take->write(tarvelo::tests::tune(44100, 20));

        const double needed = double(QFileInfo(m_stage->takePath()).size()) / take->secondsInFile();
        QVERIFY(needed < RecordingWatch::BytesASecond && needed > RecordingWatch::BytesASecond / 2);
    }

    void theRoomThatATakeHoldsForItsEndDoesNotCountBeforeEither()
    {
        m_room = 25 * Minute;
        open();
        const int before = 25 - int(Reserve::MostBytes / Minute) - 1;
        QCOMPARE(line(), little(before));

        m_stage->start();
        m_room = 25 * Minute - Reserve::MostBytes;
        hearFor(5);

        QCOMPARE(line(), little(before));
    }

    // -- Silence

    void tenSecondsOfQuietAreSaid()
    {
        open();
        m_stage->start();

        beQuietFor(9);
        QCOMPARE(line(), QString());
        beQuietFor(1);

        QCOMPARE(line(), NothingHeard);
        QCOMPARE(takeSaid(), NothingHeard);
    }

    void soundTakesTheLineBack()
    {
        open();
        m_stage->start();
        beQuietFor(30);
        QCOMPARE(takeSaid(), NothingHeard);

        hearFor(1);

        QCOMPARE(line(), QString());
        QCOMPARE(takeSaid(), u"Sound is heard again"_s);
    }

    void quietAfterSoundIsCountedFromItsLastMoment()
    {
        open();
        m_stage->start();
        hearFor(100);

        beQuietFor(9);
        QCOMPARE(line(), QString());
        beQuietFor(1);

        QCOMPARE(line(), NothingHeard);
    }

    void soundNowAndThenIsNoSilence()
    {
        open();
        m_stage->start();

        for (int time = 0; time < 5; ++time) {
            beQuietFor(9);
            hearFor(1);
        }

        QCOMPARE(line(), QString());
    }

    void whereNoSoundArrivesAtAllTheSameIsSaid()
    {
        open();
        m_stage->start();
        hearFor(5);

        pass(9s);
        QCOMPARE(line(), QString());
        pass(1s);
        QCOMPARE(line(), NothingHeard);

        // A microphone that is back and gives nothing to hear is no reason to take it back.
        beQuietFor(1);
        QCOMPARE(line(), NothingHeard);
        hearFor(1);
        QCOMPARE(line(), QString());
    }

    void quietAndNothingAtAllCountTogether()
    {
        open();
        m_stage->start();

        beQuietFor(6);
        pass(4s);

        QCOMPARE(line(), NothingHeard);
    }

    void aTakeThatNothingRecordsIsSaidToo()
    {
        m_engine->makesRecorders = false;
        open();
        m_stage->start();
        QVERIFY(!m_stage->control.hasRecorder());

        pass(11s);

        QCOMPARE(line(), NothingHeard);
    }

    void beforeTheStartAndAfterTheStopNothingNeedsToBeHeard()
    {
        open();
        pass(60s);
        QCOMPARE(line(), QString());
        m_stage->start();
        beQuietFor(10);

        m_stage->pressStop();
        pass(1s);

        QCOMPARE(line(), QString());
        QVERIFY(!takeSaid().contains(u"heard again"));
    }

    void aPauseTakesTheLineBackAndTheResumeBeginsAnew()
    {
        open();
        m_stage->start();
        beQuietFor(10);
        m_stage->pressPauseResume();
        pass(60s);
        QCOMPARE(line(), QString());

        m_stage->pressPauseResume();
        beQuietFor(9);
        QCOMPARE(line(), QString());
        beQuietFor(2);

        QCOMPARE(line(), NothingHeard);
    }

    void aPauseOfAMomentBeginsAnewToo()
    {
        m_engine->makesRecorders = false;
        open();
        m_stage->start();
        pass(9s);

        m_stage->pressPauseResume();
        m_stage->pressPauseResume();
        pass(10s);
        QCOMPARE(line(), QString());
        pass(1s);

        QCOMPARE(line(), NothingHeard);
    }

    void theNextTakeBeginsAnew()
    {
        open();
        m_stage->start();
        beQuietFor(12);
        m_stage->pressStop();
        m_engine->soundHeard = {};

        m_stage->start();
        beQuietFor(9);

        QCOMPARE(line(), QString());
    }

    void aComputerThatWasAsleepHeardNothingMeanwhile()
    {
        open();
        m_stage->start();
        hearFor(5);

        m_stage->clock.set(m_stage->clock.now().addSecs(3600));
        pass(9s);

        QCOMPARE(line(), QString());
    }

    // -- Both

    void silenceAndADiskThatFillsUpHaveALineEach()
    {
        m_room = 20 * Minute;
        open();
        m_stage->start();
        beQuietFor(10);
        QCOMPARE(line(), little(20) + u'\n' + NothingHeard);

        m_room = 4 * Minute;
        beQuietFor(5);
        QCOMPARE(line(), hardlyAny(4) + u'\n' + NothingHeard);

        m_room = 1000 * Minute;
        beQuietFor(5);
        QCOMPARE(line(), NothingHeard);
        hearFor(1);
        QCOMPARE(line(), QString());
    }

    void aWindowThatIsGoneIsNotWatched()
    {
        m_room = 3 * Minute;
        record();
        m_stage->window.window.hide();
        QCOMPARE(line(), QString());
        const int looks = m_looks;
        pass(60s);
        QCOMPARE(m_looks, looks);

        m_stage->window.window.show();

        QCOMPARE(line(), hardlyAny(3));
    }

    void theLevelIndicatorStaysAsItIs()
    {
        open();
        m_stage->start();
        hearFor(5);

        QCOMPARE(m_stage->window.audioLevelMeter.floatValue(), 0.0F);
    }

private:
    void prepare() override
    {
        m_room = 1000 * Minute;
        m_looks = 0;
        StageCase::prepare();
        m_stage->window.window.hide();
        m_watch = std::make_unique<RecordingWatch>(
            m_stage->clock, m_stage->control, m_stage->window.outlets(),
            [this] { return m_stage->takePath(); },
            [this](const QString &folder) {
                m_folder = folder;
                ++m_looks;
                return m_room;
            });
    }
    void finish() override
    {
        m_watch.reset();
        StageCase::finish();
    }

    // With a take that runs.
    void record()
    {
        m_stage->start();
        open();
    }
    void open() { m_stage->window.window.show(); }
    void pass(std::chrono::seconds time) { m_stage->clock.advance(time); }
    void beQuietFor(int seconds)
    {
        for (int second = 0; second < seconds; ++second) {
            m_engine->soundHeard.arrived += 1;
            pass(1s);
        }
    }
    void hearFor(int seconds)
    {
        for (int second = 0; second < seconds; ++second) {
            m_engine->soundHeard.arrived += 1;
            m_engine->soundHeard.lastHeard = m_engine->soundHeard.arrived;
            pass(1s);
        }
    }

    // What stands there to be read.
    QString line() const
    {
        const QLabel &label = m_stage->window.lblRecordingWarning;
        return label.isHidden() ? QString() : label.text();
    }
    QColor colour() const
    {
        return m_stage->window.lblRecordingWarning.palette().color(QPalette::WindowText);
    }
    // What was said to who cannot see it since this was last asked.
    QString takeSaid() const
    {
        QString said;
        for (QWidget *window : QApplication::topLevelWidgets())
            if (auto *announcement = window->findChild<QWidget *>(u"announcement"_s)) {
                said = announcement->accessibleName();
                announcement->setAccessibleName({});
            }
        return said;
    }

    std::optional<qint64> m_room;
    QString m_folder;
    int m_looks = 0;
    std::unique_ptr<RecordingWatch> m_watch;
};

QTEST_MAIN(RecordingWatchTest)
#include "RecordingWatchTest.moc"
