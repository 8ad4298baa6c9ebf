#include "lectures/EditLectureWindow.h"

#include "lectures/Dressing.h"
#include "widgets/Colours.h"
#include "widgets/CustomTextView.h"
#include "widgets/Faces.h"
#include "widgets/LightPalette.h"

#include "ui_EditLectureWindow.h"

#include <Qt>

namespace tarvelo::lectures {

EditLectureWindow buildEditLectureWindow()
{
    EditLectureWindow built;
    built.window = std::make_unique<QWidget>(nullptr, Qt::Window);
    widgets::setLightPalette(*built.window);
    Ui::EditLectureWindow ui;
    ui.setupUi(built.window.get());
    limitSubject(*ui.txtSubjectForEdit);
    giveMargins(*ui.txtSubjectForEdit, *ui.txtViewNotesForEdit);
    built.outlets = {built.window.get(), ui.txtSubjectForEdit, ui.txtViewNotesForEdit,
                     ui.textEditTime,    ui.textEditDate,      ui.btnDoneEdit,
                     ui.btnCancelEdit};
    ui.txtSubjectForEdit->setFont(widgets::scaledFace(16));
    for (QLabel *label : {ui.textEditTime, ui.textEditDate, ui.lblNotesForEdit})
        style(*label, 13, widgets::colours().faint);
    return built;
}

} // namespace tarvelo::lectures
