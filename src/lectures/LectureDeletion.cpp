#include "lectures/LectureDeletion.h"

#include "calendar/CKCalendarView.h"
#include "lectures/DayList.h"
#include "lectures/LectureTable.h"
#include "lectures/RowLookup.h"
#include "store/LectureDatabase.h"
#include "store/LectureInfoItem.h"
#include "widgets/ImageButton.h"
#include "widgets/PopOver.h"

#include <QFile>
#include <QPointer>
#include <QWidget>

#include <chrono>

using namespace std::chrono_literals;

namespace tarvelo::lectures {

namespace {

constexpr auto SlideUpDuration = 400ms;

} // namespace

LectureDeletion::LectureDeletion(const Collaborators &collaborators, const MainWindowOutlets &main,
                                 const PopoverOutlets &popovers)
    : m_with(collaborators)
    , m_main(main)
    , m_popovers(popovers)
{
    // The rows keep their look while the pop-over shows.
    connect(m_popovers.popoverConfirmRecordDelete, &widgets::PopOver::closed,
            m_main.tblRecordSubjectList, &LectureTable::updateMouseOver);
}

bool LectureDeletion::isConfirmDeleteShowing() const
{
    return m_popovers.popoverConfirmRecordDelete->content().window()->isVisible();
}

bool LectureDeletion::deleteLecture(const Lecture &lecture, int row)
{
    if (!m_with.database.deleteVoiceData(*lecture))
        return false;
    m_with.forgetWaiting(*lecture);
    const QString path = lecture->getLectureAudioPath();
    if (QFile::exists(path))
        QFile::remove(path);
    m_with.removeArrangedObject(row);
    return true;
}

void LectureDeletion::onDelete(int row)
{
    const Lecture lecture = m_with.dayList.lectureAt(row);
    if (!lecture || !deleteLecture(lecture, row))
        return;
    const QPointer<LectureDeletion> self(this);
    m_main.tblRecordSubjectList->removeRow(row, SlideUpDuration, [self] {
        if (self)
            self->showShorterList();
    });
}

void LectureDeletion::onDeleteItem(QWidget *sender)
{
    const int row = rowOfSender(*m_main.tblRecordSubjectList, sender);
    const Lecture lecture = m_with.dayList.lectureAt(row);
    if (!lecture || !deleteLecture(lecture, row))
        return;
    m_with.reload();
    showShorterList();
}

// The panel of an empty day follows the list alone, for a past day too, which is wanted.
void LectureDeletion::showShorterList()
{
    m_with.dayList.showWhetherEmpty();
    m_main.btnDeleteItem->hide();
    m_main.calendarView->layoutSubviews();
}

void LectureDeletion::onRemoveNotesRecord(QWidget *sender)
{
    QWidget *cell = sender ? sender->parentWidget() : nullptr;
    if (!cell)
        return;
    m_popovers.popoverConfirmRecordDelete->showRelativeTo(sender->geometry(), *cell,
                                                          Qt::BottomEdge);
    const int row = m_main.tblRecordSubjectList->rowForView(cell);
    if (row >= 0)
        m_with.pendingRow = row;
}

void LectureDeletion::onConfirmOrCancelRecordDeletion(QWidget *sender)
{
    const auto *button = qobject_cast<const widgets::ImageButton *>(sender);
    if (button && button->tag() == PopoverOutlets::TagYes) {
        onDelete(m_with.pendingRow);
        m_with.goToCalendarView();
    }
    m_popovers.popoverConfirmRecordDelete->close();
}

// The title is the same in every language.
QList<RowAction> LectureDeletion::tableViewRowActionsForRowEdge(LectureTable *table, int,
                                                                RowActionEdge edge)
{
    if (edge == RowActionEdge::Leading)
        return {};
    const QPointer<LectureDeletion> self(this);
    const QPointer<LectureTable> of(table);
    return {{RowAction::Style::Destructive, QStringLiteral("Delete"), [self, of](int row) {
                 if (self && of)
                     self->chooseRowAction(*of, row);
             }}};
}

void LectureDeletion::chooseRowAction(LectureTable &table, int row)
{
    table.selectRowIndexesByExtendingSelection({row}, true);
    m_with.pendingRow = row;
    onDelete(row);
    m_with.goToCalendarView();
}

} // namespace tarvelo::lectures
