#include "audio/StageCase.h"

using namespace Qt::StringLiterals;
using tarvelo::tests::inOrder;
using tarvelo::tests::RecordingWindow;

// The lecture of the play window.
class PlaybackTest final : public tarvelo::tests::StageCase
{
    Q_OBJECT

private Q_SLOTS:
    // -- Starting

    void aLecturePlaysFromTheBytesOfItsFile()
    {
        play();

        QCOMPARE(m_engine->playerBytes, QByteArray("a lecture"));
        QCOMPARE(m_engine->asked,
                 inOrder({"makePlayer", "player setDelegate", "player prepareToPlay",
                          "player updateMeters", "player play"}));
        QVERIFY(playback().isPlayerPlaying());
        QCOMPARE(m_engine->playerDelegate, &playback());
    }

    void playingEnablesThePauseButtonAlone()
    {
        window().btnPauseLecture.setEnabled(false);

        play();

        QVERIFY(!window().btnPlayLecture.isEnabled());
        QVERIFY(window().btnPauseLecture.isEnabled());
    }

    void theSliderRunsFromTheBeginningToTheEnd()
    {
        m_engine->playerDuration = 65.5;

        play();

        QCOMPARE(window().sliderPlayProgress.minimum(), 0);
        QCOMPARE(window().sliderPlayProgress.maximum(), 65500);
    }

    void theWindowShowsTheSubjectAndComesToTheFront()
    {
        play();

        QCOMPARE(window().txtSubjectName.text(), u"Optics"_s);
        QCOMPARE(window().playAudioWindow.windowTitle(), u"Optics"_s);
        QVERIFY(window().playAudioWindow.isVisible());
    }

    void aFileThatIsNotThereOpensTheWindowAllTheSame()
    {
        window().btnPauseLecture.setEnabled(false);

        playback().playLecture(m_stage->places.folder() + u"/missing.m4a"_s, u"Optics"_s);

        QVERIFY(!playback().hasPlayer());
        QVERIFY(!playback().isPlayerPlaying());
        QVERIFY(window().playAudioWindow.isVisible());
        QCOMPARE(window().playAudioWindow.windowTitle(), u"Optics"_s);
        QVERIFY(!window().btnPlayLecture.isEnabled());
        QVERIFY(window().btnPauseLecture.isEnabled());
    }

    void aFileThatIsNoSoundOpensTheWindowAllTheSame()
    {
        m_engine->makesPlayers = false;
        window().btnPauseLecture.setEnabled(false);

        play();

        QVERIFY(!playback().isPlayerPlaying());
        QVERIFY(window().playAudioWindow.isVisible());
        QVERIFY(!window().btnPlayLecture.isEnabled());
        QVERIFY(window().btnPauseLecture.isEnabled());
    }

    void anotherLectureReplacesThePlayer()
    {
        play();
        m_engine->takeAsked();

        playback().discardPlayer();
        play();

        QCOMPARE(m_engine->takeAsked().first(2), inOrder({"player stop", "player gone"}));
        QVERIFY(m_engine->player->isPlaying());
    }

    // -- Pausing

    void theButtonsPauseAndPlayByTheirTags()
    {
        play();
        m_engine->takeAsked();

        playback().onPlayPauseLecture(&window().btnPauseLecture);
        QCOMPARE(m_engine->takeAsked(), inOrder({"player pause"}));
        QVERIFY(!window().btnPauseLecture.isEnabled());
        QVERIFY(window().btnPlayLecture.isEnabled());

        playback().onPlayPauseLecture(&window().btnPlayLecture);
        QCOMPARE(m_engine->takeAsked(), inOrder({"player play"}));
        QVERIFY(window().btnPauseLecture.isEnabled());
        QVERIFY(!window().btnPlayLecture.isEnabled());
    }

    void anotherTagNeitherPausesNorPlays()
    {
        play();
        m_engine->takeAsked();
        window().btnPauseLecture.setTag(0);
        window().btnPlayLecture.setEnabled(true);

        playback().onPlayPauseLecture(&window().btnPauseLecture);

        QCOMPARE(m_engine->takeAsked(), QStringList());
        QVERIFY(window().btnPauseLecture.isEnabled());
        QVERIFY(!window().btnPlayLecture.isEnabled());
    }

