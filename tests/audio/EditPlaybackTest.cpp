#include "audio/EditPlayback.h"

#include "audio/StageCase.h"

using namespace Qt::StringLiterals;
using tarvelo::tests::inOrder;

// The player of the lecture view, through the one face that all players have.
class EditPlaybackTest final : public tarvelo::tests::StageCase
{
    Q_OBJECT

private Q_SLOTS:
    void anOpenedSoundIsReadyAndSilent()
    {
        m_engine->playerDuration = 12.25;
        window().sliderPlayProgress.setMaximum(5000);
        window().sliderPlayProgress.setValue(3000);

        QVERIFY(open());

        QCOMPARE(m_engine->playerBytes, QByteArray("a lecture"));
        QCOMPARE(m_engine->asked,
                 inOrder({"makePlayer", "player setDelegate", "player prepareToPlay",
                          "player updateMeters", "player metering on"}));
        QCOMPARE(window().sliderEditProgress.minimum(), 0);
        QCOMPARE(window().sliderEditProgress.maximum(), 12250);
        QCOMPARE(window().sliderPlayProgress.value(), 0);
        QVERIFY(playback().isEditPlayerPlaying());
        QVERIFY(!m_engine->player->isPlaying());
        QVERIFY(!playback().hasPlayer());
    }

    void aFileThatIsNotThereGivesNoPlayer()
    {
        QVERIFY(!playback().openEditPlayer(m_stage->places.folder() + u"/missing.m4a"_s));

        QVERIFY(!playback().isEditPlayerPlaying());
    }

    void aFileThatCannotBeHeardEndsTheOneBefore()
    {
        open();
        m_engine->makesPlayers = false;

        QVERIFY(!open());
        playback().updateTimeDisplay();

        QVERIFY(!playback().isEditPlayerPlaying());
        QCOMPARE(window().tElapsedTime.text(), u"0:00:00"_s);
    }

    void theButtonsPlayAndPauseByTheirTags()
    {
        open();
        m_engine->takeAsked();

        playback().onPlayPauseLectureEdit(&window().bPlay);
        QCOMPARE(m_engine->takeAsked(), inOrder({"player play"}));
        QVERIFY(window().bPause.isEnabled());
        QVERIFY(!window().bPlay.isEnabled());

        playback().onPlayPauseLectureEdit(&window().bPause);
        QCOMPARE(m_engine->takeAsked(), inOrder({"player pause"}));
        QVERIFY(!window().bPause.isEnabled());
        QVERIFY(window().bPlay.isEnabled());
    }

    void thePauseTagOfThePlayWindowDoesNotPauseHere()
    {
        open();
        playback().onPlayPauseLectureEdit(&window().bPlay);
        m_engine->takeAsked();

        playback().onPlayPauseLectureEdit(&window().btnPauseLecture);

        QCOMPARE(m_engine->takeAsked(), QStringList());
        QVERIFY(window().bPause.isEnabled());
        QVERIFY(!window().bPlay.isEnabled());
    }

    void withoutASenderItPauses()
    {
        open();
        playback().onPlayPauseLectureEdit(&window().bPlay);
        m_engine->takeAsked();

        playback().onPlayPauseLectureEdit(nullptr);

        QCOMPARE(m_engine->takeAsked(), inOrder({"player pause"}));
        QVERIFY(window().bPlay.isEnabled());
    }

    void withoutAPlayerTheButtonsStayAsTheyAre()
    {
        playback().onPlayPauseLectureEdit(&window().bPlay);

        QVERIFY(window().bPlay.isEnabled());
        QVERIFY(window().bPause.isEnabled());
    }

    void theTickShowsWhereTheSoundIs()
    {
        m_engine->playerDuration = 71;
        open();
        m_engine->playedSeconds = 5.9;

        playback().updateTimeDisplay();

        QCOMPARE(window().tElapsedTime.text(), u"00:00:05"_s);
        QCOMPARE(window().tRemainingTime.text(), u"-00:01:05"_s);
        QCOMPARE(window().sliderEditProgress.value(), 5900);
    }

    void withoutAPlayerEveryTickDisablesTheControls()
    {
        playback().updateTimeDisplay();
        for (QWidget *control : controls())
            control->setEnabled(true);

        playback().updateTimeDisplay();

        QCOMPARE(window().tElapsedTime.text(), u"0:00:00"_s);
        QCOMPARE(window().tRemainingTime.text(), u"0:00:00"_s);
        for (const QWidget *control : controls())
            QVERIFY2(!control->isEnabled(), "a control without a player is enabled");
    }

    void theEndEnablesThePlayButtonAloneAndLeavesThePlayWindow()
    {
        open();
        playback().onPlayPauseLectureEdit(&window().bPlay);
        window().txtElapsedTime.setText(u"as it was"_s);
        m_engine->takeAsked();

        m_engine->endPlayer();

        QVERIFY(window().bPlay.isEnabled());
        QVERIFY(!window().bPause.isEnabled());
        QCOMPARE(window().txtElapsedTime.text(), u"as it was"_s);
        QCOMPARE(m_engine->takeAsked(), QStringList());
    }

    void aDiscardedPlayerIsStoppedFirst()
    {
        open();
        m_engine->takeAsked();

        playback().discardEditPlayer();

        QCOMPARE(m_engine->takeAsked(), inOrder({"player stop", "player gone"}));
        QVERIFY(!playback().isEditPlayerPlaying());
    }

    void discardingWithoutAPlayerDoesNothing()
    {
        playback().discardEditPlayer();

        QCOMPARE(m_engine->asked, QStringList());
    }

    void aLectureOfThePlayWindowLeavesThisPlayer()
    {
        open();

        playback().discardPlayer();
        playback().playLecture(m_stage->takePath(), u"Optics"_s);

        QVERIFY(playback().isEditPlayerPlaying());
        QVERIFY(playback().hasPlayer());
    }

private:
    QList<QWidget *> controls()
    {
        return {&window().bPlay, &window().bPause, &window().sliderEditProgress};
    }
    bool open()
    {
        m_stage->writeTake("a lecture");
        return playback().openEditPlayer(m_stage->takePath());
    }
};

QTEST_MAIN(EditPlaybackTest)
#include "EditPlaybackTest.moc"
