#pragma once

#include "lectures/LectureList.h"
#include "lectures/LectureOutlets.h"
#include "lectures/RowAction.h"

#include <QObject>

#include <functional>

class QWidget;

namespace tarvelo::store {
class LectureDatabase;
class LectureInfoItem;
} // namespace tarvelo::store

namespace tarvelo::lectures {

class DayList;
class LectureTable;

// Deletes lectures: at once, after a confirmation, or by the action that a swipe uncovers. The row
// goes first, then the file, then the entry of the list: if removing the file fails, no lecture is
// left that cannot be played. A lecture whose row cannot be deleted stays whole, in the list too.
// Nothing is ever reported, and what is not there is not deleted.
class LectureDeletion final : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        store::LectureDatabase &database;
        DayList &dayList;
        // What of it still waits to be stored is not stored any more.
        std::function<void(const store::LectureInfoItem &)> forgetWaiting;
        // Takes one row out of the list, and tells who shows the list by other means than the
        // table.
        std::function<void(int row)> removeArrangedObject;
        std::function<void()> reload;
        std::function<void()> goToCalendarView;
        // The row that the confirmation is about, -1 until the first. It is one for the whole
        // process and outlives the deletion that it was meant for, which is wanted.
        int &pendingRow;
    };

    LectureDeletion(const Collaborators &collaborators, const MainWindowOutlets &main,
                    const PopoverOutlets &popovers);

    int pendingRow() const { return m_with.pendingRow; }
    bool isConfirmDeleteShowing() const;

    // The table's row slides out; what follows from the shorter list is shown when it is gone.
    void onDelete(int row);
    // The row that holds the sender, without a confirmation and without a slide.
    void onDeleteItem(QWidget *sender);
    // Asks for the confirmation, whether or not the sender lies in a row: wanted so.
    void onRemoveNotesRecord(QWidget *sender);
    // A sender with the tag PopoverOutlets::TagYes confirms.
    void onConfirmOrCancelRecordDeletion(QWidget *sender);
    QList<RowAction> tableViewRowActionsForRowEdge(LectureTable *table, int row,
                                                   RowActionEdge edge);

private:
    // False when its row stays, and then all of it does.
    bool deleteLecture(const Lecture &lecture, int row);
    void chooseRowAction(LectureTable &table, int row);
    void showShorterList();

    Collaborators m_with;
    MainWindowOutlets m_main;
    PopoverOutlets m_popovers;
};

} // namespace tarvelo::lectures
