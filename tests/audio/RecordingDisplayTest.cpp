#include "audio/StageCase.h"

#include <optional>

using namespace std::chrono_literals;

using tarvelo::audio::RecordingDisplay;
using tarvelo::tests::lookOf;

namespace {

QDateTime at(const char *isoText)
{
    return QDateTime::fromString(QString::fromLatin1(isoText), Qt::ISODate);
}

} // namespace

// The looks of a take's controls, what recording shows once a second, and the time tag in the
// notes.
class RecordingDisplayTest final : public tarvelo::tests::StageCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTakeStartsWithTheRecordersDisplay()
    {
        m_stage->playback.playRecordTemp(nullptr);
        QCOMPARE(partsShown(), QStringLiteral("slider elapsed remaining"));

        display().takeStarts();

        QCOMPARE(partsShown(), QStringLiteral("meter background length"));
    }

    void theButtonsLookAsTheTakeStands()
    {
        display().takeStarts();
        display().offerPause(&window().btnStartRecord);
        QCOMPARE(looks(), QStringLiteral("stopRed/stopRedH/Stop, //, tag"));

        display().takePauses();
        QCOMPARE(looks(), QStringLiteral("stop/stopH/Stop, record/recordH/Resume"));

        display().takeGoesOn();
        QCOMPARE(looks(), QStringLiteral("stopRed/stopRedH/Stop, BtnPause/BtnPauseH/Pause, tag"));

        display().takeStops();
        QCOMPARE(looks(), QStringLiteral("play/playH/Play"));
    }

    void aTakeThatHasEndedShowsItsLength()
    {
        window().audioLevelMeter.setFloatValue(3);

        display().takeHasEnded(65.9);

        QCOMPARE(length(), QStringLiteral("00:01:05"));
        QCOMPARE(window().audioLevelMeter.floatValue(), 0.0F);
        display().clear();
        QCOMPARE(length(), QString());
    }

    void theKeyboardFocusGoesFromStartToPause()
    {
        window().window.activateWindow();
        window().btnStartRecord.setFocus();
        QTRY_VERIFY(window().btnStartRecord.hasFocus());

        display().offerPause(&window().btnStartRecord);

        QVERIFY(window().btnPauseResumeRecording.hasFocus());
        QVERIFY(!window().btnStartRecord.isVisible());
    }

    void theLengthOfATakeIsShownEverySecondCutToWholeSeconds()
    {
        m_stage->control.startDisplayTimer();
        m_stage->start();
        m_engine->recordedSeconds = 65.9;

        m_stage->clock.advance(999ms);
        QCOMPARE(length(), QString());

        m_stage->clock.advance(1ms);
        QCOMPARE(length(), QStringLiteral("00:01:05"));
    }

    void theLengthStandsStillWhileTheTakeIsPaused()
    {
        m_stage->control.startDisplayTimer();
        m_stage->start();
        m_engine->recordedSeconds = 5;
        m_stage->pressPauseResume();

        m_stage->clock.advance(30s);

        QCOMPARE(length(), QStringLiteral("00:00:05"));
    }

    void noLengthIsShownWithoutATake()
    {
        m_stage->control.startDisplayTimer();
        m_engine->recordedSeconds = 5;

        m_stage->clock.advance(5s);

        QCOMPARE(length(), QString());
    }

    void theLengthOfAStoppedTakeIsNotRefreshed()
    {
        m_stage->control.startDisplayTimer();
        m_stage->start();
        m_stage->pressStop();
        m_stage->clock.advance(500ms);
        m_stage->window.lblRecordingDuration.setText(QStringLiteral("anything"));

        m_stage->clock.advance(5s);

        QCOMPARE(length(), QStringLiteral("anything"));
    }

    void theDisplayOfADiscardedTakeStaysEmpty()
    {
        m_stage->control.startDisplayTimer();
        m_stage->start();
        m_engine->recordedSeconds = 5;
        m_stage->control.discardTake();

        m_stage->clock.advance(5s);

        QVERIFY(m_stage->control.hasRecorder());
        QCOMPARE(length(), QString());
    }

    void theTimesOfAPlayingTakeAreShownEverySecond()
    {
        m_stage->control.startDisplayTimer();
        m_stage->writeTake("a take");
        m_stage->playback.playRecordTemp(nullptr);
        m_engine->playedSeconds = 3;
        m_engine->playerDuration = 10;

        m_stage->clock.advance(1s);

        QCOMPARE(m_stage->window.lblElapsedTimeTemp.text(), QStringLiteral("00:00:03"));
        QCOMPARE(m_stage->window.lblRemainingTimeTemp.text(), QStringLiteral("-00:00:07"));
    }

    void theClockLabelsChangeOnlyInSecondZero()
    {
        m_stage->clock.set(at("2024-03-05T09:00:30Z"));
        m_stage->control.startDisplayTimer();

        m_stage->clock.advance(29s);
        QCOMPARE(clockTexts(), QStringList(6, QString()));

        m_stage->clock.advance(1s);
        const QString time = QStringLiteral("09:01");
        const QString date = QStringLiteral("5 Mar 2024");
        QCOMPARE(clockTexts(), QStringList({time, time, time, date, date, date}));
    }

    void aLateTickLeavesTheClockAMinuteBehind()
    {
        m_stage->clock.set(at("2024-03-05T09:00:00Z"));
        m_stage->control.updateTimeDisplay();
        m_stage->clock.set(at("2024-03-05T09:00:59Z"));
        m_stage->control.updateTimeDisplay();

        m_stage->clock.set(at("2024-03-05T09:01:01Z"));
        m_stage->control.updateTimeDisplay();
        QCOMPARE(m_stage->window.textTime.text(), QStringLiteral("09:00"));

        m_stage->clock.set(at("2024-03-05T09:02:00Z"));
        m_stage->control.updateTimeDisplay();
        QCOMPARE(m_stage->window.textTime.text(), QStringLiteral("09:02"));
    }

    void theClockLabelsAreFilledOneKindAtATime()
    {
        m_stage->clock.set(at("2024-03-05T21:07:30Z"));

        m_stage->control.showTimeOfDay();
        const QString time = QStringLiteral("21:07");
        QCOMPARE(clockTexts(), QStringList({time, time, time, {}, {}, {}}));

        m_stage->control.showDate();
        const QString date = QStringLiteral("5 Mar 2024");
        QCOMPARE(clockTexts(), QStringList({time, time, time, date, date, date}));
    }

    void theDisplayTimerRunsAsLongAsItsOwner()
    {
        m_stage->control.startDisplayTimer();
        m_stage->start();
        m_stage->pressStop();
        m_stage->clock.advance(1h);
        m_stage->start();
        m_engine->recordedSeconds = 3;

        m_stage->clock.advance(1s);

        QCOMPARE(length(), QStringLiteral("00:00:03"));
    }

    void aTimeTagInEmptyNotesFollowsTwoLineEnds()
    {
        tagAt("00:01:05");

        QCOMPARE(notes().toPlainText(), QStringLiteral("\n\n00:01:05\n"));
    }

    void aTimeTagStandsAtTheEndOfTheNotes()
    {
        notes().setPlainText(QStringLiteral("Lenses at %1 and %2 %"));
        notes().moveCursor(QTextCursor::Start);

        tagAt("00:00:09");
        tagAt("00:00:20");

        QCOMPARE(notes().toPlainText(),
                 QStringLiteral("Lenses at %1 and %2 %\n\n00:00:09\n\n\n00:00:20\n"));
        QVERIFY(notes().textCursor().atEnd());
    }

    void aTimeTagIsTheTextOfTheLengthAsItStands()
    {
        tagAt("");

        QCOMPARE(notes().toPlainText(), QStringLiteral("\n\n\n"));
    }

    void oneUndoTakesATimeTagBack()
    {
        notes().setPlainText(QStringLiteral("Lenses"));

        tagAt("00:01:05");
        notes().undo();

        QCOMPARE(notes().toPlainText(), QStringLiteral("Lenses"));
    }

    void aTimeTagGivesAllNotesTheFormatOfTyping()
    {
        notes().setHtml(QStringLiteral("<b>Lenses</b> and <i>mirrors</i>"));
        notes().moveCursor(QTextCursor::End);
        QTextCharFormat typing;
        typing.setForeground(QColor(Qt::darkGreen));
        notes().setCurrentCharFormat(typing);

        tagAt("00:01:05");

        for (int place = 1; place <= notes().toPlainText().size(); ++place) {
            QTextCursor cursor(notes().document());
            cursor.setPosition(place);
            QCOMPARE(cursor.charFormat().foreground().color(), QColor(Qt::darkGreen));
            QVERIFY(!cursor.charFormat().fontItalic());
            QVERIFY(cursor.charFormat().fontWeight() != QFont::Bold);
        }
        QCOMPARE(notes().currentCharFormat().foreground().color(), QColor(Qt::darkGreen));
    }

