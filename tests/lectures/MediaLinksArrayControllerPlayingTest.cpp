#include "lectures/CustomTableCellView.h"
#include "lectures/ProgramCase.h"
#include "widgets/PopOver.h"
#include "widgets/SegmentedControl.h"

#include <QAbstractButton>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::lectures::CustomTableCellView;
using tarvelo::tests::aLecture;
using tarvelo::tests::inOrder;
using tarvelo::tests::theDay;

// Lectures of the list, played through the real windows.
class MediaLinksArrayControllerPlayingTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRowsPlayButtonPlaysItsLecture()
    {
        showTwoLectures();

        rowNamed(u"Second"_s).btnPlay()->click();

        QCOMPARE(m_program->engine.playerBytes, QByteArray("the second"));
        QCOMPARE(playWindow().windowTitle(), u"Second"_s);
        QCOMPARE(player().txtSubjectName->text(), playWindow().windowTitle());
        QVERIFY(playWindow().isVisible());
    }

    void aLectureWithoutAudioSaysSoAndPlaysNothing()
    {
        aLecture().withoutAudio().insertInto(m_program->database);
        m_program->showDay(m_program->today());

        row(0).btnPlay()->click();

        const auto &popover = *m_program->windows.popoverOutlets().popoverAudioConfirmClose;
        QVERIFY(popover.isVisible());
        QCOMPARE(m_program->windows.popoverOutlets().lblPopoverNoAudio->text(),
                 tarvelo::platform::text("MSG_NO_AUDIO_FOR_LECTURE"));
        QVERIFY(!playWindow().isVisible());
        QVERIFY(!m_program->engine.asked.contains(u"makePlayer"_s));
    }

    void aLectureWithoutAudioEndsTheOneBefore()
    {
        aLecture().withoutAudio().insertInto(m_program->database);
        showTwoLectures();
        rowNamed(u"First"_s).btnPlay()->click();
        m_program->engine.takeAsked();

        rowNamed(u"Optics"_s).btnPlay()->click();

        QCOMPARE(m_program->engine.takeAsked(), inOrder({"player stop", "player gone"}));
        QVERIFY(!controller().playback().isPlayerPlaying());
    }

    void aSenderOutsideTheRowsEndsTheLectureAndPlaysNone()
    {
        showTwoLectures();
        row(0).btnPlay()->click();

        controller().onPlayLecture(m_program->windows.mainOutlets().btnAddItem);
        QVERIFY(!controller().playback().hasPlayer());
        controller().onPlayLecture(nullptr);
        controller().onPlayLecture(&row(0));

        QVERIFY(!controller().playback().hasPlayer());
    }

    void aListThatWasEmptiedPlaysNothing()
    {
        showTwoLectures();
        QWidget *button = row(0).btnPlay();
        controller().prepareViewForDate(theDay("2024-03-06"));

        controller().onPlayLecture(button);

        QVERIFY(!controller().playback().hasPlayer());
        QVERIFY(!playWindow().isVisible());
    }

    void aLectureWhoseFileIsGoneOpensTheWindowWithThePauseButton()
    {
        showTwoLectures();
        QVERIFY(QFile::remove(controller().arrangedObjects().at(0)->getLectureAudioPath()));
        player().btnPauseLecture->setEnabled(false);

        row(0).btnPlay()->click();

        QVERIFY(playWindow().isVisible());
        QVERIFY(!player().btnPlayLecture->isEnabled());
        QVERIFY(player().btnPauseLecture->isEnabled());
        QVERIFY(m_program->alerts.sheets.isEmpty());
    }

    void theWindowsButtonsPauseAndPlay()
    {
        playFirst();

        player().btnPauseLecture->click();
        QCOMPARE(m_program->engine.takeAsked(), inOrder({"player pause"}));
        player().btnPlayLecture->click();

        QCOMPARE(m_program->engine.takeAsked(), inOrder({"player play"}));
    }

    void theLectureViewsButtonsPlayAndPause()
    {
        openFirstInTheView();

        view().bPlay->click();
        QCOMPARE(m_program->engine.takeAsked(), inOrder({"player play"}));
        view().bPause->click();

        QCOMPARE(m_program->engine.takeAsked(), inOrder({"player pause"}));
    }

    // It only shows where the lecture is: wanted so.
    void theLectureViewsSliderSeeksNothingWhenItIsLetGo()
    {
        m_program->engine.playerDuration = 100;
        openFirstInTheView();
        m_program->engine.playedSeconds = 40;

        view().sliderEditProgress->setSliderDown(true);
        view().sliderEditProgress->setValue(view().sliderEditProgress->maximum() / 4);
        view().sliderEditProgress->setSliderDown(false);

        QCOMPARE(m_program->engine.playedSeconds, 40.0);
        QCOMPARE(m_program->engine.takeAsked(), QStringList());
    }

    void keysPauseAndPlayInTurn_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("space") << Qt::Key_Space;
        QTest::newRow("F8") << Qt::Key_F8;
        QTest::newRow("the play key") << Qt::Key_MediaTogglePlayPause;
    }

    void keysPauseAndPlayInTurn()
    {
        QFETCH(Qt::Key, key);
        playFirst();
        QVERIFY(QTest::qWaitForWindowActive(&playWindow()));

        // By its code alone: the play key stands for no letter.
        const auto press = [&] {
            QTest::sendKeyEvent(QTest::Click, &playWindow(), key, QString(), Qt::NoModifier);
        };

        press();
        QCOMPARE(m_program->engine.takeAsked(), inOrder({"player pause"}));
        press();

        QCOMPARE(m_program->engine.takeAsked(), inOrder({"player play"}));
    }

    void escapeClosesTheWindowAndTheSoundStopsSoonAfter()
    {
        playFirst();
        QVERIFY(QTest::qWaitForWindowActive(&playWindow()));

        QTest::keyClick(&playWindow(), Qt::Key_Escape);
        QVERIFY(!playWindow().isVisible());
        m_program->clock.advance(199ms);
        QVERIFY(m_program->engine.player->isPlaying());
        m_program->clock.advance(1ms);

        QVERIFY(!m_program->engine.player->isPlaying());
    }

    void itsButtonClosesTheWindowAsItsTitleBarWould()
    {
        playFirst();

        QTest::mouseClick(m_program->windows.playAudioOutlets().btnClosePlayAudio, Qt::LeftButton);
        QVERIFY(!playWindow().isVisible());
        m_program->clock.advance(200ms);

        QVERIFY(!m_program->engine.player->isPlaying());
    }

    void itsButtonClosesTheWindowWhileALectureIsRecorded()
    {
        playFirst();
        controller().onAddItem(nullptr);
        controller().startRecording(nullptr);

        m_program->windows.playAudioOutlets().btnClosePlayAudio->click();

        QVERIFY(!playWindow().isVisible());
        QVERIFY(m_program->alerts.sheets.isEmpty());
    }

    void theWindowComesBackInItsSize()
    {
        playFirst();
        const QSize size = playWindow().size();
        playWindow().close();

        row(1).btnPlay()->click();

        QVERIFY(playWindow().isVisible());
        QTRY_COMPARE(playWindow().size(), size);
    }

    void theWindowIsDraggedByItsCardAndNotByItsControls()
    {
        playFirst();
        const QPoint corner = playWindow().pos();
        auto &card = *playWindow().findChild<QWidget *>(u"playPanel"_s);

        drag(*player().sliderPlayProgress, {30, 20});
        drag(*player().txtSubjectName, {30, 20});
        QCOMPARE(playWindow().pos(), corner);
        drag(card, {30, 20});

        QCOMPARE(playWindow().pos(), corner + QPoint(30, 20));
    }

    void theSpeedThatIsRecordedIsSelectedFirst()
    {
        const auto speeds = player().segPlaySpeed->findChildren<QAbstractButton *>();
        QCOMPARE(speeds.size(), 5);
        QCOMPARE(speeds.at(player().segPlaySpeed->selectedSegment())->text(), u"1×"_s);
    }

    void aClickOnASpeedSetsIt()
    {
        playFirst();

        player().segPlaySpeed->findChildren<QAbstractButton *>().at(3)->click();

        QVERIFY(m_program->engine.player->rate() == 0.5F);
    }

    void aDraggedSliderGoesBackWithTheNextTick()
    {
        m_program->engine.playerDuration = 100;
        playFirst();
        m_program->engine.playedSeconds = 40;

        player().sliderPlayProgress->setValue(90000);
        Q_EMIT player().sliderPlayProgress->sliderReleased();
        QCOMPARE(m_program->engine.playedSeconds, 40.0);
        m_program->clock.advance(1s);

        QCOMPARE(player().sliderPlayProgress->value(), 40000);
    }

    void theClockMovesTheTimesOfALecture()
    {
        m_program->engine.playerDuration = 100;
        playFirst();
        m_program->engine.playedSeconds = 1;

        m_program->clock.advance(1s);

        QCOMPARE(player().txtElapsedTime->text(), u"00:00:01"_s);
        QCOMPARE(player().txtRemainingTime->text(), u"-00:01:39"_s);
    }

