#pragma once

#include <QLatin1String>

// The statements of the lecture table that other programs know too, byte for byte as they are sent:
// blanks and letter case are wanted as they stand.
namespace tarvelo::store::statements {

// Arguments: subject, course, notes, day, start, end, audio path, duration.
inline constexpr QLatin1String
    Insert("INSERT into audioData ( subject, course, notes , recordingDate, lectureStartTime, "
           "lectureEndTime, audioFileFullPath,recordDuration) VALUES (?,?,?,?,?,?,?,?)");

// Arguments: subject, notes, ID as decimal text.
inline constexpr QLatin1String Update("UPDATE audioData SET subject = ?, notes = ?  where ID = ?");

// The path stands between the two, pasted as it is.
inline constexpr QLatin1String DeleteByPathBegin("DELETE FROM audioData where audioFileFullPath='");
inline constexpr QLatin1String DeleteByPathEnd("';");

// What that takes away, found by the same words; the query has no end of its own, since it stands
// in others.
inline constexpr QLatin1String IdsByPathBegin("SELECT ID FROM audioData where audioFileFullPath='");
inline constexpr QLatin1String IdsByPathEnd("'");
inline constexpr QLatin1String AllIds("SELECT ID FROM audioData");

// Argument: the day as "yyyy-MM-dd". Newest first.
inline constexpr QLatin1String DayQuery("select * from audioData WHERE (strftime('%Y-%m-%d', "
                                        "recordingDate)) = ? ORDER BY ID DESC");

// Argument: the month as "MM". Finds that month of every year.
inline constexpr QLatin1String
    MonthQuery("select * from audioData WHERE (strftime('%m', recordingDate)) = ?");

inline constexpr QLatin1String Drop("DROP TABLE audioData");

inline constexpr QLatin1String CreateAfterInsert(
    "CREATE TABLE audioData (ID INTEGER PRIMARY KEY  NOT NULL  UNIQUE , subject TEXT, course "
    "TEXT,notes TEXT, recordingDate DATETIME,lectureStartTime TEXT, lectureEndTime TEXT, "
    "audioFileFullPath TEXT, recordDuration TEXT);");

// One blank more than the other, after "DATETIME,": SQLite keeps the text in the file.
inline constexpr QLatin1String CreateAfterUpdate(
    "CREATE TABLE audioData (ID INTEGER PRIMARY KEY  NOT NULL  UNIQUE , subject TEXT, course "
    "TEXT,notes TEXT, recordingDate DATETIME, lectureStartTime TEXT, lectureEndTime TEXT, "
    "audioFileFullPath TEXT, recordDuration TEXT);");

inline constexpr QLatin1String DeleteAll("DELETE FROM audioData;");

// A change is undone by the journal as long as that has a name. Without this its end is not forced
// to the disk, and a power cut soon after takes the change back.
inline constexpr QLatin1String SyncNamesToo("PRAGMA synchronous = EXTRA");

// They serve the two queries above, whose expressions they repeat to the letter.
inline constexpr QLatin1String IndexByDay("CREATE INDEX IF NOT EXISTS audioDataByDay "
                                          "ON audioData(strftime('%Y-%m-%d', recordingDate))");
inline constexpr QLatin1String IndexByMonth("CREATE INDEX IF NOT EXISTS audioDataByMonth "
                                            "ON audioData(strftime('%m', recordingDate))");

} // namespace tarvelo::store::statements
