#include "lectures/DayList.h"

#include "lectures/WindowWidths.h"
#include "platform/Dates.h"
#include "store/GoneLectures.h"
#include "store/LectureDatabase.h"
#include "store/LectureInfoItem.h"
#include "store/LectureRows.h"
#include "widgets/ImageButton.h"
#include "widgets/SlidingWindow.h"

#include <QLabel>
#include <QSet>
#include <QVariantMap>
#include <QWidget>

#include <cstddef>
#include <memory>
#include <utility>

namespace tarvelo::lectures {

using platform::Dates;

DayList::DayList(const Dates &dates, store::LectureDatabase &database,
                 const MainWindowOutlets &outlets, std::function<void()> reload)
    : m_dates(dates)
    , m_database(database)
    , m_outlets(outlets)
    , m_reload(std::move(reload))
{
}

Lecture DayList::lectureAt(int row) const
{
    return row >= 0 && row < static_cast<int>(m_arrangedObjects.size())
               ? m_arrangedObjects[static_cast<std::size_t>(row)]
               : nullptr;
}

QWidget &DayList::emptyDayPanel() const
{
    return *m_outlets.btnAddNewLecture2->parentWidget()->parentWidget();
}

bool DayList::isDayOpen(const QDateTime &date) const
{
    const QDateTime now = m_dates.now();
    return now <= date || m_dates.isSameDay(now, date);
}

void DayList::prepareViewForDate(const QDateTime &date)
{
    m_dateOfButtonClicked = date;
    m_month.reset();
    m_outlets.btnDeleteItem->hide();
    const bool isOpen = isDayOpen(date);
    m_outlets.btnAddItem->setHidden(!isOpen);
    m_arrangedObjects.clear();
    fill(rowsOfDay());
    enableDeleteItem();
    emptyDayPanel().setVisible(isOpen && m_arrangedObjects.empty());
    m_reload();
}

void DayList::showAllList(const QDateTime &date)
{
    m_month = date;
    m_outlets.btnDeleteItem->hide();
    m_outlets.lblDateDisplay->setText(AllList);
    m_outlets.lblDateDisplay->setAccessibleName(AllList);
    fillWithAll();
    m_outlets.mainWindow->setFrameWidth(ListShownWidth, true);
}

void DayList::fillWithAll()
{
    m_arrangedObjects.clear();
    fill(rowsOfMonth());
    m_reload();
    showWhetherEmpty();
}

void DayList::showAgain()
{
    if (m_month)
        fillWithAll();
    else if (m_dateOfButtonClicked.isValid())
        prepareViewForDate(m_dateOfButtonClicked);
}

std::optional<store::Rows> DayList::rowsOfDay() const
{
    return m_database.lecturesOfDay(m_dates.askedDay(m_dateOfButtonClicked));
}

// Under the fixed locale, as for a day. The month alone counts, so this shows it of every year, in
// the order of the file: wanted so.
std::optional<store::Rows> DayList::rowsOfMonth() const
{
    return m_database.lecturesOfMonth(m_dates.formatFixed(*m_month, QStringLiteral("MM")));
}

void DayList::appendNewcomers()
{
    if (!m_month && !m_dateOfButtonClicked.isValid())
        return;
    QSet<qint64> shown;
    // The ID of one that has gone may be a newcomer's.
    for (const Lecture &lecture : m_arrangedObjects)
        if (lecture->hasRow())
            shown.insert(lecture->getRecordUniqueID());
    auto rows = m_month ? rowsOfMonth() : rowsOfDay();
    if (rows)
        rows->removeIf([&shown](const QVariantMap &row) {
            return shown.contains(row.value(QStringLiteral("ID")).toLongLong());
        });
    // A past day without lectures stays without the panel.
    if (!rows || rows->isEmpty())
        return;
    fill(rows);
    m_reload();
    showWhetherEmpty();
}

void DayList::append(const Lecture &lecture)
{
    m_arrangedObjects.push_back(lecture);
    m_reload();
}

void DayList::removeObject(int row)
{
    if (lectureAt(row))
        m_arrangedObjects.erase(m_arrangedObjects.begin() + row);
}

void DayList::lecturesHaveGone(const store::GoneLectures &gone)
{
    for (const Lecture &lecture : m_arrangedObjects)
        gone.mark(*lecture);
}

void DayList::lecturesCameBack(const store::LecturesBack &back)
{
    for (const Lecture &lecture : m_arrangedObjects)
        m_database.giveRowBack(*lecture, back);
}

void DayList::showWhetherEmpty()
{
    enableDeleteItem();
    emptyDayPanel().setVisible(m_arrangedObjects.empty());
}

void DayList::fill(const std::optional<store::Rows> &rows)
{
    if (!rows)
        return;
    m_arrangedObjects.reserve(static_cast<std::size_t>(rows->size()));
    for (const QVariantMap &row : *rows)
        m_arrangedObjects.push_back(
            std::make_shared<store::LectureInfoItem>(store::lectureFromRow(row)));
}

void DayList::enableDeleteItem()
{
    m_outlets.btnDeleteItem->setEnabled(!m_arrangedObjects.empty());
}

} // namespace tarvelo::lectures
