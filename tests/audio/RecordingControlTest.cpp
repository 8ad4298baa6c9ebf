#include "audio/StageCase.h"

using namespace std::chrono_literals;

using tarvelo::tests::inOrder;
using tarvelo::tests::lookOf;

namespace {

const auto LookOfRunning = QStringLiteral("stopRed/stopRedH/Stop");
const auto LookOfPause = QStringLiteral("BtnPause/BtnPauseH/Pause");
const auto LookOfResume = QStringLiteral("record/recordH/Resume");
const auto LookOfPlay = QStringLiteral("play/playH/Play");

} // namespace

// One take from the press of the start button on, with a recorder that only notes what it is asked.
class RecordingControlTest final : public tarvelo::tests::StageCase
{
    Q_OBJECT

private Q_SLOTS:
    void beforeTheFirstTakeThereIsNothing()
    {
        QVERIFY(!control().recording());
        QVERIFY(!control().hasRecorder());
        QVERIFY(!control().bIsRecordingSaved());
        QVERIFY(!control().bIsRecordingNeedPreventingQuit());
        QCOMPARE(control().floatRecordingDuration(), 0.0);
        QCOMPARE(control().durationPause(), 0);
    }

    void theSettingsAreTheSameForEveryFormat_data()
    {
        QTest::addColumn<int>("format");
        QTest::newRow("aac") << 0;
        QTest::newRow("m4a") << 1;
    }
    void theSettingsAreTheSameForEveryFormat()
    {
        QFETCH(int, format);
        m_stage->defaults.setValue(QStringLiteral("fileFormat"), format);
        m_stage->locations.setTempAudioSavePathWithFormat();

        m_stage->start();

        const QVariantMap &settings = m_engine->settings;
        QCOMPARE(settings.size(), 5);
        QCOMPARE(settings.value(QStringLiteral("AVSampleRateKey")), QVariant(44100.0F));
        QCOMPARE(settings.value(QStringLiteral("AVNumberOfChannelsKey")), QVariant(2));
        QCOMPARE(settings.value(QStringLiteral("AVEncoderBitRateKey")), QVariant(80000));
        QCOMPARE(settings.value(QStringLiteral("AVFormatIDKey")), QVariant(1633772320));
        QCOMPARE(settings.value(QStringLiteral("AVEncoderAudioQualityKey")), QVariant(0));
        QCOMPARE(m_engine->recorderPath, m_stage->takePath());
    }

    void aTakeStartsOnANewRecorder()
    {
        m_stage->start();

        QCOMPARE(m_engine->asked,
                 inOrder({"makeRecorder", "recorder setDelegate", "recorder prepareToRecord",
                          "recorder record", "recorder updateMeters", "recorder metering on"}));
        QCOMPARE(m_engine->recorderDelegate, &control());
        QVERIFY(control().recording());
    }

    void aTakeStartsWithTheControlsOfARecording()
    {
        m_stage->window.btnStopRecord.setEnabled(false);
        m_stage->window.btnPauseResumeRecording.setEnabled(false);

        m_stage->start();

        QCOMPARE(lookOf(window().btnStopRecord), LookOfRunning);
        QCOMPARE(window().btnStopRecord.actionName(), QByteArray("stopRecording"));
        QVERIFY(window().btnStopRecord.isEnabled());
        QVERIFY(!window().btnStartRecord.isVisible());
        QVERIFY(window().btnPauseResumeRecording.isVisible());
        QVERIFY(window().btnPauseResumeRecording.isEnabled());
        QCOMPARE(window().btnPauseResumeRecording.state(), 0);
        QVERIFY(window().btnTimeTag.isVisible());
    }

    void theStarterNeedNotBeTheStartButton()
    {
        control().startRecording(nullptr);

        QVERIFY(control().recording());
        QVERIFY(window().btnStartRecord.isVisible());
    }

    void theLastTakeIsDeletedBeforeTheNextStarts()
    {
        m_stage->writeTake("an earlier take");

        m_stage->start();

        QVERIFY(!m_engine->fileWasThere);
    }

    void aRecordingDiscardsThePlayer()
    {
        m_stage->writeTake("an earlier take");
        m_stage->playback.playRecordTemp(nullptr);
        m_engine->takeAsked();

        m_stage->start();

        QCOMPARE(m_engine->asked.mid(0, 3),
                 inOrder({"player stop", "player gone", "makeRecorder"}));
        QVERIFY(!m_stage->playback.hasPlayer());
    }

    void withoutARecorderTheControlsChangeAndTheLabelStays()
    {
        m_engine->makesRecorders = false;
        startWithoutSound();

        QVERIFY(!control().hasRecorder());
    }

