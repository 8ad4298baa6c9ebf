#pragma once

#include "calendar/CalendarDelegate.h"

#include <QDateTime>
#include <QList>

namespace tarvelo::tests {

// Stands for the application above the calendar: answers what the test sets, records what it hears.
class CalendarDouble final : public calendar::CalendarDelegate
{
public:
    bool isTarveloViewShowing() const override { return listShows; }
    bool isRecordingNow() const override { return records; }
    store::Sqlite *getTheDB() override
    {
        ++databaseAsked;
        return database;
    }
    void calendarDidSelectDate(calendar::CKCalendarView *, const QDateTime &date) override
    {
        selected.append(date);
    }

    bool listShows = false;
    bool records = false;
    store::Sqlite *database = nullptr;
    int databaseAsked = 0;
    QList<QDateTime> selected;
};

} // namespace tarvelo::tests
