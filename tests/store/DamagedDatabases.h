#pragma once

#include "support/FileContent.h"
#include "support/LectureBuilder.h"
#include "support/TemporaryPlaces.h"

namespace tarvelo::tests {

constexpr qsizetype DatabasePage = 4096; // bytes

// The bytes of a sound database with so many lectures, on about a page for each seven.
inline QByteArray databaseOf(int lectures)
{
    const TemporaryPlaces places;
    places.makeFolder();
    {
        store::Sqlite database(places.databaseFile());
        database.executeNonQuery(store::statements::CreateAfterInsert);
        database.beginTransaction();
        for (int number = 1; number <= lectures; ++number)
            aLecture()
                .named(QStringLiteral("Lecture %1.").arg(number))
                .withAudio(QStringLiteral("/music/%1.m4a").arg(number))
                .withNotes(QString(400, u'n'))
                .insertInto(database);
        database.commit();
    }
    return places.readDatabaseFile();
}

inline QStringList subjectsIn(store::Sqlite &database)
{
    QStringList subjects;
    const auto rows =
        database.executeQuery(QStringLiteral("select subject from audioData order by ID"));
    for (const store::Row &row : rows.value_or(store::Rows()))
        subjects << row.value(QStringLiteral("subject")).toString();
    return subjects;
}

inline bool isSound(store::Sqlite &database)
{
    const auto rows = database.executeQuery(QStringLiteral("PRAGMA integrity_check"));
    return rows && rows->size() == 1 && rows->first().first() == QVariant(QStringLiteral("ok"));
}

} // namespace tarvelo::tests