    void withoutAPlayerTheButtonsStayAsTheyAre()
    {
        window().btnPlayLecture.setEnabled(true);
        window().btnPauseLecture.setEnabled(true);

        playback().onPlayPauseLecture(&window().btnPauseLecture);

        QVERIFY(window().btnPlayLecture.isEnabled());
        QVERIFY(window().btnPauseLecture.isEnabled());
    }

    // -- Speed

    void everySegmentHasItsSpeed_data()
    {
        QTest::addColumn<int>("segment");
        QTest::addColumn<float>("rate");
        QTest::newRow("a fifth") << 0 << 1.0F / 5.0F;
        QTest::newRow("a quarter") << 1 << 0.25F;
        QTest::newRow("a third, in single precision") << 2 << 0.333333343F;
        QTest::newRow("half") << 3 << 0.5F;
        QTest::newRow("as recorded") << 4 << 1.0F;
    }

    void everySegmentHasItsSpeed()
    {
        QFETCH(int, segment);
        QFETCH(float, rate);
        play();
        choose(segment == 3 ? 4 : 3);
        m_engine->takeAsked();

        choose(segment);

        // To the bit, not nearly.
        QVERIFY(m_engine->player->rate() == rate);
        QCOMPARE(m_engine->asked, inOrder({"player setRate", "player play"}));
        QCOMPARE(playback().currentPlaySpeed(), segment);
    }

    void everySpeedIsDerivedFromTheRecordedOne()
    {
        play();

        choose(4);
        QVERIFY(m_engine->player->rate() == 1.0F);
        choose(3);
        QVERIFY(m_engine->player->rate() == 0.5F);
        choose(0);
        QVERIFY(m_engine->player->rate() == 0.2F);
        QVERIFY(playback().currentPlayRate() == 1.0F);
    }

    void theSlowestSpeedChosenFirstDoesNothing()
    {
        play();
        m_engine->takeAsked();

        choose(0);

        QCOMPARE(m_engine->asked, QStringList());
        QVERIFY(m_engine->player->rate() == 1.0F);
    }

    void theSpeedThatWasAppliedLastDoesNothing()
    {
        play();
        choose(2);
        m_engine->takeAsked();

        choose(2);

        QCOMPARE(m_engine->asked, QStringList());
    }

    void aSegmentWithoutASpeedPlaysAndLeavesTheRate()
    {
        play();
        choose(3);
        m_engine->takeAsked();

        choose(RecordingWindow::NoSpeed);

        QCOMPARE(m_engine->asked, inOrder({"player play"}));
        QVERIFY(m_engine->player->rate() == 0.5F);
        QCOMPARE(playback().currentPlaySpeed(), RecordingWindow::NoSpeed);
    }

    void choosingASpeedResumesAPausedLecture()
    {
        play();
        playback().onPlayPauseLecture(&window().btnPauseLecture);

        choose(3);

        QVERIFY(m_engine->player->isPlaying());
    }

    void withoutAPlayerASpeedIsNotRemembered()
    {
        choose(3);

        QCOMPARE(playback().currentPlaySpeed(), 0);
    }

    void theNextLecturePlaysAsRecordedThoughTheControlShowsTheEarlierSpeed()
    {
        play();
        choose(3);

        playback().discardPlayer();
        play();

        QVERIFY(m_engine->player->rate() == 1.0F);
        QCOMPARE(window().segPlaySpeed.selectedSegment(), 3);
        choose(3);
        QVERIFY(m_engine->player->rate() == 1.0F);
    }

    // -- Slider

    void movingTheSliderChangesNothing()
    {
        m_engine->playerDuration = 100;
        play();
        m_engine->playedSeconds = 40;
        window().txtElapsedTime.setText(u"as it was"_s);

        window().sliderPlayProgress.setValue(50000);
        playback().onSetForwardOrBackward(&window().sliderPlayProgress);

        QCOMPARE(m_engine->playedSeconds, 40.0);
        QCOMPARE(window().txtElapsedTime.text(), u"as it was"_s);
    }

