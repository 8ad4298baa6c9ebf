#pragma once

#include "store/LectureDatabase.h"
#include "store/Statements.h"

#include <QDate>

namespace tarvelo::tests {

// A lecture with everything that the test does not care about filled in, written the way that the
// program writes one: aLecture().on(day).named("Optics").insertInto(database). Needs tarvelo_store.
class LectureBuilder final
{
public:
    LectureBuilder &named(const char *subject) { return named(QString::fromUtf8(subject)); }
    LectureBuilder &named(const QString &subject) { return set(m_subject, subject); }
    LectureBuilder &on(const QDate &day) { return set(m_day, day.toString(Qt::ISODate)); }
    LectureBuilder &on(const char *day) { return set(m_day, QString::fromLatin1(day)); }
    LectureBuilder &withNotes(const char *notes) { return set(m_notes, QString::fromUtf8(notes)); }
    LectureBuilder &withNotes(const QString &notes) { return set(m_notes, notes); }
    LectureBuilder &withAudio(const QString &path) { return set(m_audioPath, path); }
    LectureBuilder &lasting(const char *text) { return set(m_duration, QString::fromLatin1(text)); }
    LectureBuilder &withoutAudio() { return withAudio(QString()).lasting("No Audio"); }

    // What the insert statement takes, in its order.
    QVariantList arguments() const
    {
        return {m_subject,
                QStringLiteral("test course"),
                m_notes,
                m_day,
                QStringLiteral("10.00 AM"),
                QStringLiteral("11.30 AM"),
                m_audioPath,
                m_duration};
    }

    // Makes the table when it is missing. Gives the row's ID, 0 when there is no database.
    qint64 insertInto(store::LectureDatabase &database) const
    {
        database.insertIntoDbwithSqlStatementWithArguments(store::statements::Insert, arguments());
        return database.connection() ? database.connection()->lastinsertedRowID() : 0;
    }
    // Into a table that is there; false when that fails, and then nothing is lost.
    bool insertInto(store::Sqlite &connection) const
    {
        return connection.executeNonQueryArguments(store::statements::Insert, arguments());
    }

private:
    LectureBuilder &set(QString &field, const QString &value)
    {
        field = value;
        return *this;
    }

    QString m_subject = QStringLiteral("Optics");
    QString m_notes = QStringLiteral("Lenses and mirrors");
    QString m_day = QStringLiteral("2024-03-05");
    QString m_audioPath = QStringLiteral("/music/optics.aac");
    QString m_duration = QStringLiteral("00:45:00");
};

inline LectureBuilder aLecture()
{
    return {};
}

} // namespace tarvelo::tests
