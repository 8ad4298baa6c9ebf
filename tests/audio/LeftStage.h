#pragma once

#include "audio/AudioFileLocations.h"
#include "audio/LeftLectures.h"
#include "audio/engine/Recordings.h"
#include "platform/Dates.h"
#include "platform/UserDefaults.h"
#include "store/LectureDatabase.h"
#include "store/Statements.h"
#include "support/DecodedAudio.h"
#include "support/FakeClock.h"
#include "support/FileContent.h"
#include "support/TemporaryPlaces.h"
#include "support/TestSound.h"

#include <QTest>

namespace tarvelo::tests {

// A home in which a process that died left a new lecture behind. Needs tarvelo_audio and
// tarvelo_test_audio.
class LeftStage final
{
public:
    LeftStage() { start(); }
    // In the home of another one.
    explicit LeftStage(const platform::Places &home)
        : m_home(home)
    {
        start();
    }

    static store::LectureJournal journal()
    {
        return {.id = QStringLiteral("20240304T080000000"),
                .subject = QStringLiteral("wave optics"),
                .notes = QStringLiteral("Huygens"),
                .day = QStringLiteral("2024-02-29"),
                .date = QStringLiteral("2024-02-29"),
                .state = store::LectureJournal::State::Recording,
                .seconds = 2,
                .take = QStringLiteral("tempAudioFile.m4a")};
    }
    // Two seconds and a half of a recording that was killed.
    static const QByteArray &takeBytes()
    {
        static const QByteArray bytes = recordingOf(tune(44100, 2.9), Ending::CutOff);
        return bytes;
    }

    QString takePath() const { return locations.tempAudioSavePath(); }
    QString file(const char *name) const
    {
        return locations.temporaryFolder() + u'/' + QLatin1StringView(name);
    }
    QStringList names() const
    {
        return QDir(locations.temporaryFolder()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    static void write(const QString &path, const QByteArray &content)
    {
        QVERIFY(writeContent(path, content));
    }
    void leaveTake() const { write(takePath(), takeBytes()); }
    void leaveJournal(const store::LectureJournal &written = journal()) const
    {
        write(file("lecture.journal"), store::toBytes(written) + QByteArray(100, ' '));
    }

    bool setAside() { return left.setAside(locations.temporaryFolder()); }
    store::Rows rows()
    {
        return database.openDb()
            ->executeQuery(QStringLiteral("select * from audioData ORDER BY ID"))
            .value_or(store::Rows());
    }
    void expectOneKeptLecture()
    {
        const store::Rows stored = rows();
        QCOMPARE(stored.size(), 1);
        const QString path = stored.first().value(QStringLiteral("audioFileFullPath")).toString();
        const auto heard = DecodedAudio::read(path);
        QVERIFY(heard && heard->seconds() > 2);
        QCOMPARE(names(), QStringList());
        QCOMPARE(QDir(locations.getAudioFolderPath()).entryList(QDir::Files | QDir::Hidden).size(),
                 1);
    }

    TemporaryPlaces places;

private:
    void start()
    {
        defaults.setValue(QStringLiteral("fileFormat"), 1);
        locations.createFolders();
        locations.setTempAudioSavePathWithFormat();
    }

    platform::Places m_home = places.places();

public:
    FakeClock clock;
    platform::Dates dates{clock, {"en_US", QStringLiteral("UTC")}};
    platform::UserDefaults defaults{places.folder() + QStringLiteral(".conf")};
    store::LectureDatabase database{m_home, clock};
    audio::AudioFileLocations locations{m_home, defaults, dates};
    audio::LeftLectures left{locations, dates, database};
};

} // namespace tarvelo::tests