    void aSoundWithAUrlWouldBeSoughtByTheTimeThatHasPassed()
    {
        m_engine->playerDuration = 100;
        m_engine->playerUrl = QUrl(u"file:///lecture.m4a"_s);
        play();
        m_engine->playedSeconds = 40;
        window().sliderPlayProgress.setValue(50000);

        playback().onSetForwardOrBackward(&window().sliderPlayProgress);

        QCOMPARE(m_engine->playedSeconds, 20.0);
        QCOMPARE(window().txtElapsedTime.text(), u"00:00:20"_s);
        QCOMPARE(window().txtRemainingTime.text(), u"-00:01:20"_s);
    }

    void anEmptySoundWithAUrlIsSoughtToItsBeginning()
    {
        m_engine->playerUrl = QUrl(u"file:///lecture.m4a"_s);
        play();
        m_engine->playedSeconds = 40;

        playback().onSetForwardOrBackward(&window().sliderPlayProgress);

        QCOMPARE(m_engine->playedSeconds, 0.0);
    }

    // -- Times

    void remainingTimeStandsBehindAMinusSign()
    {
        m_engine->playerDuration = 70.9;
        play();
        m_engine->playedSeconds = 5.2;

        playback().setRemainingAndElapsedTime();

        QCOMPARE(window().txtElapsedTime.text(), u"00:00:05"_s);
        QCOMPARE(window().txtRemainingTime.text(), u"-00:01:05"_s);
    }

    void withoutAPlayerBothTimesAreEightDigitsOfNothing()
    {
        playback().setRemainingAndElapsedTime();

        QCOMPARE(window().txtElapsedTime.text(), u"00:00:00"_s);
        QCOMPARE(window().txtRemainingTime.text(), u"00:00:00"_s);
    }

    void theTickMovesSliderAndTimes()
    {
        m_engine->playerDuration = 100;
        play();
        m_engine->playedSeconds = 12.5;
        m_engine->takeAsked();

        playback().updateTimeDisplay();

        QCOMPARE(window().sliderPlayProgress.value(), 12500);
        QCOMPARE(window().txtElapsedTime.text(), u"00:00:12"_s);
        QCOMPARE(window().txtRemainingTime.text(), u"-00:01:27"_s);
        QCOMPARE(m_engine->takeAsked(), inOrder({"player updateMeters"}));
    }

    void theTickGoesOnDuringAPause()
    {
        play();
        playback().onPlayPauseLecture(&window().btnPauseLecture);
        m_engine->playedSeconds = 3;

        playback().updateTimeDisplay();

        QCOMPARE(window().txtElapsedTime.text(), u"00:00:03"_s);
    }

    void withoutALectureTheTickLeavesTheTimes()
    {
        window().txtElapsedTime.setText(u"as it was"_s);

        playback().updateTimeDisplay();

        QCOMPARE(window().txtElapsedTime.text(), u"as it was"_s);
    }

    // -- The end

    void theEndResetsTheControls()
    {
        m_engine->playerDuration = 100;
        play();
        window().sliderPlayProgress.setValue(100000);
        window().btnPlayLecture.setTag(7);
        m_engine->takeAsked();

        m_engine->endPlayer();

        QCOMPARE(window().txtElapsedTime.text(), u"0:00:00"_s);
        QCOMPARE(window().txtRemainingTime.text(), u"0:00:00"_s);
        QCOMPARE(window().sliderPlayProgress.value(), 0);
        QCOMPARE(m_engine->takeAsked(), inOrder({"player stop"}));
        QVERIFY(window().btnPlayLecture.isEnabled());
        QCOMPARE(window().btnPlayLecture.tag(), 1);
        QCOMPARE(imagesOf(window().btnPlayLecture), u"play/playH"_s);
        QVERIFY(!window().btnPauseLecture.isEnabled());
    }

    void afterTheEndTheTimesGoOn()
    {
        m_engine->playerDuration = 100;
        play();
        m_engine->endPlayer();

        playback().updateTimeDisplay();

        QVERIFY(playback().isPlayerPlaying());
        QCOMPARE(window().txtElapsedTime.text(), u"00:00:00"_s);
        QCOMPARE(window().txtRemainingTime.text(), u"-00:01:40"_s);
    }

