#pragma once

#include "lectures/LectureList.h"
#include "lectures/LectureOutlets.h"
#include "store/Sqlite.h"

#include <QDateTime>
#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace tarvelo::platform {
class Dates;
}
namespace tarvelo::store {
class LectureDatabase;
struct GoneLectures;
struct LecturesBack;
} // namespace tarvelo::store

namespace tarvelo::lectures {

// The heading while all are shown, in every language.
inline const QString AllList = QStringLiteral("All List");

// The lectures shown: those of one day, or of one month of every year as "All List". It also says
// what the day shown can take: past days get no new lectures.
class DayList final
{
public:
    // All references must outlive this object. `reload` makes the table read the list again.
    DayList(const platform::Dates &dates, store::LectureDatabase &database,
            const MainWindowOutlets &outlets, std::function<void()> reload);
    DayList(const DayList &) = delete;
    DayList &operator=(const DayList &) = delete;

    const LectureList &arrangedObjects() const { return m_arrangedObjects; }
    // Rows count from 0; none for a row that is not there.
    Lecture lectureAt(int row) const;
    // The day that the list was last shown for, under which new lectures are stored; invalid before
    // the first.
    const QDateTime &dateOfButtonClicked() const { return m_dateOfButtonClicked; }
    // Today and every later day are open. The very instant of `date` counts as open too.
    bool isDayOpen(const QDateTime &date) const;

    void prepareViewForDate(const QDateTime &date);
    // `date` names the month.
    void showAllList(const QDateTime &date);
    // What shows, read from the store again. Nothing before the first.
    void showAgain();
    // Those that came into the store since, behind the others: no row gets another place.
    void appendNewcomers();
    // Stands last until the list is next built from the store, though the store gives the newest
    // first: wanted so.
    void append(const Lecture &lecture);
    // A row that is not there is ignored. The table is not told.
    void removeObject(int row);
    // Those that show and went with others stay, and are not taken for those that get their IDs.
    void lecturesHaveGone(const store::GoneLectures &gone);
    void lecturesCameBack(const store::LecturesBack &back);
    // The delete button and the empty-day panel after a lecture came or went. The panel follows the
    // list alone, whether or not the day is open, which is wanted.
    void showWhetherEmpty();

private:
    void fill(const std::optional<store::Rows> &rows);
    void fillWithAll();
    std::optional<store::Rows> rowsOfDay() const;
    std::optional<store::Rows> rowsOfMonth() const;
    void enableDeleteItem();
    // The panel that says that a day has no lectures lies two levels above its button.
    QWidget &emptyDayPanel() const;

    const platform::Dates &m_dates;
    store::LectureDatabase &m_database;
    MainWindowOutlets m_outlets;
    std::function<void()> m_reload;
    LectureList m_arrangedObjects;
    QDateTime m_dateOfButtonClicked;
    // Set while all are shown.
    std::optional<QDateTime> m_month;
};

} // namespace tarvelo::lectures
