#include "store/LectureRows.h"

namespace tarvelo::store {

LectureInfoItem lectureFromRow(const QVariantMap &row)
{
    const auto text = [&row](const char *column) {
        return row.value(QString::fromLatin1(column)).toString();
    };
    LectureInfoItem lecture(text("subject"), text("course"), text("lectureStartTime"),
                            text("lectureEndTime"), false);
    lecture.setRecordingDuration(text("recordDuration"));
    lecture.setRecordUniqueID(row.value(QStringLiteral("ID")).toLongLong());
    lecture.setLectureAudioPath(text("audioFileFullPath"));
    lecture.setNotes(text("notes"));
    return lecture;
}

} // namespace tarvelo::store
