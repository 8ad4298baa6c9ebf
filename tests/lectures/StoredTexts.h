#pragma once

#include "store/LectureDatabase.h"
#include "store/LectureInfoItem.h"
#include "support/LectureBuilder.h"

namespace tarvelo::tests {

// Optics with its notes, as it is stored with that recording. Needs tarvelo_store.
inline store::LectureInfoItem storedOptics(store::LectureDatabase &database, const QString &path)
{
    store::LectureInfoItem lecture(QStringLiteral("Optics"), {}, {}, {}, false);
    lecture.setNotes(QStringLiteral("Lenses"));
    lecture.setLectureAudioPath(path);
    lecture.setRecordUniqueID(aLecture().withNotes("Lenses").withAudio(path).insertInto(database));
    return lecture;
}

// "subject: notes" of every row, by their IDs.
inline QStringList textsIn(store::LectureDatabase &database)
{
    QStringList lectures;
    const auto rows =
        database.openDb()->executeQuery(QStringLiteral("select * from audioData order by ID"));
    for (const store::Row &row : rows.value_or(store::Rows()))
        lectures.append(row[QStringLiteral("subject")].toString() + QStringLiteral(": ") +
                        row[QStringLiteral("notes")].toString());
    return lectures;
}

} // namespace tarvelo::tests
