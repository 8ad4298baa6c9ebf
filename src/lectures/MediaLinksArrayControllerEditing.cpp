#include "lectures/MediaLinksArrayController.h"

#include "lectures/CustomTableCellView.h"
#include "lectures/LectureTable.h"
#include "lectures/LectureWindows.h"
#include "lectures/RowLookup.h"
#include "lectures/WindowKeys.h"
#include "widgets/ImageButton.h"

#include <QMenu>
#include <QPoint>
#include <QWidget>

namespace tarvelo::lectures {

void MediaLinksArrayController::connectEditing()
{
    const LectureViewOutlets &view = m_windows.lectureViewOutlets();
    view.btnSlidetoView->setAction(
        {"viewEditView", [this](QWidget *sender) { viewEditView(sender); }});
    view.btnSlideToListView->setAction(
        {"onExpandView", [this](QWidget *sender) { onExpandView(sender); }});
    view.btnCloseLectureView->setAction(
        {"goToCalendarView", [this](QWidget *sender) { goToCalendarView(sender); }});
    view.btnDoneEditLecture->setAction(
        {"onDoneLectureEdit", [this](QWidget *sender) { onDoneLectureEdit(sender); }});
    view.tSubjectName->setDelegate(this);
    const EditLectureOutlets &edit = m_windows.editLectureOutlets();
    edit.btnDoneEdit->setAction({"onDoneEdit", [this](QWidget *sender) { onDoneEdit(sender); }});
    edit.btnCancelEdit->setAction(
        {"onCancelLectureEdit", [this](QWidget *sender) { onCancelLectureEdit(sender); }});

    LectureTable &table = *m_windows.mainOutlets().tblRecordSubjectList;
    connect(&table, &LectureTable::rowOpened, this, [this, &table](int row) {
        if (const auto *cell = table.viewAtColumnRowMakeIfNecessary(0, row, true))
            openPlayEditWindow(cell->btnPlay());
    });
    connectEditingKeys(m_windows);
}

void MediaLinksArrayController::wireEditing(CustomTableCellView &row)
{
    row.btnEdit()->setAction({"onEditLecture", [this](QWidget *sender) { onEditLecture(sender); }});
    row.btnInfo()->setAction({"onClickInfo", [this](QWidget *sender) { onClickInfo(sender); }});
}

void MediaLinksArrayController::onClickInfo(QWidget *sender)
{
    LectureTable &table = *m_windows.mainOutlets().tblRecordSubjectList;
    CustomTableCellView *cell =
        table.viewAtColumnRowMakeIfNecessary(0, rowOfSender(table, sender), false);
    if (cell)
        cell->getMenu()->popup(sender->mapToGlobal(QPoint(0, sender->height())));
}

void MediaLinksArrayController::mouseDownTextFieldClicked(widgets::MouseDownTextField &field)
{
    m_editing.mouseDownTextFieldClicked(field);
}

} // namespace tarvelo::lectures
