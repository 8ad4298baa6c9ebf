#include "lectures/LectureRecordsHandler.h"

#include "platform/Dates.h"
#include "store/LectureDatabase.h"
#include "store/Sqlite.h"

#include <QLabel>
#include <QModelIndex>
#include <QPalette>
#include <QTableView>

namespace tarvelo::lectures {

LectureRecordsHandler::LectureRecordsHandler(const platform::Dates &dates,
                                             const store::LectureDatabase &database,
                                             const Outlets &outlets)
    : m_dates(dates)
    , m_database(database)
    , m_outlets(outlets)
{
}

int LectureRecordsHandler::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 3;
}

int LectureRecordsHandler::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 1;
}

QVariant LectureRecordsHandler::data(const QModelIndex &, int) const
{
    return {};
}

void LectureRecordsHandler::awakeFromNib()
{
    showDate(m_dates.now());
    // Rows can be selected; it does not show.
    QPalette colours = m_outlets.lectureRecordsTable->palette();
    colours.setColor(QPalette::Highlight, colours.color(QPalette::Base));
    colours.setColor(QPalette::HighlightedText, colours.color(QPalette::Text));
    m_outlets.lectureRecordsTable->setPalette(colours);
    m_outlets.tblLectureRecords->setModel(this);
    reloadData();
}

void LectureRecordsHandler::showDate(const QDateTime &date)
{
    // The year of the week is wanted here.
    m_outlets.lblDateDisplay->setText(m_dates.format(date, QStringLiteral("d MMMM YYYY")));
}

void LectureRecordsHandler::setDateToDisplay(const QDateTime &date)
{
    showDate(date);
    m_dateOfDisplay = date;
}

void LectureRecordsHandler::prepareList()
{
    m_nsmArrLectureRecords.clear();
    reloadData();
    if (!m_database.connection())
        return;
    const auto rows = m_database.connection()->executeQueryArguments(
        QStringLiteral("select * from TblToDoList WHERE (strftime('%Y-%m-%d', ToDoDate)) = ? ORDER "
                       "BY ID DESC"),
        {m_dates.storedDay(m_dateOfDisplay)});
    if (rows)
        m_nsmArrLectureRecords = *rows;
}

void LectureRecordsHandler::reloadData()
{
    beginResetModel();
    endResetModel();
}

} // namespace tarvelo::lectures
