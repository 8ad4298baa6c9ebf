#include "store/AttachedCopy.h"

#include "store/RecordingRows.h"
#include "store/Sqlite.h"
#include "store/Tables.h"

#include <QFileInfo>
#include <QHash>

namespace tarvelo::store {

namespace {

// The lectures of a copy that are missing, by whether its marks are to be asked (?1). One with a
// recording is there when that recording is. One without is there when another is like it; when it
// is marked, only under its own ID.
const QString FromMissing = QStringLiteral(
    " FROM copy.audioData AS lost WHERE (NOT ?1 OR ID IN (SELECT ID FROM copy.goingLectures)) AND "
    "NOT EXISTS (SELECT 1 FROM main.audioData AS here WHERE CASE WHEN lost.audioFileFullPath <> '' "
    "THEN here.audioFileFullPath = lost.audioFileFullPath ELSE (NOT ?1 OR here.ID = lost.ID) AND "
    "here.audioFileFullPath IS lost.audioFileFullPath AND here.subject IS lost.subject AND "
    "here.notes IS lost.notes AND here.recordingDate IS lost.recordingDate END)");
// Without the marks' table the text above cannot be prepared.
const QString FromMissingUnmarked =
    QString(FromMissing)
        .replace(QStringLiteral("copy.goingLectures"), QStringLiteral("copy.audioData"));

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

bool AttachedCopy::isMarked() const
{
    return hasTable(m_database, "copy", QStringLiteral("goingLectures")).value_or(false);
}

std::optional<int> AttachedCopy::lectures() const
{
    return numberFrom(m_database, QStringLiteral("SELECT count(*) FROM copy.audioData"));
}

std::optional<int> AttachedCopy::missing() const
{
    if (!hasLectures(m_database, "main"))
        return lectures();
    return numberFrom(m_database, QStringLiteral("SELECT count(*)") + fromMissing(), {isMarked()});
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

// The free IDs first, so that none of them is given away. As texts, since those of other programs
// may be larger than what a row hands out.
std::optional<QHash<qint64, qint64>> AttachedCopy::putBackMissing()
{
    const QString list =
        QStringLiteral("SELECT CAST(lost.rowid AS TEXT) AS number, CAST(lost.ID AS TEXT) AS ID, "
                       "ifnull(lost.ID IN (SELECT ID FROM main.audioData), 0) AS isTaken") +
        fromMissing() + QStringLiteral(" ORDER BY isTaken, lost.ID");
    const QString insert =
        QStringLiteral("INSERT INTO main.audioData (ID, %1) SELECT CASE WHEN ?1 THEN NULL ELSE ID "
                       "END, %1 FROM copy.audioData WHERE rowid = ?2")
            .arg(LectureColumns);
    const auto missing = m_database.executeQueryArguments(list, {isMarked()});
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
    return forgetMarks(idsNow) ? std::optional(idsNow) : std::nullopt;
}

// What is marked without a recording and not missing is there under its own ID.
bool AttachedCopy::forgetMarks(QHash<qint64, qint64> &idsNow)
{
    if (!isMarked())
        return true;
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

QString AttachedCopy::fromMissing() const
{
    return isMarked() ? FromMissing : FromMissingUnmarked;
}

} // namespace tarvelo::store
