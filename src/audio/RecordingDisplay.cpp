#include "audio/RecordingDisplay.h"

#include "audio/DurationText.h"
#include "audio/StopButton.h"
#include "platform/Dates.h"
#include "widgets/ImageButton.h"
#include "widgets/LevelIndicator.h"
#include "widgets/WholeText.h"

#include <QLabel>
#include <QSlider>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextEdit>
#include <QWidget>

namespace tarvelo::audio {

using platform::Dates;
using widgets::ImageButton;

namespace {

// The looks of the two buttons, each with its pressed image and tool tip.
void lookPause(ImageButton &button)
{
    button.setLook(QStringLiteral("BtnPause"), QStringLiteral("BtnPauseH"),
                   QStringLiteral("Pause"));
}

void lookResume(ImageButton &button)
{
    button.setLook(QStringLiteral("record"), QStringLiteral("recordH"), QStringLiteral("Resume"));
}

void showEither(const RecordingOutlets &outlets, bool isLevel)
{
    outlets.audioLevelMeter->setVisible(isLevel);
    outlets.imgLevelIndicatorBG->setVisible(isLevel);
    outlets.lblRecordingDuration->setVisible(isLevel);
    outlets.sliderPlayProgress2->setVisible(!isLevel);
    outlets.lblElapsedTimeTemp->setVisible(!isLevel);
    outlets.lblRemainingTimeTemp->setVisible(!isLevel);
}

} // namespace

void showLevel(const RecordingOutlets &outlets)
{
    showEither(outlets, true);
}

void showPlayer(const RecordingOutlets &outlets)
{
    showEither(outlets, false);
}

RecordingDisplay::RecordingDisplay(const Dates &dates, const RecordingOutlets &outlets,
                                   const ClockOutlets &clock)
    : m_dates(dates)
    , m_outlets(outlets)
    , m_clockLabels(clock)
{
}

bool RecordingDisplay::isPauseOn() const
{
    return m_outlets.btnPauseResumeRecording->state() == 1;
}

void RecordingDisplay::takeStarts()
{
    showLevel(m_outlets);
    lookLikeRedStop(*m_outlets.btnStopRecord);
    m_outlets.btnStopRecord->setEnabled(true);
    m_outlets.btnTimeTag->show();
}

void RecordingDisplay::offerPause(QWidget *pressed)
{
    ImageButton &pause = *m_outlets.btnPauseResumeRecording;
    // A take that was left while it was paused left the toggle on.
    if (isPauseOn()) {
        pause.setState(0);
        lookPause(pause);
    }
    // Shown before the pressed one hides, so that the keyboard focus has where to go.
    pause.setEnabled(true);
    pause.show();
    if (!pressed)
        return;
    if (pressed->hasFocus())
        pause.setFocus();
    pressed->hide();
}

void RecordingDisplay::takePauses()
{
    lookResume(*m_outlets.btnPauseResumeRecording);
    lookLikeStop(*m_outlets.btnStopRecord);
    m_outlets.audioLevelMeter->setFloatValue(0);
    m_outlets.btnTimeTag->hide();
}

void RecordingDisplay::takeGoesOn()
{
    lookPause(*m_outlets.btnPauseResumeRecording);
    lookLikeRedStop(*m_outlets.btnStopRecord);
    m_outlets.btnTimeTag->show();
}

void RecordingDisplay::takeStops()
{
    m_outlets.btnPauseResumeRecording->hide();
    disablePause();
    // Out and in again: the start button stays hidden, as is wanted.
    m_outlets.btnStartRecord->setHidden(false);
    m_outlets.btnStartRecord->setHidden(true);
    lookLikePlay(*m_outlets.btnStopRecord);
    m_outlets.btnTimeTag->hide();
}

void RecordingDisplay::enablePause()
{
    m_outlets.btnPauseResumeRecording->setEnabled(true);
}

void RecordingDisplay::disablePause()
{
    m_outlets.btnPauseResumeRecording->setState(0);
    m_outlets.btnPauseResumeRecording->setEnabled(false);
}

void RecordingDisplay::takeHasEnded(double seconds)
{
    lookPause(*m_outlets.btnPauseResumeRecording);
    clear();
    showLength(seconds);
}

void RecordingDisplay::clear()
{
    m_outlets.audioLevelMeter->setFloatValue(0);
    m_outlets.lblRecordingDuration->setText(QString());
}

void RecordingDisplay::showLength(double seconds)
{
    m_outlets.lblRecordingDuration->setText(getDuration(wholeSeconds(seconds)));
}

void RecordingDisplay::appendTimeTag()
{
    QTextEdit &notes = *m_outlets.txtView;
    const QString text =
        QStringLiteral("%1\n\n%2\n")
            .arg(widgets::wholeText(notes), m_outlets.lblRecordingDuration->text());
    // One replacement with the format that typing has, so that one undo takes the tag back.
    const QTextCharFormat typing = notes.currentCharFormat();
    QTextCursor cursor = notes.textCursor();
    cursor.select(QTextCursor::Document);
    cursor.insertText(text, typing);
    notes.setTextCursor(cursor);
}

void RecordingDisplay::tick()
{
    if (m_dates.formatFixed(m_dates.now(), QStringLiteral("ss")).toInt() != 0)
        return;
    showTimeOfDay();
    showDate();
}

void RecordingDisplay::showTimeOfDay()
{
    const QString time = m_dates.format(m_dates.now(), Dates::Style::None, Dates::Style::Short);
    for (QLabel *label :
         {m_clockLabels.textTime, m_clockLabels.textEditTime, m_clockLabels.tEditTime})
        label->setText(time);
}

void RecordingDisplay::showDate()
{
    const QString date = m_dates.format(m_dates.now(), Dates::Style::Medium, Dates::Style::None);
    for (QLabel *label :
         {m_clockLabels.textDate, m_clockLabels.textEditDate, m_clockLabels.tEditDate})
        label->setText(date);
}

} // namespace tarvelo::audio
