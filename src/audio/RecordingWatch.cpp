#include "audio/RecordingWatch.h"

#include "audio/RecordingControl.h"
#include "audio/engine/Hearing.h"
#include "audio/engine/Reserve.h"
#include "platform/Announcer.h"
#include "platform/Texts.h"
#include "widgets/Colours.h"

#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QPalette>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace tarvelo::audio {

namespace {

constexpr auto Tick = 1s;
constexpr int TicksBetweenLooksAtTheDisk = 5;
constexpr qint64 LittleRoomMinutes = 30;
constexpr qint64 LastMinutes = 5;
constexpr double LongestQuiet = 10;

} // namespace

RecordingWatch::RecordingWatch(platform::Clock &clock, const RecordingControl &recording,
                               const RecordingOutlets &outlets, std::function<QString()> take,
                               Room room)
    : m_clock(clock)
    , m_recording(recording)
    , m_outlets(outlets)
    , m_take(std::move(take))
    , m_room(std::move(room))
{
    m_outlets.newNoteWindow->installEventFilter(this);
}

bool RecordingWatch::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Show && !event->spontaneous())
        begin();
    else if (event->type() == QEvent::Hide && !event->spontaneous())
        end();
    return false;
}

void RecordingWatch::begin()
{
    m_ticksUntilRoom = 0;
    m_ticks = m_clock.callEvery(Tick, [this] { tick(); });
    tick();
}

void RecordingWatch::end()
{
    m_ticks.reset();
    m_minutes.reset();
    m_isNothingHeard = false;
    m_isHeardAgain = false;
    show(RoomLeft::Enough, false);
}

void RecordingWatch::tick()
{
    if (m_ticksUntilRoom-- == 0) {
        m_ticksUntilRoom = TicksBetweenLooksAtTheDisk - 1;
        measureRoom();
    }
    listen();
    show(roomLeft(), m_isNothingHeard);
}

void RecordingWatch::measureRoom()
{
    const std::optional<qint64> bytes = m_room(QFileInfo(m_take()).path());
    m_minutes.reset();
    if (!bytes)
        return;
    // A take has put its reserve aside; before it, what it will put aside does not count either.
    const bool holds = m_recording.recording() && m_recording.hasRecorder();
    m_minutes = (*bytes - (holds ? 0 : engine::Reserve::sizeOn(*bytes))) / (60 * BytesASecond);
}

// Quiet is counted in sound, and where none arrives in ticks: neither a computer that was asleep
// nor a clock that was set makes it longer.
void RecordingWatch::listen()
{
    const engine::SoundHeard now = m_recording.soundHeard();
    const RecordingControl::Stretch &stretch = m_recording.stretch();
    const bool begins = stretch.number != m_stretch;
    const double quietFrom = std::max(begins ? stretch.begin : m_quietFrom, now.lastHeard);
    m_isHeardAgain = m_isNothingHeard && !begins && quietFrom > m_quietFrom;
    if (begins || quietFrom > m_quietFrom)
        m_secondsWithout = 0;
    else if (now.arrived <= m_arrived)
        ++m_secondsWithout;
    m_stretch = stretch.number;
    m_arrived = now.arrived;
    m_quietFrom = quietFrom;
    m_isNothingHeard =
        m_recording.isTakingSound() && now.arrived - m_quietFrom + m_secondsWithout >= LongestQuiet;
}

// A minute more than its limit is what takes a line back, so that it does not come and go while
// other programs write a little and delete a little.
bool RecordingWatch::isRoomBelow(qint64 minutes, bool isShown) const
{
    return m_minutes && *m_minutes < (isShown ? minutes + 1 : minutes);
}

RecordingWatch::RoomLeft RecordingWatch::roomLeft() const
{
    if (isRoomBelow(LastMinutes, m_shownRoom == RoomLeft::HardlyAny))
        return RoomLeft::HardlyAny;
    return isRoomBelow(LittleRoomMinutes, m_shownRoom == RoomLeft::Little) ? RoomLeft::Little
                                                                           : RoomLeft::Enough;
}

QString RecordingWatch::textOf(RoomLeft room) const
{
    if (room == RoomLeft::Enough)
        return {};
    const char *key =
        room == RoomLeft::Little ? "RECORDING_LITTLE_ROOM" : "RECORDING_HARDLY_ANY_ROOM";
    return platform::text(key).arg(QLocale().toString(m_minutes.value_or(0)));
}

// Minutes that go by are said aloud only when they are the last ones: a lecture goes on meanwhile.
void RecordingWatch::show(RoomLeft room, bool isNothingHeard)
{
    const QString ofRoom = textOf(room);
    QStringList lines;
    QStringList news;
    if (room != RoomLeft::Enough) {
        lines.append(ofRoom);
        if (room != m_shownRoom || (room == RoomLeft::HardlyAny && ofRoom != m_shownRoomText))
            news.append(ofRoom);
    }
    if (isNothingHeard) {
        lines.append(platform::text("RECORDING_NOTHING_HEARD"));
        if (!m_isSilenceShown)
            news.append(lines.last());
    } else if (m_isHeardAgain) {
        news.append(platform::text("ANNOUNCE_SOUND_HEARD_AGAIN"));
    }
    m_shownRoom = room;
    m_shownRoomText = ofRoom;
    m_isSilenceShown = isNothingHeard;
    say(*m_outlets.lblRecordingWarning, lines.join(u'\n'),
        room == RoomLeft::HardlyAny || isNothingHeard);
    if (!news.isEmpty())
        announce(news.join(u' '));
}

void RecordingWatch::say(QLabel &line, const QString &words, bool isWarning)
{
    QPalette palette = line.palette();
    palette.setColor(QPalette::WindowText,
                     isWarning ? widgets::colours().warning : widgets::colours().ink);
    line.setPalette(palette);
    line.setText(words);
    line.setHidden(words.isEmpty());
}

void RecordingWatch::announce(const QString &words) const
{
    platform::announce(*m_outlets.newNoteWindow, words);
}

} // namespace tarvelo::audio