    void withARecorderThatCannotPrepareTheControlsChangeAndTheLabelStays()
    {
        m_engine->prepares = false;
        startWithoutSound();

        QVERIFY(!m_engine->asked.contains(QStringLiteral("recorder record")));
        QVERIFY(!control().hasRecorder());
    }

    void stoppingATakeWithoutARecorderLeavesTheFileAlone()
    {
        m_engine->prepares = false;
        m_stage->start();
        m_stage->writeTake("not ours");
        m_engine->takeAsked();

        m_stage->pressStop();
        m_stage->clock.advance(500ms);

        QCOMPARE(m_engine->asked, QStringList());
        QVERIFY(m_stage->takeIsThere());
        QCOMPARE(window().lblRecordingDuration.text(), QStringLiteral("00:00:00"));
        QCOMPARE(lookOf(window().btnStopRecord), LookOfPlay);
    }

    void pausingStopsTheRecorderForAWhile()
    {
        m_stage->start();
        window().audioLevelMeter.setFloatValue(0.5F);
        m_engine->takeAsked();

        m_stage->pressPauseResume();

        QCOMPARE(m_engine->asked, inOrder({"recorder pause"}));
        QCOMPARE(lookOf(window().btnPauseResumeRecording), LookOfResume);
        QCOMPARE(lookOf(window().btnStopRecord), QStringLiteral("stop/stopH/Stop"));
        QCOMPARE(window().audioLevelMeter.floatValue(), 0.0F);
        QVERIFY(!window().btnTimeTag.isVisible());
        QVERIFY(control().recording());
    }

    void resumingGoesOnIntoTheSameFile()
    {
        m_stage->start();
        m_stage->pressPauseResume();
        m_engine->takeAsked();

        m_stage->pressPauseResume();

        QCOMPARE(m_engine->asked, inOrder({"recorder record"}));
        QCOMPARE(lookOf(window().btnPauseResumeRecording), LookOfPause);
        QCOMPARE(lookOf(window().btnStopRecord), LookOfRunning);
        QVERIFY(window().btnTimeTag.isVisible());
    }

    void pausingWithoutARecorderChangesTheControls()
    {
        m_engine->makesRecorders = false;
        m_stage->start();

        m_stage->pressPauseResume();
        QCOMPARE(lookOf(window().btnPauseResumeRecording), LookOfResume);

        m_stage->pressPauseResume();
        QCOMPARE(lookOf(window().btnPauseResumeRecording), LookOfPause);
    }

    void everyResumeCutsTheTimePausedToWholeSeconds()
    {
        m_stage->start();

        pauseFor(2700ms);
        QCOMPARE(control().durationPause(), 2);

        pauseFor(2700ms);
        QCOMPARE(control().durationPause(), 4);

        pauseFor(999ms);
        QCOMPARE(control().durationPause(), 4);
    }

    void aNewTakeAndAStopForgetTheTimePaused()
    {
        m_stage->start();
        pauseFor(3s);
        m_stage->start();
        QCOMPARE(control().durationPause(), 0);

        pauseFor(3s);
        m_stage->pressStop();
        QCOMPARE(control().durationPause(), 0);
    }

    void thePausesAreForgottenOnRequest()
    {
        m_stage->start();
        pauseFor(3s);

        control().resetPauses();

        QCOMPARE(control().durationPause(), 0);
    }

    void stoppingEndsTheTake()
    {
        m_stage->start();
        m_engine->recordedSeconds = 65.9;
        m_engine->secondsAfterStop = 0;
        m_engine->takeAsked();

        m_stage->pressStop();

        QCOMPARE(m_engine->asked, inOrder({"recorder stop"}));
        QCOMPARE(control().floatRecordingDuration(), 65.9);
        QVERIFY(!control().recording());
        QVERIFY(control().bIsRecordingSaved());
        QVERIFY(control().hasRecorder());
    }

    void stoppingOffersTheTakeForListening()
    {
        m_stage->start();

        m_stage->pressStop();

        QCOMPARE(lookOf(window().btnStopRecord), LookOfPlay);
        QCOMPARE(window().btnStopRecord.actionName(), QByteArray("playRecordTemp"));
        QVERIFY(window().btnPauseResumeRecording.isHidden());
        QVERIFY(!window().btnPauseResumeRecording.isEnabled());
        QVERIFY(window().btnStartRecord.isHidden());
        QVERIFY(window().btnTimeTag.isHidden());
    }

    void theOfferedTakePlays()
    {
        m_stage->start();
        m_stage->pressStop();
        m_engine->takeAsked();

        m_stage->pressStop();

        QCOMPARE(m_engine->playerBytes, QByteArray("a take"));
        QCOMPARE(m_engine->asked, inOrder({"makePlayer", "player prepareToPlay", "player play"}));
        QCOMPARE(lookOf(window().btnStopRecord), QStringLiteral("pause/pauseH/Pause"));
    }

