#include "store/LectureDatabase.h"

#include "platform/Places.h"
#include "platform/PrivateFiles.h"
#include "store/FileBytes.h"
#include "store/Integrity.h"
#include "store/LectureInfoItem.h"
#include "store/Statements.h"
#include "store/StoredRows.h"
#include "store/Tables.h"

#include <QFileInfo>
#include <QSet>

#include <utility>

namespace tarvelo::store {

namespace {

// One that was chosen is to be deleted; the others only go with it.
QSet<qint64> idsIn(const Rows &rows, const LectureInfoItem *chosen)
{
    QSet<qint64> ids;
    for (const Row &row : rows)
        ids.insert(row.first().toLongLong());
    if (chosen && chosen->hasRow())
        ids.remove(chosen->getRecordUniqueID());
    return ids;
}

} // namespace

LectureDatabase::LectureDatabase(const platform::Places &places, const platform::Clock &clock)
    : m_folder(places.processFolder())
    , m_backups(m_folder + QStringLiteral("/Backups"), clock)
    , m_damagedFiles(m_backups.folder(), clock)
{
}

LectureDatabase::~LectureDatabase() = default;

Sqlite *LectureDatabase::openDb()
{
    const bool isKnown = m_connection != nullptr;
    if (isKnown && !m_connection->filePath().isEmpty()) {
        syncNames();
        return m_connection.get();
    }
    if (!isKnown)
        m_connection = std::make_unique<Sqlite>();
    platform::createFolderIfMissing(m_folder);
    const QString file = m_folder + QStringLiteral("/TarveloInfo.db");
    // SQLite would make it by the umask; its journal has the mode of the file.
    platform::createFileIfMissing(file);
    if (openFile(file))
        return m_connection.get();
    // One that could not be opened again stays the object that others know.
    if (!isKnown)
        m_connection.reset();
    return nullptr;
}

// The first look at a file takes back what a death left half done, by the journal. A damaged file
// is put aside as it was before that.
bool LectureDatabase::openFile(const QString &file)
{
    const bool hasJournal = QFileInfo(rollbackJournalOf(file)).size() > 0;
    const bool wasEmpty = QFileInfo(file).size() == 0;
    const auto aside = hasJournal ? m_damagedFiles.putAside(file) : std::nullopt;
    m_areNamesSynced = false;
    if (!m_connection->open(file))
        return false;
    const bool isDamaged = integrityAtFirstSight(*m_connection) == Integrity::Damaged;
    // The journal of an empty file may have all there is, and goes with the first look.
    if (aside && aside->isNew && !isDamaged && !wasEmpty)
        m_damagedFiles.remove(*aside);
    if (!isDamaged || replaceWithIntact())
        makeIndexes();
    return m_connection->filePath() == file;
}

bool LectureDatabase::mendIfDamaged()
{
    Sqlite *const database = openDb();
    if (!database)
        return false;
    const Integrity integrity = integrityOfEveryPage(*database);
    if (integrity != Integrity::Damaged)
        return integrity == Integrity::Intact;
    if (!replaceWithIntact())
        return false;
    makeIndexes();
    return true;
}

Sqlite *LectureDatabase::openToWrite()
{
    Sqlite *const database = openDb();
    if (!database || !prepareToWrite())
        return nullptr;
    if (!tellWhatHasGone() && mendIfDamaged())
        tellWhatHasGone();
    return m_unconfirmed.isEmpty() ? database : nullptr;
}

bool LectureDatabase::prepareToWrite()
{
    // SQLite opens for reading alone what it was refused to write for a moment.
    const QString file = m_connection->filePath();
    if (m_connection->isReadOnly() && !openFile(file))
        return false;
    m_isDamagedInUse = m_isDamagedInUse && !m_damagedFiles.putAside(m_connection->filePath());
    return !m_isDamagedInUse;
}

// The connection stays the same object, which others know, and is open afterwards if it can be.
bool LectureDatabase::replaceWithIntact()
{
    const QString file = m_connection->filePath();
    m_connection->close();
    const bool isSound = m_damagedFiles.replaceWithIntact(file);
    m_isDamagedInUse = !isSound;
    m_areNamesSynced = false;
    m_connection->open(file);
    syncNames();
    return isSound;
}

std::optional<Rows> LectureDatabase::lecturesOfDay(const QString &day)
{
    Sqlite *const database = openDb();
    return database ? database->executeQueryArguments(statements::DayQuery, {day}) : std::nullopt;
}

std::optional<Rows> LectureDatabase::lecturesOfMonth(const QString &month)
{
    Sqlite *const database = openDb();
    return database ? database->executeQueryArguments(statements::MonthQuery, {month})
                    : std::nullopt;
}

bool LectureDatabase::insertIntoDbwithSqlStatementWithArguments(const QString &sql,
                                                                const QVariantList &arguments)
{
    return writeOrReset({sql, arguments, true});
}

bool LectureDatabase::updateToDoDatawithSqlStatementWithArguments(const QString &sql,
                                                                  const QVariantList &arguments)
{
    return writeOrReset({sql, arguments, false});
}

void LectureDatabase::setLecturesGone(std::function<void(const GoneLectures &)> lecturesGone)
{
    m_lecturesGone = std::move(lecturesGone);
}

bool LectureDatabase::changeGone(const QString &copyPath, qint64 id, const QString &subject,
                                 const QString &notes) const
{
    return m_backups.change(copyPath, statements::Update, {subject, notes, QString::number(id)});
}

std::optional<qint64> LectureDatabase::idNow(const LecturesBack &back, const QString &copyPath,
                                             qint64 id, const QString &audioPath) const
{
    if (copyPath == back.copyPath && back.idsNow.contains(id))
        return back.idsNow.value(id);
    if (audioPath.isEmpty() || !m_connection)
        return std::nullopt;
    const auto rows = rowsWithRecording(*m_connection, audioPath);
    return rows && rows->size() == 1 ? std::optional(rows->first()) : std::nullopt;
}

void LectureDatabase::giveRowBack(LectureInfoItem &lecture, const LecturesBack &back) const
{
    if (!lecture.hasGone())
        return;
    if (const auto id = idNow(back, lecture.copyPath(), lecture.getRecordUniqueID(),
                              lecture.getLectureAudioPath()))
        lecture.setRow(*id);
}

bool LectureDatabase::deleteVoiceData(const LectureInfoItem &lecture)
{
    const QString &path = lecture.getLectureAudioPath();
    if (path.contains(u'\''))
        return true;
    // Without a row, an empty path would find lectures that it has nothing to do with.
    if (!lecture.hasRow() && (!m_connection || path.isEmpty()))
        return true;
    if (!m_connection || !prepareToWrite())
        return false;
    syncNames();
    const QString going = statements::IdsByPathBegin + path + statements::IdsByPathEnd;
    const auto rows = m_connection->executeQuery(going);
    if (!rows || m_connection->errorCode() != 0)
        return false;
    const auto copy = rows->size() > 1 ? m_backups.keep(*m_connection, going) : QString();
    if (!copy)
        return false;
    // It may have failed although they are gone, since only its last step did.
    const auto areGone = m_connection->executeNonQuery(statements::DeleteByPathBegin + path +
                                                       statements::DeleteByPathEnd)
                             ? std::optional(true)
                             : findsNone(going);
    m_backups.settle(*m_connection, *copy);
    if (rows->size() > 1)
        tellOnceKnown({*copy, idsIn(*rows, areGone ? &lecture : nullptr)}, going, areGone);
    return areGone == true;
}

bool LectureDatabase::writeOrReset(const Write &write)
{
    Sqlite *const database = openToWrite();
    if (!database)
        return false;
    database->setLastInsertedRowID(0);
    const bool isWritten = run(*database, write)
                               ? write.isInsert || database->changes() > 0
                               : reset(*database, write, database->lastinsertedRowID());
    m_backups.holdRoom(*database);
    return isWritten;
}

bool LectureDatabase::run(Sqlite &database, const Write &write)
{
    return database.executeNonQueryArguments(write.sql, write.arguments);
}

// A statement may have failed although its row is there, since only its last step did. That row
// comes with the second try, and is not to be brought back too.
bool LectureDatabase::hasInserted(Sqlite &database, qint64 last, const Write &write)
{
    static const QString sql =
        QStringLiteral("SELECT count(*) FROM audioData WHERE ID = ? AND ") +
        QString(LectureColumns).replace(QStringLiteral(","), QStringLiteral(" IS ? AND")) +
        QStringLiteral(" IS ?");
    return last != 0 && write.isInsert &&
           numberFrom(database, sql, QVariantList{last} + write.arguments) == 1;
}

bool LectureDatabase::reset(Sqlite &database, const Write &write, qint64 last)
{
    // A damaged file is not written to before it lies aside; without room for that the lecture is
    // not stored, and nothing is lost.
    if (integrityOfEveryPage(database) == Integrity::Damaged && !replaceWithIntact())
        return false;
    const bool isIn = hasInserted(database, last, write);
    // Without a copy nothing goes. What was held for it is free then, and may be all that was
    // wanting.
    const auto copy =
        m_backups.keep(database, isIn ? statements::AllIds + QStringLiteral(" WHERE ID <> ") +
                                            QString::number(last)
                                      : QString(statements::AllIds));
    if (!copy && isIn) {
        database.setLastInsertedRowID(last);
        return true;
    }
    const bool haveGone = copy && emptyTable(database, write, *copy);
    // What it is not known of that it has gone must not lose its ID to another.
    bool isWritten = m_unconfirmed.isEmpty() && run(database, write);
    if (isWritten && !write.isInsert)
        isWritten =
            haveGone ? m_backups.change(*copy, write.sql, write.arguments) : database.changes() > 0;
    makeIndexes();
    return isWritten;
}

// True when lectures have gone.
bool LectureDatabase::emptyTable(Sqlite &database, const Write &write, const QString &copyPath)
{
    database.executeNonQuery(statements::Drop);
    database.executeNonQuery(write.isInsert ? statements::CreateAfterInsert
                                            : statements::CreateAfterUpdate);
    const auto areGone = database.executeNonQuery(statements::DeleteAll)
                             ? std::optional(true)
                             : findsNone(statements::AllIds);
    m_backups.settle(database, copyPath);
    if (copyPath.isEmpty())
        return false;
    tellOnceKnown({copyPath}, statements::AllIds, areGone);
    return areGone == true;
}

void LectureDatabase::tellOnceKnown(const GoneLectures &lectures, const QString &query,
                                    std::optional<bool> areGone)
{
    if (!areGone)
        m_unconfirmed.append({lectures, query});
    else if (*areGone && m_lecturesGone)
        m_lecturesGone(lectures);
}

// As long as it is not known whether they are there, it is asked again.
bool LectureDatabase::tellWhatHasGone()
{
    QList<GoneLectures> gone;
    m_unconfirmed.removeIf([&](const UnconfirmedLoss &untold) {
        const auto haveGone = findsNone(untold.query);
        if (haveGone == true)
            gone.append(untold.lectures);
        return haveGone.has_value();
    });
    for (const GoneLectures &lectures : gone)
        if (m_lecturesGone)
            m_lecturesGone(lectures);
    return m_unconfirmed.isEmpty();
}

// A table that the query does not suit has none that went unnoticed. The schema is asked first, so
// that nothing else keeps the query from being prepared.
std::optional<bool> LectureDatabase::findsNone(const QString &query)
{
    const auto hasLectures = hasLectureTable(*m_connection, "main");
    if (hasLectures == false)
        return true;
    const auto rows = m_connection->executeQuery(query);
    if (!rows)
        return hasLectures ? std::optional(false) : std::nullopt;
    if (!rows->isEmpty())
        return false;
    return m_connection->errorCode() == 0 ? std::optional(true) : std::nullopt;
}

// They only make the two queries fast. A file without the table, or one that cannot be written,
// does without; last in a reset, so that they take no room that the statement needs.
void LectureDatabase::makeIndexes()
{
    syncNames();
    m_connection->executeNonQuery(statements::IndexByDay);
    m_connection->executeNonQuery(statements::IndexByMonth);
}

// Refused as long as another program holds the file, and then it is asked for again.
void LectureDatabase::syncNames()
{
    if (!m_areNamesSynced)
        m_areNamesSynced = m_connection->executeNonQuery(statements::SyncNamesToo);
}

} // namespace tarvelo::store