private:
    const tarvelo::audio::LecturePlayerOutlets &player()
    {
        return m_program->windows.lecturePlayerOutlets();
    }
    QWidget &playWindow() { return *player().playAudioWindow; }
    // From its upper left corner on, in small steps.
    static void drag(QWidget &place, const QPoint &by)
    {
        const QPoint start = place.mapToGlobal(QPoint(3, 3));
        QTest::mousePress(&place, Qt::LeftButton, Qt::NoModifier, {3, 3});
        for (int step = 1; step <= 10; ++step) {
            const QPoint at = start + by * step / 10;
            QMouseEvent move(QEvent::MouseMove, place.mapFromGlobal(at), at, Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&place, &move);
        }
        QTest::mouseRelease(&place, Qt::LeftButton, Qt::NoModifier,
                            place.mapFromGlobal(start + by));
    }
    CustomTableCellView &row(int at)
    {
        return *m_program->windows.mainOutlets()
                    .tblRecordSubjectList->viewAtColumnRowMakeIfNecessary(0, at, true);
    }
    CustomTableCellView &rowNamed(const QString &subject)
    {
        return row(static_cast<int>(m_program->subjectsShown().indexOf(subject)));
    }
    QString file(const char *name, const QByteArray &content)
    {
        const QString path = m_program->places.folder() + u'/' + QString::fromLatin1(name);
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(content) > 0 ? path : QString();
    }
    void showTwoLectures()
    {
        m_program->start();
        const QString first = file("first.m4a", "the first");
        const QString second = file("second.m4a", "the second");
        aLecture().named("First").withAudio(first).insertInto(m_program->database);
        aLecture().named("Second").withAudio(second).insertInto(m_program->database);
        m_program->windows.mainWindow().show();
        controller().prepareViewForDate(m_program->today());
    }
    void playFirst()
    {
        showTwoLectures();
        row(0).btnPlay()->click();
        m_program->engine.takeAsked();
    }
    const tarvelo::audio::EditPlayerOutlets &view()
    {
        return m_program->windows.editPlayerOutlets();
    }
    void openFirstInTheView()
    {
        showTwoLectures();
        controller().openPlayEditWindow(row(0).btnPlay());
        m_program->engine.takeAsked();
    }
};

QTEST_MAIN(MediaLinksArrayControllerPlayingTest)
#include "MediaLinksArrayControllerPlayingTest.moc"
