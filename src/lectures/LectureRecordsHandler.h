#pragma once

#include <QAbstractTableModel>
#include <QDateTime>
#include <QVariant>
#include <QVariantMap>

class QLabel;
class QModelIndex;
class QTableView;

namespace tarvelo::platform {
class Dates;
}
namespace tarvelo::store {
class LectureDatabase;
}

namespace tarvelo::lectures {

// A list of things to do for a day, beside the lectures. The table that it reads is not part of the
// database, so the list stays empty, which is wanted; nothing in the program asks for it yet.
class LectureRecordsHandler final : public QAbstractTableModel
{
    Q_OBJECT

public:
    struct Outlets
    {
        QLabel *lblDateDisplay = nullptr;
        QTableView *lectureRecordsTable = nullptr;
        QTableView *tblLectureRecords = nullptr;
    };

    LectureRecordsHandler(const platform::Dates &dates, const store::LectureDatabase &database,
                          const Outlets &outlets);

    const QDateTime &dateOfDisplay() const { return m_dateOfDisplay; }
    const QList<QVariantMap> &nsmArrLectureRecords() const { return m_nsmArrLectureRecords; }
    // Always three, whatever the list holds.
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    void awakeFromNib();
    void setDateToDisplay(const QDateTime &date);
    void prepareList();

private:
    void showDate(const QDateTime &date);
    void reloadData();

    const platform::Dates &m_dates;
    const store::LectureDatabase &m_database;
    Outlets m_outlets;
    QDateTime m_dateOfDisplay;
    QList<QVariantMap> m_nsmArrLectureRecords;
};

} // namespace tarvelo::lectures
