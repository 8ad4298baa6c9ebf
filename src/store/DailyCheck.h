#pragma once

#include "platform/DelayedCall.h"
#include "store/Integrity.h"
#include "store/IntegrityCheck.h"

#include <QString>

#include <chrono>
#include <memory>

namespace tarvelo::platform {
class Clock;
}

namespace tarvelo::store {

class LectureDatabase;

// Has the whole database looked at once a day, also when the program runs for weeks, and mended
// when it is damaged. The day is remembered beside the copies. Main thread only.
class DailyCheck final
{
public:
    // The first windows are up and the student has begun by then.
    static constexpr std::chrono::seconds AfterStart{20};
    static constexpr std::chrono::hours LookInterval{1};

    // Both outlive this object, which stops what it does at once when it goes.
    DailyCheck(LectureDatabase &database, platform::Clock &clock);
    DailyCheck(const DailyCheck &) = delete;
    DailyCheck &operator=(const DailyCheck &) = delete;

    bool isChecking() const { return m_check != nullptr; }

private:
    void checkIfDue();
    void end(Integrity integrity);
    QString today() const;
    QString dayPath() const;

    LectureDatabase &m_database;
    platform::Clock &m_clock;
    platform::DelayedCall m_next;
    std::unique_ptr<IntegrityCheck> m_check;
    QString m_checkedDay; // also where it could not be written down
};

} // namespace tarvelo::store