    void theEndLeavesTheStopButtonOfARecordingAlone()
    {
        play();
        window().lblElapsedTimeTemp.hide();
        const int tag = window().btnStopRecord.tag();

        m_engine->endPlayer();

        QCOMPARE(window().btnStopRecord.tag(), tag);
        QVERIFY(window().btnStopRecord.image().isNull());
    }

    void theEndMakesATakeThatShowsPlayableAgain()
    {
        play();
        window().lblElapsedTimeTemp.show();

        m_engine->endPlayer();

        QCOMPARE(tarvelo::tests::lookOf(window().btnStopRecord), u"play/playH/Play"_s);
        QCOMPARE(window().btnStopRecord.tag(), 1);
    }

    // -- Stopping

    void stoppingResetsThePlayButtonAndKeepsThePlayer()
    {
        play();
        window().btnPlayLecture.setCheckable(true);
        window().btnPlayLecture.setState(1);
        window().audioLevelMeter.setFloatValue(0.5F);
        m_engine->takeAsked();

        playback().stopPlaying(nullptr);

        QCOMPARE(m_engine->takeAsked(), inOrder({"player stop"}));
        QCOMPARE(window().btnPlayLecture.state(), 0);
        QCOMPARE(imagesOf(window().btnPlayLecture), u"play/playH"_s);
        QCOMPARE(window().audioLevelMeter.floatValue(), 0.0F);
        QVERIFY(playback().hasPlayer());
        QVERIFY(playback().isPlayerPlaying());
    }

    void stoppingWithoutAPlayerLeavesThePlayButton()
    {
        playback().stopPlaying(nullptr);

        QVERIFY(window().btnPlayLecture.image().isNull());
    }

    void whatIsWantedToDoNothingDoesNothing()
    {
        play();
        m_engine->playerDuration = 12;
        QVERIFY(playback().openEditPlayer(m_stage->takePath()));
        playback().onPlayPauseLectureEdit(&window().bPlay);
        m_engine->playedSeconds = 5;
        window().sliderEditProgress.setValue(7000);
        m_engine->takeAsked();
        for (QLabel *label : {&window().txtElapsedTime, &window().txtRemainingTime,
                              &window().tElapsedTime, &window().tRemainingTime,
                              &window().lblElapsedTimeTemp, &window().lblRemainingTimeTemp})
            label->setText(u"as it was"_s);

        playback().updatePlayAudioLevels(nullptr);
        playback().updatePlayAudioLevels2(nullptr);
        playback().updateEditAudioLevels(nullptr);
        playback().setRemainingAndElapsedTime2();
        playback().setRemainingAndElapsedTimeEdit();
        playback().onSetForwardOrBackwardEdit(nullptr);
        playback().audioDidEndPlaying(nullptr);
        playback().audioDidEndPlaying2(nullptr);
        playback().audioDidEndPlayingEdit(nullptr);

        QCOMPARE(m_engine->asked, QStringList());
        QVERIFY(m_engine->player->isPlaying() && playback().isEditPlayerPlaying());
        QCOMPARE(m_engine->playedSeconds, 5.0);
        QCOMPARE(window().sliderEditProgress.value(), 7000);
        QVERIFY(window().bPause.isEnabled() && !window().bPlay.isEnabled());
        for (const QLabel *label : {&window().txtElapsedTime, &window().txtRemainingTime,
                                    &window().tElapsedTime, &window().tRemainingTime,
                                    &window().lblElapsedTimeTemp, &window().lblRemainingTimeTemp})
            QCOMPARE(label->text(), u"as it was"_s);
    }

private:
    void prepare() override
    {
        StageCase::prepare();
        playback().resetRate();
        window().lblElapsedTimeTemp.hide();
    }

    static QString imagesOf(const tarvelo::widgets::ImageButton &button)
    {
        return button.image().name() + u'/' + button.alternateImage().name();
    }
    void play()
    {
        m_stage->writeTake("a lecture");
        playback().playLecture(m_stage->takePath(), u"Optics"_s);
    }
    void choose(int segment)
    {
        window().segPlaySpeed.setSelectedSegment(segment);
        playback().onPlaySpeedChanged(&window().segPlaySpeed);
    }
};

QTEST_MAIN(PlaybackTest)
#include "PlaybackTest.moc"
