#include "store/AttachedCopy.h"

#include "store/RecordingRows.h"
#include "store/Sqlite.h"
#include "store/Tables.h"

#include <QFileInfo>
#include <QHash>

namespace tarvelo::store {

namespace {

// The lectures of a copy that are missing, by whether its marks are to be asked (?1). One with a
// recording is there when that recording is; of several with one recording, as many as there were.
// One without is there when another is like it; when it is marked, only under its own ID. Each list
// is made once, and what is asked lecture by lecture only of those few, in a CASE, since AND asks
// both sides: many lectures take little longer than it takes to read them.
const QString FromMissing = QStringLiteral(
    " FROM copy.audioData AS lost WHERE (NOT ?1 OR ID IN (SELECT ID FROM copy.goingLectures)) AND "
    "CASE WHEN audioFileFullPath <> '' THEN "
    "audioFileFullPath NOT IN (SELECT audioFileFullPath FROM main.audioData "
    "WHERE audioFileFullPath <> '') OR "
    "CASE WHEN audioFileFullPath IN (SELECT audioFileFullPath FROM copy.audioData "
    "WHERE audioFileFullPath <> '' GROUP BY audioFileFullPath HAVING count(*) > 1) THEN "
    "NOT EXISTS (SELECT 1 FROM main.audioData AS here WHERE "
    "here.audioFileFullPath = lost.audioFileFullPath AND here.subject IS lost.subject AND "
    "here.notes IS lost.notes) AND "
    "(SELECT count(*) FROM main.audioData AS here WHERE "
    "here.audioFileFullPath = lost.audioFileFullPath) < "
    "(SELECT count(*) FROM copy.audioData AS other WHERE "
    "other.audioFileFullPath = lost.audioFileFullPath) ELSE 0 END "
    "ELSE CASE WHEN ?1 THEN ID ELSE 0 END || quote(audioFileFullPath) || quote(subject) || "
    "quote(notes) || quote(recordingDate) NOT IN (SELECT CASE WHEN ?1 THEN ID ELSE 0 END || "
    "quote(audioFileFullPath) || quote(subject) || quote(notes) || quote(recordingDate) "
    "FROM main.audioData WHERE ifnull(audioFileFullPath, '') = '') END");
// Without the marks' table the text above cannot be prepared.
const QString FromMissingUnmarked =
    QString(FromMissing)
        .replace(QStringLiteral("copy.goingLectures"), QStringLiteral("copy.audioData"));

QString fromMissing(bool isMarked)
{
    return isMarked ? FromMissing : FromMissingUnmarked;
}

} // namespace

AttachedCopy::AttachedCopy(Sqlite &database, const QString &path)
    : m_database(database)
    , m_isAttached(QFileInfo(path).isFile() &&
                   database.executeNonQuery(QStringLiteral("ATTACH ? AS copy"), path))
{
}

AttachedCopy::~AttachedCopy()
{
    if (m_isAttached)
        m_database.executeNonQuery(QStringLiteral("DETACH copy"));
}

bool AttachedCopy::isReadable() const
{
    return m_isAttached && hasLectures(m_database, "copy");
}

std::optional<bool> AttachedCopy::isMarked() const
{
    return saysWhatWent(m_database, "copy");
}

std::optional<int> AttachedCopy::lectures() const
{
    return numberFrom(m_database, QStringLiteral("SELECT count(*) FROM copy.audioData"));
}

std::optional<int> AttachedCopy::missing() const
{
    if (!hasLectures(m_database, "main"))
        return lectures();
    const auto marked = isMarked();
    return marked ? numberFrom(m_database, QStringLiteral("SELECT count(*)") + fromMissing(*marked),
                               {*marked})
                  : std::nullopt;
}

QList<QVariantList> AttachedCopy::lecturesWith(const QStringList &fileNames) const
{
    QList<QVariantList> lectures;
    const auto rows =
        isReadable() ? lecturesWithRecordings(fileNames, "copy", m_database) : std::nullopt;
    for (const Row &row : rows.value_or(Rows())) {
        QVariantList lecture;
        for (const QString &column : LectureColumns.split(QStringLiteral(", ")))
            lecture.append(row.value(column));
        lectures.append(lecture);
    }
    return lectures;
}

// Whether it is marked is asked once: text, argument and what is done to the marks agree. The free
// IDs first, so that none of them is given away. As texts, since those of other programs
// may be larger than what a row hands out.
std::optional<QHash<qint64, qint64>> AttachedCopy::putBackMissing()
{
    const auto marked = isMarked();
    if (!marked)
        return std::nullopt;
    const QString list =
        QStringLiteral("SELECT CAST(lost.rowid AS TEXT) AS number, CAST(lost.ID AS TEXT) AS ID, "
                       "ifnull(lost.ID IN (SELECT ID FROM main.audioData), 0) AS isTaken") +
        fromMissing(*marked) + QStringLiteral(" ORDER BY isTaken, lost.ID");
    const QString insert =
        QStringLiteral("INSERT INTO main.audioData (ID, %1) SELECT CASE WHEN ?1 THEN NULL ELSE ID "
                       "END, %1 FROM copy.audioData WHERE rowid = ?2")
            .arg(LectureColumns);
    const auto missing = m_database.executeQueryArguments(list, {*marked});
    if (!missing || m_database.errorCode() != 0)
        return std::nullopt;
    QHash<qint64, qint64> idsNow;
    for (const Row &lost : *missing) {
        if (!m_database.executeNonQueryArguments(insert, {lost.value(QStringLiteral("isTaken")),
                                                          lost.value(QStringLiteral("number"))}))
            return std::nullopt;
        idsNow.insert(lost.value(QStringLiteral("ID")).toLongLong(),
                      m_database.lastinsertedRowID());
    }
    return !*marked || forgetMarks(idsNow) ? std::optional(idsNow) : std::nullopt;
}

// What is marked without a recording and not missing is there under its own ID.
bool AttachedCopy::forgetMarks(QHash<qint64, qint64> &idsNow)
{
    const auto there = m_database.executeQuery(
        QStringLiteral("SELECT ID FROM copy.audioData WHERE ID IN (SELECT ID FROM "
                       "copy.goingLectures) AND ifnull(audioFileFullPath, '') = ''"));
    // Where SQLite lacked memory or a page it has taken the whole transaction back by now, and what
    // would be deleted then would go alone.
    if (!there || m_database.errorCode() != 0)
        return false;
    for (const Row &row : *there) {
        const qint64 id = row.first().toLongLong();
        if (!idsNow.contains(id))
            idsNow.insert(id, id);
    }
    return m_database.executeNonQuery(QStringLiteral("DELETE FROM copy.goingLectures"));
}

} // namespace tarvelo::store