    void stoppingAPausedTakeSwitchesTheToggleOff()
    {
        m_stage->start();
        m_stage->pressPauseResume();

        m_stage->pressStop();

        QCOMPARE(window().btnPauseResumeRecording.state(), 0);
        m_stage->clock.advance(500ms);
        QCOMPARE(lookOf(window().btnPauseResumeRecording), LookOfPause);
    }

    void halfASecondAfterAStopTheLengthIsShownAndTheRecorderGoes()
    {
        m_stage->start();
        m_engine->recordedSeconds = 65.9;
        window().audioLevelMeter.setFloatValue(0.5F);
        m_stage->pressStop();

        m_stage->clock.advance(499ms);
        QVERIFY(control().hasRecorder());
        QCOMPARE(window().lblRecordingDuration.text(), QString());

        m_engine->takeAsked();
        m_stage->clock.advance(1ms);
        QCOMPARE(m_engine->asked, inOrder({"recorder stop", "recorder gone"}));
        QCOMPARE(window().lblRecordingDuration.text(), QStringLiteral("00:01:05"));
        QCOMPARE(lookOf(window().btnPauseResumeRecording), LookOfPause);
        QCOMPARE(window().audioLevelMeter.floatValue(), 0.0F);
    }

    void twoStopsWithinHalfASecondEndTheTakeTwice()
    {
        m_stage->start();
        m_engine->recordedSeconds = 65;
        control().stopRecording(nullptr);
        m_stage->clock.advance(300ms);
        control().stopRecording(nullptr);

        m_stage->clock.advance(200ms);
        QVERIFY(!control().hasRecorder());
        window().lblRecordingDuration.setText(QStringLiteral("anything"));

        m_stage->clock.advance(299ms);
        QCOMPARE(window().lblRecordingDuration.text(), QStringLiteral("anything"));

        m_stage->clock.advance(1ms);
        QCOMPARE(window().lblRecordingDuration.text(), QStringLiteral("00:01:05"));
    }

    void aTakeStartedRightAfterAStopIsNotStoppedByTheEarlierOnesEnd()
    {
        m_stage->start();
        m_engine->recordedSeconds = 65;
        m_stage->pressStop();
        m_stage->clock.advance(300ms);

        m_stage->start();
        const auto *second = m_engine->recorder;
        m_engine->takeAsked();
        m_stage->clock.advance(2s);

        QCOMPARE(m_engine->asked, QStringList());
        QCOMPARE(m_engine->recorder, second);
        QVERIFY(second);
        QVERIFY(control().recording());
        QCOMPARE(window().lblRecordingDuration.text(), QStringLiteral("00:01:05"));
        QCOMPARE(control().floatRecordingDuration(), 0.0);
    }

    void aTakeStartedAfterAPausedOneWasLeftStartsWithItsToggleOff()
    {
        m_stage->start();
        m_stage->pressPauseResume();
        control().discardTake();

        m_stage->start();

        QCOMPARE(window().btnPauseResumeRecording.state(), 0);
        QCOMPARE(lookOf(window().btnPauseResumeRecording), LookOfPause);
        m_engine->takeAsked();
        m_stage->pressPauseResume();
        QCOMPARE(m_engine->asked, inOrder({"recorder pause"}));
    }

    void startStopEndsATakeAndChangesNoButtonsLook()
    {
        m_stage->start();
        m_stage->pressPauseResume();
        m_engine->recordedSeconds = 12.5;
        m_engine->takeAsked();

        control().startStopRecording(nullptr);

        QCOMPARE(m_engine->asked, inOrder({"recorder stop"}));
        QVERIFY(!control().recording());
        QVERIFY(!control().bIsRecordingSaved());
        QCOMPARE(control().floatRecordingDuration(), 12.5);
        QCOMPARE(window().btnPauseResumeRecording.state(), 0);
        QVERIFY(!window().btnPauseResumeRecording.isEnabled());
        QVERIFY(window().btnPauseResumeRecording.isVisible());
        QCOMPARE(lookOf(window().btnStopRecord), QStringLiteral("stop/stopH/Stop"));
        QCOMPARE(lookOf(window().btnPauseResumeRecording), LookOfResume);
        QCOMPARE(window().btnStopRecord.actionName(), QByteArray("stopRecording"));
    }

    void startStopEndsTheTakeHalfASecondLater()
    {
        m_stage->start();
        m_engine->recordedSeconds = 12.5;
        control().startStopRecording(nullptr);

        m_stage->clock.advance(500ms);

        QVERIFY(!control().hasRecorder());
        QCOMPARE(window().lblRecordingDuration.text(), QStringLiteral("00:00:12"));
    }

