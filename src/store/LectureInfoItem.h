#pragma once

#include <QColor>
#include <QDateTime>
#include <QString>

#include <limits>

namespace tarvelo::platform {
class Image;
}

namespace tarvelo::store {

// One lecture in memory. Its subject is capitalised from the moment it is set, whatever the
// database holds; the other texts stay as given.
class LectureInfoItem final
{
public:
    // The ID of a lecture without a row; no row has it.
    static constexpr qint64 NoRow = std::numeric_limits<qint64>::min();

    LectureInfoItem(const QString &subject, const QString &course, const QString &durationStart,
                    const QString &end, bool checked);

    bool bChecked() const { return m_bChecked; }
    const QString &strSubject() const { return m_strSubject; }
    const QString &strCourse() const { return m_strCourse; }
    const QString &strNotes() const { return m_strNotes; }
    const QString &strStartDuration() const { return m_strStartDuration; }
    const QString &strEndDuration() const { return m_strEndDuration; }
    const QString &strRecordingDuration() const { return m_strRecordingDuration; }
    // Invalid unless someone sets them; nothing in the program does yet.
    const QDateTime &periodStart() const { return m_periodStart; }
    const QDateTime &periodEnd() const { return m_periodEnd; }
    // Always empty.
    const QString &strLectureToken() const { return m_strLectureToken; }
    qint64 intRecordUniqueID() const { return m_intRecordUniqueID; }
    const QString &strLectureAudioPath() const { return m_strLectureAudioPath; }

    const QString &getLectureAudioPath() const { return m_strLectureAudioPath; }
    qint64 getRecordUniqueID() const { return m_intRecordUniqueID; }
    // The ID may be 0 too, as rows are given IDs by other programs.
    bool hasRow() const { return m_intRecordUniqueID != NoRow && !hasGone(); }
    // Its row went with all others when the table was emptied. Another lecture may have the ID by
    // now; in the copy that was made before, its row still has it.
    bool hasGone() const { return !m_copyPath.isEmpty(); }
    const QString &copyPath() const { return m_copyPath; }
    QString description() const;
    platform::Image iconImage() const;
    QColor colorSubject() const { return {99, 99, 99}; }

    void setSubject(const QString &subject);
    void setCourse(const QString &course) { m_strCourse = course; }
    void setNotes(const QString &notes) { m_strNotes = notes; }
    void setDurationStart(const QString &start) { m_strStartDuration = start; }
    void setDurationEnd(const QString &end) { m_strEndDuration = end; }
    void setRecordingDuration(const QString &duration) { m_strRecordingDuration = duration; }
    void setLectureAudioPath(const QString &path) { m_strLectureAudioPath = path; }
    void setRecordUniqueID(qint64 id) { m_intRecordUniqueID = id; }
    void setGoneTo(const QString &copyPath) { m_copyPath = copyPath; }
    // It has one, also if another one went.
    void setRow(qint64 id)
    {
        setRecordUniqueID(id);
        m_copyPath.clear();
    }
    void setPeriodStart(const QDateTime &start) { m_periodStart = start; }
    void setPeriodEnd(const QDateTime &end) { m_periodEnd = end; }

private:
    bool m_bChecked = false;
    QString m_strSubject;
    QString m_strCourse;
    QString m_strNotes;
    QString m_strStartDuration;
    QString m_strEndDuration;
    QString m_strRecordingDuration;
    QDateTime m_periodStart;
    QDateTime m_periodEnd;
    QString m_strLectureToken;
    qint64 m_intRecordUniqueID = 0;
    QString m_strLectureAudioPath;
    QString m_copyPath;
};

} // namespace tarvelo::store
