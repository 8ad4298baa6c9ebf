#include "audio/RecordingWatch.h"

#include "audio/RecordingControl.h"
#include "audio/engine/Reserve.h"
#include "platform/Announcer.h"
#include "platform/Texts.h"

#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>

using namespace std::chrono_literals;

namespace tarvelo::audio {

namespace {

constexpr auto Tick = 1s;
constexpr int TicksBetweenLooksAtTheDisk = 5;
constexpr qint64 FewMinutes = 30;
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
    show(Warning::None);
}

void RecordingWatch::tick()
{
    if (m_ticksUntilRoom-- == 0) {
        m_ticksUntilRoom = TicksBetweenLooksAtTheDisk - 1;
        measureRoom();
    }
    listen();
    show(warning());
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
bool RecordingWatch::isRoomBelow(qint64 minutes, Warning now) const
{
    return m_minutes && *m_minutes < (m_shown == now ? minutes + 1 : minutes);
}

RecordingWatch::Warning RecordingWatch::warning() const
{
    if (isRoomBelow(LastMinutes, Warning::HardlyAnyRoom))
        return Warning::HardlyAnyRoom;
    if (m_isNothingHeard)
        return Warning::NothingHeard;
    return isRoomBelow(FewMinutes, Warning::LittleRoom) ? Warning::LittleRoom : Warning::None;
}

QString RecordingWatch::textOf(Warning warning) const
{
    const QString minutes = QLocale().toString(m_minutes.value_or(0));
    switch (warning) {
    case Warning::LittleRoom:
        return platform::text("RECORDING_LITTLE_ROOM").arg(minutes);
    case Warning::HardlyAnyRoom:
        return platform::text("RECORDING_HARDLY_ANY_ROOM").arg(minutes);
    case Warning::NothingHeard:
        return platform::text("RECORDING_NOTHING_HEARD");
    case Warning::None:
        break;
    }
    return {};
}

// Minutes that go by are said aloud only when they are the last ones: a lecture goes on meanwhile.
void RecordingWatch::show(Warning warning)
{
    QLabel &line = *m_outlets.lblRecordingWarning;
    const QString words = textOf(warning);
    const bool isNews =
        words != line.text() && (warning != m_shown || warning == Warning::HardlyAnyRoom);
    m_shown = warning;
    line.setText(words);
    line.setHidden(words.isEmpty());
    if (isNews && !words.isEmpty())
        announce(words);
    else if (m_isHeardAgain && words.isEmpty())
        announce(platform::text("ANNOUNCE_SOUND_HEARD_AGAIN"));
}

void RecordingWatch::announce(const QString &words) const
{
    platform::announce(*m_outlets.newNoteWindow, words);
}

} // namespace tarvelo::audio
