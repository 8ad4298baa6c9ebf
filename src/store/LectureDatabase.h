#pragma once

#include "store/DamagedFiles.h"
#include "store/GoneLectures.h"
#include "store/LectureBackups.h"
#include "store/Sqlite.h"

#include <QList>
#include <QString>
#include <QVariantList>
#include <QtGlobal>

#include <functional>
#include <memory>
#include <optional>

namespace tarvelo::platform {
class Clock;
struct Places;
} // namespace tarvelo::platform

namespace tarvelo::store {

class LectureInfoItem;

// The one database file of lectures and the connection that all share, open from its first use to
// the end of the run. What the user does to a lecture passes here. Nothing is ever reported.
class LectureDatabase final
{
public:
    // `clock` outlives this object.
    LectureDatabase(const platform::Places &places, const platform::Clock &clock);
    LectureDatabase(const LectureDatabase &) = delete;
    LectureDatabase &operator=(const LectureDatabase &) = delete;
    ~LectureDatabase();

    // The shared connection, made on the first call; null when the file cannot be opened, and then
    // the next call tries again. A file that is no database any more is put aside first, and an
    // intact one takes its place. Owned by this object.
    Sqlite *openDb();
    // The same for who is about to write: null as well while the file is damaged and could not be
    // put aside, and while it is not known whether lectures have gone, since a new one would get
    // their IDs.
    Sqlite *openToWrite();
    // The shared connection as it is: null before openDb() succeeded.
    Sqlite *connection() const { return m_connection.get(); }

    // Null when nothing could be asked; newest lecture first. `day` is "yyyy-MM-dd".
    std::optional<Rows> lecturesOfDay(const QString &day);
    // As the file has them. `month` is "MM" and matches that month of every year.
    std::optional<Rows> lecturesOfMonth(const QString &month);

    // What a reset and a delete of several lectures take away is kept there first.
    const LectureBackups &backups() const { return m_backups; }
    const DamagedFiles &damagedFiles() const { return m_damagedFiles; }
    // Looks at every page. A damaged file is put aside, and an intact one with every lecture that
    // can be read takes its place. False when the file is damaged or unknown all the same.
    bool mendIfDamaged();

    // When the statement fails, for whatever reason, the table is dropped with all its lectures,
    // made anew, and the statement run once more. This is how the table comes into being, and the
    // loss in all other cases is wanted as it is; the audio files stay. Lectures of which no copy
    // can be made are not dropped. True when it was run at last, and an update has changed
    // something.
    bool insertIntoDbwithSqlStatementWithArguments(const QString &sql,
                                                   const QVariantList &arguments);
    bool updateToDoDatawithSqlStatementWithArguments(const QString &sql,
                                                     const QVariantList &arguments);
    // Hears of every time that lectures went in bulk, before any other gets one of their IDs.
    void setLecturesGone(std::function<void(const GoneLectures &)> lecturesGone);
    // For a lecture that has gone: its row in the copy gets the texts, and comes back with them.
    // False when it could not be changed there, or is there no more.
    bool changeGone(const QString &copyPath, qint64 id, const QString &subject,
                    const QString &notes) const;
    // The ID of a lecture that had gone to a copy: by that copy, and otherwise by its recording,
    // which may have come back from another. Null when it has not come back.
    std::optional<qint64> idNow(const LecturesBack &back, const QString &copyPath, qint64 id,
                                const QString &audioPath) const;
    // A lecture that had gone has its row again, if it is among those.
    void giveRowBack(LectureInfoItem &lecture, const LecturesBack &back) const;
    // Goes by the audio path: every lecture with the same path goes, so all without audio at once.
    // Never opens the database. The path is pasted as it stands, so that with an apostrophe in it
    // no row goes, which is wanted. False when the lecture is to stay whole: its row could not be
    // deleted now, or several would go of which no copy can be made.
    bool deleteVoiceData(const LectureInfoItem &lecture);

private:
    struct Write
    {
        QString sql;
        QVariantList arguments;
        bool isInsert;
    };
    // Of which it is not known whether they have gone: then the query finds none.
    struct UnconfirmedLoss
    {
        GoneLectures lectures;
        QString query;
    };

    bool writeOrReset(const Write &write);
    bool reset(Sqlite &database, const Write &write, qint64 last);
    bool emptyTable(Sqlite &database, const Write &write, const QString &copyPath);
    static bool run(Sqlite &database, const Write &write);
    static bool hasInserted(Sqlite &database, qint64 last, const Write &write);
    void tellOnceKnown(const GoneLectures &lectures, const QString &query,
                       std::optional<bool> areGone);
    // False as long as there are some of which it is not known.
    bool tellWhatHasGone();
    // Null when that cannot be known now.
    std::optional<bool> findsNone(const QString &query);
    bool openFile(const QString &file);
    bool replaceWithIntact();
    bool prepareToWrite();
    void makeIndexes();
    void syncNames();

    QString m_folder;
    LectureBackups m_backups;
    DamagedFiles m_damagedFiles;
    std::unique_ptr<Sqlite> m_connection;
    std::function<void(const GoneLectures &)> m_lecturesGone;
    QList<UnconfirmedLoss> m_unconfirmed;
    bool m_areNamesSynced = false; // of the connection as it was last opened
    bool m_isDamagedInUse = false; // damaged, and not put aside yet
};

} // namespace tarvelo::store
