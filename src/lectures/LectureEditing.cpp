#include "lectures/LectureEditing.h"

#include <QLineEdit>
#include <QTextEdit>

namespace tarvelo::lectures {

namespace {

// What is typed can be undone, unlike a text that the program sets or empties.
bool canUndoOrRedo(const QTextDocument &document)
{
    return document.isUndoAvailable() || document.isRedoAvailable();
}

} // namespace

LectureEditing::LectureEditing(const EditLectureOutlets &outlets)
    : m_outlets(outlets)
{
}

void LectureEditing::watch(QLineEdit &field)
{
    // Only what is typed: a text that the program sets is no change.
    connect(&field, &QLineEdit::textEdited, this, &LectureEditing::textDidChange);
}

void LectureEditing::watch(QTextEdit &view)
{
    connect(&view, &QTextEdit::textChanged, this, [this, &view] {
        if (view.hasFocus() && canUndoOrRedo(*view.document()))
            textDidChange();
    });
}

void LectureEditing::textDidChange()
{
    m_bHasChangesInNote = true;
    m_bHasChangesInNoteTitle = true;
}

void LectureEditing::clearChanges()
{
    m_bHasChangesInNote = false;
    m_bHasChangesInNoteTitle = false;
}

void LectureEditing::onCancelLectureEdit(QWidget *)
{
    m_outlets.txtSubjectForEdit->clear();
    m_outlets.txtViewNotesForEdit->clear();
    m_outlets.windowEditLecture->hide();
    m_bIsEditingNow = false;
    clearChanges();
}

} // namespace tarvelo::lectures
