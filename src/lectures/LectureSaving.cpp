#include "lectures/LectureSaving.h"

#include "store/LectureDatabase.h"
#include "store/LectureInfoItem.h"
#include "store/Statements.h"
#include "store/StoredRows.h"

#include <QtGlobal>

#include <utility>

namespace tarvelo::lectures {

LectureSaving::LectureSaving(Collaborators collaborators)
    : m_with(std::move(collaborators))
    , m_unsavedTexts(m_with.database, m_with.clock)
{
}

bool LectureSaving::isStored(const store::LectureInfoItem &lecture) const
{
    if (!lecture.hasRow())
        return lecture.hasGone() || m_with.isWaiting(lecture);
    store::Sqlite *connection = m_with.database.connection();
    return !connection || store::hasRow(*connection, lecture.getRecordUniqueID()).value_or(true);
}

void LectureSaving::save(store::LectureInfoItem &lecture, const QString &subject,
                         const QString &notes)
{
    m_with.changeWaiting(lecture, subject, notes);
    if (trySave(lecture, subject, notes))
        m_unsavedTexts.forget(lecture);
    else
        m_unsavedTexts.keep(lecture, subject, notes);
    lecture.setSubject(subject);
    lecture.setNotes(notes);
}

// One without a row has nothing to save but what waits of it.
bool LectureSaving::trySave(const store::LectureInfoItem &lecture, const QString &subject,
                            const QString &notes)
{
    const qint64 id = lecture.getRecordUniqueID();
    if (lecture.hasGone())
        return m_with.database.changeGone(lecture.copyPath(), id, subject, notes);
    if (!lecture.hasRow() || m_with.database.updateToDoDatawithSqlStatementWithArguments(
                                 store::statements::Update, {subject, notes, QString::number(id)}))
        return true;
    // It may have turned out only now.
    if (lecture.hasGone())
        return m_with.database.changeGone(lecture.copyPath(), id, subject, notes);
    // Without a recording nothing would tell it from the next one with its ID.
    return lecture.getLectureAudioPath().isEmpty() && !isStored(lecture);
}

void LectureSaving::putUnsavedInto(store::LectureInfoItem &lecture) const
{
    m_unsavedTexts.putInto(lecture);
}

void LectureSaving::forget(const store::LectureInfoItem &lecture)
{
    m_unsavedTexts.forget(lecture);
}

void LectureSaving::lecturesHaveGone(const store::GoneLectures &gone)
{
    m_unsavedTexts.lecturesHaveGone(gone);
}

void LectureSaving::lecturesCameBack(const store::LecturesBack &back)
{
    m_unsavedTexts.lecturesCameBack(back);
}

void LectureSaving::giveRowBack(store::LectureInfoItem &lecture,
                                const store::LecturesBack &back) const
{
    m_with.database.giveRowBack(lecture, back);
}

} // namespace tarvelo::lectures