    void startStopStartsAgainOnTheRecorderThatIsThere()
    {
        m_stage->start();
        pauseFor(3s);
        m_engine->recordedSeconds = 12.5;
        control().startStopRecording(nullptr);
        m_engine->takeAsked();

        control().startStopRecording(nullptr);

        QCOMPARE(m_engine->asked,
                 inOrder({"recorder prepareToRecord", "recorder record", "recorder updateMeters"}));
        QVERIFY(control().recording());
        QVERIFY(window().btnPauseResumeRecording.isEnabled());
        QCOMPARE(control().floatRecordingDuration(), 0.0);
        QCOMPARE(control().durationPause(), 0);
    }

    void startStopWithoutARecorderRecordsNothingAndCountsAsRecording()
    {
        m_stage->writeTake("an earlier take");

        control().startStopRecording(nullptr);

        QCOMPARE(m_engine->asked, QStringList());
        QVERIFY(control().recording());
        QVERIFY(!m_stage->takeIsThere());
        QVERIFY(window().btnPauseResumeRecording.isEnabled());
    }

    void aTakeOfFullLengthIsStoppedAsByStartStop()
    {
        m_stage->start();
        m_engine->recordedSeconds = 7;
        m_engine->takeAsked();

        control().onMaxRecordingTimeReached();

        QCOMPARE(m_engine->asked, inOrder({"recorder stop"}));
        QVERIFY(!control().recording());
        QCOMPARE(lookOf(window().btnStopRecord), LookOfRunning);
    }

    void nothingLimitsTheLengthOfATakeOrReadsItsLevel()
    {
        m_stage->start();

        QCOMPARE(m_stage->clock.pendingCount(), 0);
        m_stage->clock.advance(48h);

        QVERIFY(control().recording());
    }

    void itIsRecordingExactlyWhileTheWindowIsVisible()
    {
        QVERIFY(control().isRecordingNow());

        m_stage->start();
        window().window.hide();
        QVERIFY(!control().isRecordingNow());

        window().window.show();
        QVERIFY(control().isRecordingNow());
    }

    void onlySomeoneElseAsksToPreventQuitting()
    {
        m_stage->start();
        QVERIFY(!control().bIsRecordingNeedPreventingQuit());

        control().setBIsRecordingNeedPreventingQuit(true);
        QVERIFY(control().bIsRecordingNeedPreventingQuit());
    }

    void aRecorderThatSaysItIsDoneIsStopped()
    {
        m_stage->start();
        m_engine->takeAsked();

        control().audioRecorderDidFinishRecordingSuccessfully(m_engine->recorder, false);

        QCOMPARE(m_engine->asked, inOrder({"recorder stop"}));
        QVERIFY(control().recording());
    }

    void aDiscardedTakeIsDeletedAndItsDisplayCleared()
    {
        m_stage->start();
        window().lblRecordingDuration.setText(QStringLiteral("00:01:05"));
        window().audioLevelMeter.setFloatValue(0.5F);
        m_engine->takeAsked();

        control().discardTake();

        QCOMPARE(m_engine->asked, inOrder({"recorder stop"}));
        QVERIFY(!control().recording());
        QVERIFY(!m_stage->takeIsThere());
        QCOMPARE(window().lblRecordingDuration.text(), QString());
        QCOMPARE(window().audioLevelMeter.floatValue(), 0.0F);
    }

    void discardingWithoutATakeDoesNothing()
    {
        control().discardTake();

        QCOMPARE(m_engine->asked, QStringList());
        QVERIFY(!control().recording());
    }

    void aSavedTakeHasNoLengthAnyMore()
    {
        m_stage->start();
        m_engine->recordedSeconds = 65;
        m_stage->pressStop();

        control().takeWasSaved();

        QCOMPARE(control().floatRecordingDuration(), 0.0);
        QVERIFY(control().bIsRecordingSaved());
        control().forgetSavedTake();
        QVERIFY(!control().bIsRecordingSaved());
    }

private:
    void pauseFor(std::chrono::milliseconds time)
    {
        m_stage->pressPauseResume();
        m_stage->clock.advance(time);
        m_stage->pressPauseResume();
    }

    void startWithoutSound()
    {
        m_engine->recordedSeconds = 5;
        window().lblRecordingDuration.setText(QStringLiteral("00:01:05"));
        control().startDisplayTimer();

        m_stage->start();
        m_stage->clock.advance(3s);

        QVERIFY(control().recording());
        QCOMPARE(lookOf(window().btnStopRecord), LookOfRunning);
        QVERIFY(window().btnPauseResumeRecording.isVisible());
        QCOMPARE(window().lblRecordingDuration.text(), QStringLiteral("00:01:05"));
    }
};

QTEST_MAIN(RecordingControlTest)
#include "RecordingControlTest.moc"
