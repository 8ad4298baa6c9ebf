#pragma once

#include "lectures/LectureOutlets.h"

#include <QObject>

namespace tarvelo::lectures {

// Knows whether texts were touched since a lecture was opened. Both flags are set together, by any
// typing in a text view or field of the program's windows without telling which, and cleared
// together.
class LectureEditing final : public QObject
{
    Q_OBJECT

public:
    explicit LectureEditing(const EditLectureOutlets &outlets);

    bool bHasChangesInNote() const { return m_bHasChangesInNote; }
    bool bHasChangesInNoteTitle() const { return m_bHasChangesInNoteTitle; }
    bool bIsEditingNow() const { return m_bIsEditingNow; }

    // Typing in these counts as a change from now on.
    void watch(QLineEdit &field);
    void watch(QTextEdit &view);
    void textDidChange();
    void clearChanges();
    // Closes the edit window without saving.
    void onCancelLectureEdit(QWidget *sender);

private:
    EditLectureOutlets m_outlets;
    bool m_bHasChangesInNote = false;
    bool m_bHasChangesInNoteTitle = false;
    bool m_bIsEditingNow = false;
};

} // namespace tarvelo::lectures
