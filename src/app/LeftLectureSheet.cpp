#include "app/LeftLectureSheet.h"

#include "app/Sheet.h"
#include "audio/DurationText.h"
#include "audio/engine/AudioEngine.h"
#include "audio/engine/SoundBytes.h"
#include "platform/Announcer.h"
#include "platform/Dates.h"
#include "platform/Texts.h"
#include "store/LectureJournal.h"
#include "widgets/Colours.h"

#include <QDateTime>
#include <QDialog>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaObject>
#include <QPalette>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>

#include <utility>

namespace tarvelo::app {

namespace {

using platform::Dates;
using platform::text;

constexpr int Width = 420;
constexpr int GapBetweenRows = 4;

// What a value is of is said quietly beside it.
void addRow(QFormLayout &form, const char *key, QLabel &value)
{
    auto *name = new QLabel(text(key));
    widgets::setColour(*name, QPalette::WindowText, widgets::colours().faint);
    name->setBuddy(&value);
    form.addRow(name, &value);
}

bool isBroken(const QLabel &label)
{
    return label.heightForWidth(label.width()) > label.heightForWidth(QWIDGETSIZE_MAX);
}

// Beside a single line a name stands in the middle, since its letters may be of another font.
void putOnFirstLine(QLabel &name, const QLabel &value)
{
    name.setAlignment(leadingSide(name) | (isBroken(value) ? Qt::AlignTop : Qt::AlignVCenter));
}

QFormLayout *formOf(QLabel &subject, QLabel &day, QLabel &length)
{
    auto *form = new QFormLayout;
    form->setVerticalSpacing(GapBetweenRows);
    addRow(*form, "LABEL_SUBJECT", subject);
    addRow(*form, "LABEL_LECTURE_DAY", day);
    addRow(*form, "LABEL_RECORDING_DURATION", length);
    return form;
}

QPushButton *button(const char *name, const char *key)
{
    auto *made = new QPushButton(text(key));
    made->setObjectName(QLatin1StringView(name));
    // Return is for the one that keeps, wherever the keyboard is not on another one.
    made->setAutoDefault(false);
    return made;
}

} // namespace

LeftLectureSheet::LeftLectureSheet(audio::LeftLectures &left, const platform::Dates &dates,
                                   engine::AudioEngine &engine, QWidget &mainWindow)
    : m_left(left)
    , m_dates(dates)
    , m_engine(engine)
    , m_mainWindow(mainWindow)
    , m_sheet(makeSheet(mainWindow))
{
    build();
}

LeftLectureSheet::~LeftLectureSheet()
{
    delete m_sheet;
}

void LeftLectureSheet::build()
{
    m_sheet->setObjectName(QStringLiteral("leftLectureSheet"));
    m_sheet->setWindowTitle(text("TITLE_LEFT_LECTURE"));

    m_explained = makeWrappedLabel("explained");
    m_subject = makeWrappedLabel("leftSubject");
    m_day = makeWrappedLabel("leftDay");
    m_length = makeWrappedLabel("leftLength");
    m_outcome = makeWrappedLabel("outcome");
    m_outcome->hide();

    m_listen = button("listen", "BUTTON_LISTEN");
    auto *discarding = button("discard", "BUTTON_DISCARD_LECTURE");
    m_keep = button("keep", "BUTTON_KEEP_LECTURE");
    m_keep->setDefault(true);
    auto *buttons = makeButtonRow();
    buttons->addWidget(m_listen);
    buttons->addStretch();
    buttons->addWidget(discarding);
    buttons->addWidget(m_keep);
    auto *column = new QVBoxLayout(m_sheet);
    column->addWidget(m_explained);
    column->addLayout(formOf(*m_subject, *m_day, *m_length));
    column->addWidget(m_outcome);
    column->addLayout(buttons);
    setSheetWidth(*m_sheet, Width);

    connect(m_listen, &QPushButton::clicked, this, &LeftLectureSheet::listenOrPause);
    connect(discarding, &QPushButton::clicked, this, &LeftLectureSheet::discard);
    connect(m_keep, &QPushButton::clicked, this, &LeftLectureSheet::keep);
    connect(m_sheet, &QDialog::finished, this, &LeftLectureSheet::stopListening);
}

void LeftLectureSheet::offer()
{
    m_waiting = m_left.undecided();
    if (m_waiting.isEmpty())
        return;
    if (!m_mainWindow.isVisible()) {
        m_mainWindow.installEventFilter(this);
        return;
    }
    showFirst();
    m_sheet->open();
    m_keep->setFocus();
}

bool LeftLectureSheet::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_mainWindow && event->type() == QEvent::Show) {
        m_mainWindow.removeEventFilter(this);
        QMetaObject::invokeMethod(this, &LeftLectureSheet::offer, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void LeftLectureSheet::showFirst()
{
    const audio::LeftLectures::LeftLecture &left = m_waiting.first();
    const QDateTime day = m_dates.readStoredDay(left.journal.day);
    m_subject->setText(store::subjectToStore(left.journal.subject));
    // One that another calendar wrote is shown as it wrote it.
    m_day->setText(day.isValid() ? m_dates.format(day, Dates::Style::Full, Dates::Style::None)
                                 : left.journal.day);
    m_length->setText(left.takePath.isEmpty()
                          ? text("MSG_NO_AUDIO_FOR_LECTURE")
                          : audio::getDuration(audio::wholeSeconds(left.seconds)));
    m_listen->setEnabled(left.seconds > 0);
    // Who cannot listen is not told to.
    m_explained->setText(
        text(m_listen->isEnabled() ? "LEFT_LECTURE_EXPLAINED" : "LEFT_LECTURE_EXPLAINED_NO_AUDIO"));
    m_outcome->hide();
    m_sheet->setAccessibleDescription(m_explained->text() + u' ' + m_subject->text() +
                                      QStringLiteral(", ") + m_day->text() + QStringLiteral(", ") +
                                      m_length->text());
    fit();
}

void LeftLectureSheet::fit()
{
    fitToTexts(*m_sheet);
    for (QLabel *name : m_sheet->findChildren<QLabel *>()) {
        if (const auto *value = qobject_cast<QLabel *>(name->buddy()))
            putOnFirstLine(*name, *value);
    }
}

void LeftLectureSheet::goOn()
{
    stopListening();
    m_waiting.removeFirst();
    if (m_waiting.isEmpty()) {
        m_sheet->accept();
        return;
    }
    showFirst();
    m_keep->setFocus();
    platform::announce(*m_sheet, m_sheet->accessibleDescription());
}

void LeftLectureSheet::keep()
{
    stopListening();
    if (m_left.keep(m_waiting.first()) == audio::LeftLectures::Kept::Undecided) {
        m_outcome->setText(text("LEFT_LECTURE_NOT_NOW"));
        m_outcome->show();
        fit();
        platform::announce(*m_sheet, m_outcome->text());
        return;
    }
    Q_EMIT lectureKept();
    platform::announce(m_mainWindow, text("ANNOUNCE_LECTURE_SAVED"));
    goOn();
}

void LeftLectureSheet::discard()
{
    stopListening();
    m_left.discard(m_waiting.first());
    goOn();
}

void LeftLectureSheet::listenOrPause()
{
    if (!m_player) {
        m_player = m_engine.makePlayer(engine::soundBytesOf(m_waiting.first().takePath));
        if (!m_player)
            return;
        m_player->setDelegate(this);
        m_player->prepareToPlay();
    }
    if (m_player->isPlaying())
        m_player->pause();
    else
        m_player->play();
    showWhetherPlaying();
}

void LeftLectureSheet::audioPlayerDidFinishPlayingSuccessfully(engine::AudioPlayer *, bool)
{
    stopListening();
}

// The player may be the one that calls.
void LeftLectureSheet::stopListening()
{
    if (!m_player)
        return;
    m_player->setDelegate(nullptr);
    m_player->stop();
    QMetaObject::invokeMethod(
        this, [gone = std::shared_ptr<engine::AudioPlayer>(std::move(m_player))] {},
        Qt::QueuedConnection);
    showWhetherPlaying();
}

void LeftLectureSheet::showWhetherPlaying()
{
    const bool isPlaying = m_player && m_player->isPlaying();
    m_listen->setText(text(isPlaying ? "BUTTON_PAUSE" : "BUTTON_LISTEN"));
}

} // namespace tarvelo::app
