#include "audio/StageCase.h"

using tarvelo::tests::inOrder;
using tarvelo::tests::lookOf;

// The finished take that waits to be saved, listened to.
class TakePlaybackTest final : public tarvelo::tests::StageCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewPlayerHasNothingAndNoRate()
    {
        QVERIFY(!m_stage->playback.hasPlayer());
        QVERIFY(!m_stage->playback.isPlayerPlaying());
        QCOMPARE(m_stage->playback.currentPlayRate(), 0.0F);

        m_stage->playback.resetRate();

        QCOMPARE(m_stage->playback.currentPlayRate(), 1.0F);
    }

    void theTakePlaysFromItsBytesWithoutADelegate()
    {
        m_stage->writeTake("what was said");

        m_stage->playback.playRecordTemp(nullptr);

        QCOMPARE(m_engine->playerBytes, QByteArray("what was said"));
        QCOMPARE(m_engine->asked, inOrder({"makePlayer", "player prepareToPlay", "player play"}));
        QVERIFY(!m_stage->playback.isPlayerPlaying());
    }

    void playingTurnsTheStopButtonIntoAPauseButton()
    {
        play();

        QCOMPARE(lookOf(stopButton()), QStringLiteral("pause/pauseH/Pause"));
        QCOMPARE(stopButton().actionName(), QByteArray("pauseResumeRecordTemp"));
        QCOMPARE(stopButton().tag(), 2);
    }

    void playingShowsThePlayersControlsInPlaceOfTheRecorders()
    {
        play();

        QVERIFY(!m_stage->window.audioLevelMeter.isVisible());
        QVERIFY(!m_stage->window.imgLevelIndicatorBG.isVisible());
        QVERIFY(!m_stage->window.lblRecordingDuration.isVisible());
        QVERIFY(m_stage->window.sliderPlayProgress2.isVisible());
        QVERIFY(m_stage->window.lblElapsedTimeTemp.isVisible());
        QVERIFY(m_stage->window.lblRemainingTimeTemp.isVisible());
    }

    void aTakeThatIsNotThereChangesTheControlsAllTheSame()
    {
        m_stage->playback.playRecordTemp(nullptr);

        QVERIFY(m_engine->playerBytes.isNull());
        QVERIFY(!m_stage->playback.hasPlayer());
        QCOMPARE(lookOf(stopButton()), QStringLiteral("pause/pauseH/Pause"));
        QVERIFY(m_stage->window.lblElapsedTimeTemp.isVisible());
    }

    void aTakeThatCannotBePlayedLeavesNoPlayer()
    {
        play();
        m_engine->makesPlayers = false;

        m_stage->playback.playRecordTemp(nullptr);

        QVERIFY(!m_stage->playback.hasPlayer());
    }

    void anEarlierPlayerIsReplacedWithoutBeingStopped()
    {
        play();

        m_stage->playback.playRecordTemp(nullptr);

        QVERIFY(m_engine->asked.contains(QStringLiteral("player gone")));
        QVERIFY(!m_engine->asked.contains(QStringLiteral("player stop")));
        QVERIFY(m_engine->player);
        QVERIFY(m_engine->player->isPlaying());
    }

    void theButtonPausesAndPlaysOnByItsTag()
    {
        play();
        m_engine->takeAsked();

        m_stage->pressStop();
        QCOMPARE(m_engine->takeAsked(), inOrder({"player pause"}));
        QCOMPARE(lookOf(stopButton()), QStringLiteral("play/playH/Play"));
        QCOMPARE(stopButton().tag(), 1);

        m_stage->pressStop();
        QCOMPARE(m_engine->takeAsked(), inOrder({"player play"}));
        QCOMPARE(lookOf(stopButton()), QStringLiteral("pause/pauseH/Pause"));
        QCOMPARE(stopButton().tag(), 2);
    }

    void anotherTagDoesNothing()
    {
        play();
        m_engine->takeAsked();
        stopButton().setTag(0);

        m_stage->pressStop();

        QCOMPARE(m_engine->takeAsked(), QStringList());
        QCOMPARE(lookOf(stopButton()), QStringLiteral("pause/pauseH/Pause"));
        QCOMPARE(stopButton().tag(), 0);
    }

    void pausingWithoutAPlayerDoesNothing()
    {
        m_stage->playback.playRecordTemp(nullptr);

        m_stage->pressStop();

        QCOMPARE(lookOf(stopButton()), QStringLiteral("pause/pauseH/Pause"));
        QCOMPARE(stopButton().tag(), 2);
    }

    void stoppingTheSoundKeepsThePlayer()
    {
        play();
        m_engine->takeAsked();

        m_stage->playback.stopSoundPlay();

        QCOMPARE(m_engine->takeAsked(), inOrder({"player stop"}));
        QVERIFY(m_stage->playback.hasPlayer());
    }

    void stoppingWithoutAPlayerDoesNothing()
    {
        m_stage->playback.stopSoundPlay();
        m_stage->playback.discardPlayer();

        QCOMPARE(m_engine->asked, QStringList());
    }

    void stoppingTheEditPlayerDoesNothing()
    {
        play();
        QVERIFY(m_stage->playback.openEditPlayer(m_stage->takePath()));
        m_stage->playback.onPlayPauseLectureEdit(&m_stage->window.bPlay);
        m_engine->takeAsked();

        m_stage->playback.stopSoundPlayEdit();

        QCOMPARE(m_engine->asked, QStringList());
        QVERIFY(m_engine->player->isPlaying());
        QVERIFY(m_stage->playback.isEditPlayerPlaying());
        QVERIFY(m_stage->window.bPause.isEnabled() && !m_stage->window.bPlay.isEnabled());
    }

    void aDiscardedPlayerIsStoppedFirst()
    {
        play();
        m_engine->takeAsked();

        m_stage->playback.discardPlayer();

        QCOMPARE(m_engine->asked, inOrder({"player stop", "player gone"}));
        QVERIFY(!m_stage->playback.hasPlayer());
    }

    void elapsedAndRemainingTimeAreCutToWholeSeconds()
    {
        play();
        m_engine->playedSeconds = 5.9;
        m_engine->playerDuration = 71.2;

        m_stage->playback.updateTimeDisplay();

        QCOMPARE(m_stage->window.lblElapsedTimeTemp.text(), QStringLiteral("00:00:05"));
        QCOMPARE(m_stage->window.lblRemainingTimeTemp.text(), QStringLiteral("-00:01:05"));
    }

    void withoutAPlayerBothTimesAreZero()
    {
        m_stage->playback.playRecordTemp(nullptr);

        m_stage->playback.updateTimeDisplay();

        QCOMPARE(m_stage->window.lblElapsedTimeTemp.text(), QStringLiteral("00:00:00"));
        QCOMPARE(m_stage->window.lblRemainingTimeTemp.text(), QStringLiteral("-00:00:00"));
    }

    void hiddenTimesStandStill()
    {
        play();
        m_stage->window.lblElapsedTimeTemp.hide();
        m_engine->playedSeconds = 5;

        m_stage->playback.updateTimeDisplay();

        QCOMPARE(m_stage->window.lblElapsedTimeTemp.text(), QString());
        QCOMPARE(m_stage->window.lblRemainingTimeTemp.text(), QString());
    }

private:
    tarvelo::widgets::ImageButton &stopButton() { return m_stage->window.btnStopRecord; }
    void play()
    {
        m_stage->writeTake("a take");
        m_stage->playback.playRecordTemp(&stopButton());
    }
};

QTEST_MAIN(TakePlaybackTest)
#include "TakePlaybackTest.moc"
