#pragma once

class QDateTime;

namespace tarvelo::store {
class Sqlite;
}

namespace tarvelo::calendar {

class CKCalendarView;

// What the calendar asks of the application, and the one thing that it tells.
class CalendarDelegate
{
public:
    CalendarDelegate() = default;
    CalendarDelegate(const CalendarDelegate &) = delete;
    CalendarDelegate &operator=(const CalendarDelegate &) = delete;
    virtual ~CalendarDelegate() = default;

    // Whether the list of lectures is on screen: only then does a month step select a day.
    virtual bool isTarveloViewShowing() const = 0;
    virtual bool isRecordingNow() const = 0;
    // None when there is no database.
    virtual store::Sqlite *getTheDB() = 0;

    // Told at every press of a day, also when the calendar itself presses it.
    virtual void calendarDidSelectDate(CKCalendarView *calendarView, const QDateTime &date) = 0;
};

} // namespace tarvelo::calendar
