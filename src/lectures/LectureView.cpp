#include "lectures/LectureView.h"

#include "lectures/Dressing.h"
#include "lectures/LectureHeading.h"
#include "lectures/LectureViewMargins.h"
#include "widgets/Colours.h"
#include "widgets/CustomTextView.h"
#include "widgets/Faces.h"
#include "widgets/ImageButton.h"
#include "widgets/MouseDownTextField.h"

#include "ui_LectureView.h"

#include <QHBoxLayout>
#include <QWidget>

#include <algorithm>

namespace tarvelo::lectures {

using widgets::ImageButton;

namespace {

// What the lecture view offers for the titles of the buttons under the notes.
constexpr int WidthOfTitles = 340;

// Titles that are too long to stand beside each other get two rows: what slides above what ends.
void breakLongRow(const Ui::LectureView &ui)
{
    const int sliding =
        std::max(ui.btnSlidetoView->minimumWidth(), ui.btnSlideToListView->minimumWidth());
    const int ending =
        ui.btnCloseLectureView->minimumWidth() + ui.btnDoneEditLecture->minimumWidth();
    if (sliding + ending <= WidthOfTitles)
        return;
    auto *above = new QHBoxLayout;
    above->addWidget(ui.btnSlidetoView);
    above->addWidget(ui.btnSlideToListView);
    above->addStretch();
    ui.lectureViewLayout->insertLayout(ui.lectureViewLayout->count() - 1, above);
}

} // namespace

LectureView buildLectureView(QWidget &pane)
{
    Ui::LectureView ui;
    ui.setupUi(&pane);
    pane.setObjectName(QStringLiteral("editPlayView"));
    LectureView built;
    built.outlets = {ui.tSubjectName,       ui.tViewNoteForEdit,   ui.lblNotesForView,
                     ui.tEditTime,          ui.tEditDate,          ui.btnSlidetoView,
                     ui.btnSlideToListView, ui.btnDoneEditLecture, ui.btnCloseLectureView};
    built.player = {ui.bPlay, ui.bPause, ui.sliderEditProgress, ui.tElapsedTime, ui.tRemainingTime};
    limitSubject(*ui.tSubjectName);
    giveMargins(*ui.tSubjectName, *ui.tViewNoteForEdit);
    for (QLabel *label :
         {ui.lblNotesForView, ui.tEditTime, ui.tEditDate, ui.tElapsedTime, ui.tRemainingTime})
        style(*label, 13, widgets::colours().faint);
    dressPlayPause(*ui.bPlay, *ui.bPause);
    // A heading until someone wants to change it.
    ui.tSubjectName->setFont(widgets::scaledFace(18));
    ui.tSubjectName->setEditable(false);
    ui.tSubjectName->setBordered(false);
    ui.tSubjectName->setDrawsBackground(false);
    for (ImageButton *button :
         {ui.btnSlidetoView, ui.btnSlideToListView, ui.btnCloseLectureView, ui.btnDoneEditLecture})
        giveRoomToTitle(*button);
    breakLongRow(ui);
    keepContentInSight(pane);
    putHeadingOver(pane);
    return built;
}

} // namespace tarvelo::lectures
