#pragma once

#include <QString>
#include <QVariantList>

#include <optional>

namespace tarvelo::store {

class Sqlite;

// All but the ID.
inline const QString LectureColumns =
    QStringLiteral("subject, course, notes, recordingDate, lectureStartTime, lectureEndTime, "
                   "audioFileFullPath, recordDuration");

// Where the path of the recording stands among them.
constexpr qsizetype RecordingColumn = 6;

// The first column of the first row; null when there is none.
std::optional<int> numberFrom(Sqlite &database, const QString &sql,
                              const QVariantList &arguments = {});

// `schema` is "main" or what the file was attached under. Null when the file cannot be asked.
std::optional<bool> hasLectureTable(Sqlite &database, const char *schema);
// Whether it is a copy that says which of its lectures were about to go.
std::optional<bool> saysWhatWent(Sqlite &database, const char *schema);

bool hasLectures(Sqlite &database, const char *schema);
// False when the table of lectures is not there then.
bool makeLecturesIfMissing(Sqlite &database);

} // namespace tarvelo::store
