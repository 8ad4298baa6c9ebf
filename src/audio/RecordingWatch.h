#pragma once

#include "audio/RecordingOutlets.h"
#include "platform/Clock.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

class QLabel;

namespace tarvelo::audio {

class RecordingControl;

// While the new-lecture window is on the screen a line of it says what would cost the lecture: a
// disk with little room left, or a microphone that gives nothing to hear. Where both is so, each
// has its line. It never interrupts, and changes nothing of the recording.
class RecordingWatch final : public QObject
{
public:
    // The bytes that may still be written into this folder; none when nobody can say.
    using Room = std::function<std::optional<qint64>(const QString &folder)>;

    // What a second of a take needs on the disk at the most. Asked for 80 kbit/s the coder gave 82
    // to 92 on noise and on speech, and what the growing file has around the sound makes it 3 more.
    static constexpr qint64 BytesASecond = 12000;

    // `clock`, `recording` and the controls outlive the watch. `take` gives the path of the take.
    RecordingWatch(platform::Clock &clock, const RecordingControl &recording,
                   const RecordingOutlets &outlets, std::function<QString()> take, Room room);

    bool eventFilter(QObject *window, QEvent *event) override;

    // Shows `words` in the line, in the colour of texts unless they warn, and hides it when there
    // are none.
    static void say(QLabel &line, const QString &words, bool isWarning);

private:
    enum class RoomLeft { Enough, Little, HardlyAny };

    void begin();
    void end();
    void tick();
    void measureRoom();
    void listen();
    bool isRoomBelow(qint64 minutes, bool isShown) const;
    RoomLeft roomLeft() const;
    QString textOf(RoomLeft room) const;
    void show(RoomLeft room, bool isNothingHeard);
    void announce(const QString &words) const;

    platform::Clock &m_clock;
    const RecordingControl &m_recording;
    RecordingOutlets m_outlets;
    std::function<QString()> m_take;
    Room m_room;
    std::unique_ptr<platform::Clock::Pending> m_ticks;
    RoomLeft m_shownRoom = RoomLeft::Enough;
    QString m_shownRoomText;
    bool m_isSilenceShown = false;

    int m_ticksUntilRoom = 0;
    std::optional<qint64> m_minutes; // for which there is room

    int m_stretch = 0;
    double m_arrived = 0;
    double m_quietFrom = 0;   // as m_arrived was then
    int m_secondsWithout = 0; // any sound arriving, since then
    bool m_isNothingHeard = false;
    bool m_isHeardAgain = false; // since the tick before
};

} // namespace tarvelo::audio