private:
    void prepare() override
    {
        StageCase::prepare();
        m_display.emplace(m_stage->dates, window().outlets(), window().clockOutlets());
    }
    void finish() override
    {
        m_display.reset();
        StageCase::finish();
    }

    RecordingDisplay &display() { return *m_display; }
    QString partsShown()
    {
        const std::pair<QWidget *, QString> parts[] = {
            {&window().audioLevelMeter, QStringLiteral("meter")},
            {&window().imgLevelIndicatorBG, QStringLiteral("background")},
            {&window().lblRecordingDuration, QStringLiteral("length")},
            {&window().sliderPlayProgress2, QStringLiteral("slider")},
            {&window().lblElapsedTimeTemp, QStringLiteral("elapsed")},
            {&window().lblRemainingTimeTemp, QStringLiteral("remaining")}};
        QStringList shown;
        for (const auto &[part, name] : parts) {
            if (part->isVisible())
                shown << name;
        }
        return shown.join(u' ');
    }
    // Of the stop button, of the pause button where it shows, and whether there is a time tag.
    QString looks()
    {
        QStringList looks{lookOf(window().btnStopRecord)};
        if (window().btnPauseResumeRecording.isVisible())
            looks << lookOf(window().btnPauseResumeRecording);
        if (window().btnTimeTag.isVisible())
            looks << QStringLiteral("tag");
        return looks.join(QStringLiteral(", "));
    }
    QString length() const { return m_stage->window.lblRecordingDuration.text(); }
    QTextEdit &notes() { return m_stage->window.txtView; }
    QStringList clockTexts() const
    {
        const auto &window = m_stage->window;
        return {window.textTime.text(), window.textEditTime.text(), window.tEditTime.text(),
                window.textDate.text(), window.textEditDate.text(), window.tEditDate.text()};
    }
    void tagAt(const char *length)
    {
        m_stage->window.lblRecordingDuration.setText(QString::fromLatin1(length));
        m_stage->control.onSetTimeTag(&m_stage->window.btnTimeTag);
    }

    std::optional<RecordingDisplay> m_display;
};

QTEST_MAIN(RecordingDisplayTest)
#include "RecordingDisplayTest.moc"
