#include "audio/UnlistedRecordings.h"

#include "audio/engine/Recordings.h"
#include "platform/Dates.h"
#include "store/DatabaseCase.h"
#include "store/LectureJournal.h"
#include "support/LectureBuilder.h"
#include "support/RefusedCalls.h"
#include "support/TestSound.h"

#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;
using namespace tarvelo::audio;
using namespace tarvelo::store;
using namespace tarvelo::tests;

class UnlistedRecordingsTest final : public DatabaseCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_sound = recordingOf(tune(44100, 3));
        m_cutOff = recordingOf(tune(44100, 3), Ending::CutOff);
    }

    void withoutFilesNothingIsFound()
    {
        QCOMPARE(found(), 0);
        QCOMPARE(m_recordings->bringBack(), 0);
    }

    void everyRecordingGetsALectureAsIfItHadJustBeenSaved()
    {
        put("Audio - 20240229101500.m4a", m_sound, QDate(2024, 2, 29));

        QCOMPARE(found(), 1);
        QCOMPARE(m_recordings->bringBack(), 1);

        const Rows rows = lectures();
        QCOMPARE(rows.size(), 1);
        const auto text = [&rows](const char *column) {
            return rows.first().value(QLatin1String(column)).toString();
        };
        QCOMPARE(text("subject"), u"Untitled"_s);
        QCOMPARE(text("course"), u"test course"_s);
        QCOMPARE(text("notes"), QString());
        QCOMPARE(text("recordingDate"), u"2024-02-29"_s);
        QCOMPARE(text("audioFileFullPath"), folder() + u"//Audio - 20240229101500.m4a"_s);
        QCOMPARE(text("recordDuration"), u"00:00:03"_s);
        QCOMPARE(m_recordings->count(), 0);
    }

    void whatIsBackIsNotFoundAgain()
    {
        put("Audio - 1.m4a", m_sound);
        put("Audio - 2.aac", m_sound);
        QCOMPARE(found(), 2);
        QCOMPARE(m_recordings->bringBack(), 2);

        QCOMPARE(m_recordings->bringBack(), 0);
        QCOMPARE(found(), 0);

        QCOMPARE(lectures().size(), 2);
    }

    void aRecordingWithALectureIsNotFoundHoweverItsPathIsWritten_data()
    {
        QTest::addColumn<QString>("before");
        QTest::newRow("as it is saved") << u"/Tarvelo/Audio//"_s;
        QTest::newRow("one slash") << u"/Tarvelo/Audio/"_s;
        QTest::newRow("many") << u"//Tarvelo///Audio////"_s;
        QTest::newRow("dots") << u"/Tarvelo/./Backups/../Audio/"_s;
        QTest::newRow("a link") << u"/link/"_s;
    }
    void aRecordingWithALectureIsNotFoundHoweverItsPathIsWritten()
    {
        QFETCH(const QString, before);
        put("Audio - 1.m4a", m_sound);
        QDir().mkpath(m_places->folder() + u"/Backups"_s);
        QVERIFY(QFile::link(folder(), root() + u"/link"_s));

        aLecture().withAudio(root() + before + u"Audio - 1.m4a"_s).insertInto(*m_database);

        QCOMPARE(found(), 0);
    }

    void aLectureWithARecordingOfThatNameElsewhereIsAnother()
    {
        put("Audio - 1.m4a", m_sound);
        aLecture().withAudio(u"/elsewhere/Audio - 1.m4a"_s).insertInto(*m_database);

        QCOMPARE(found(), 1);
        QCOMPARE(m_recordings->bringBack(), 1);
        QCOMPARE(lectures().size(), 2);
    }

    void whatHoldsNoSoundIsNotOffered()
    {
        put("Audio - 1.m4a", QByteArray());
        put("Audio - 2.m4a", "no sound at all, only some words");
        put("Audio - 3.txt", m_sound);
        QDir().mkpath(folder() + u"/Audio - 4.m4a"_s);

        QCOMPARE(found(), 0);
    }

    void aRecordingThatWasCutOffComesBackWithWhatCanBeHeard()
    {
        put("Audio - 1.m4a", m_cutOff);

        QCOMPARE(found(), 1);
        QCOMPARE(m_recordings->bringBack(), 1);

        const QString duration = lectures().first().value(u"recordDuration"_s).toString();
        QVERIFY(duration >= u"00:00:01"_s && duration <= u"00:00:03"_s);
    }

    void whatACopyKnowsOfARecordingComesBackWithIt()
    {
        put("Audio - 1.m4a", m_sound);
        aLecture()
            .named("Optics")
            .withNotes("Lenses")
            .on("2019-05-06")
            .lasting("00:45:00")
            .withAudio(folder() + u"//Audio - 1.m4a"_s)
            .insertInto(*m_database);
        m_database->insertIntoDbwithSqlStatementWithArguments(u"nonsense"_s, {});

        QCOMPARE(found(), 1);
        QCOMPARE(m_recordings->bringBack(), 1);

        const Row row = lectures().first();
        QCOMPARE(row.value(u"subject"_s), QVariant(u"Optics"_s));
        QCOMPARE(row.value(u"notes"_s), QVariant(u"Lenses"_s));
        QCOMPARE(row.value(u"recordingDate"_s), QVariant(u"2019-05-06"_s));
        QCOMPARE(row.value(u"recordDuration"_s), QVariant(u"00:45:00"_s));
        Sqlite &database = *m_database->openDb();
        QCOMPARE(m_database->backups().copies(database).first().missing, 0);
    }

    void theNewestCopyIsAsked()
    {
        put("Audio - 1.m4a", m_sound);
        for (const char *subject : {"older", "newer"}) {
            aLecture()
                .named(subject)
                .withAudio(folder() + u"//Audio - 1.m4a"_s)
                .insertInto(*m_database);
            m_clock.advance(std::chrono::hours(1));
            m_database->insertIntoDbwithSqlStatementWithArguments(u"nonsense"_s, {});
        }

        QCOMPARE(found(), 1);
        QCOMPARE(m_recordings->bringBack(), 1);

        QCOMPARE(lectures().first().value(u"subject"_s), QVariant(u"newer"_s));
    }

    void aRecordingWhoseRowIsStillToBeStoredIsNotOffered()
    {
        put("Audio - 1.m4a", m_sound);
        promiseIn(u"/temp/lecture.journal"_s);

        QCOMPARE(found(), 0);
    }

    void whatThisProcessHasPromisedToALectureIsNotOffered()
    {
        put("Audio - 1.m4a", m_sound);
        put("Audio - 2.m4a", m_sound);
        m_promised = {folder() + u"//Audio - 1.m4a"_s};

        QCOMPARE(found(), 1);

        m_promised += folder() + u"//Audio - 2.m4a"_s;
        QCOMPARE(m_recordings->bringBack(), 0);
    }

    void whileThePromisesCannotBeReadNothingIsOffered_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("beside a take") << u"/temp"_s;
        QTest::newRow("beside one of a process's own") << u"/temp/take-abcdef"_s;
    }
    void whileThePromisesCannotBeReadNothingIsOffered()
    {
        QFETCH(QString, folder);
        put("Audio - 1.m4a", m_sound);
        QVERIFY(QDir().mkpath(m_places->folder() + folder));
        QCOMPARE(found(), 1);

        refuse("opendir", qPrintable(u"/Tarvelo"_s + folder));

        QCOMPARE(m_recordings->bringBack().value_or(0), 0);
        QVERIFY(wasRefused());
        QCOMPARE(found(), 1);
        QCOMPARE(m_recordings->bringBack(), 1);
    }

    // It was given up, and would keep all others back.
    void aPromiseThatWasPutAsideIsNone()
    {
        put("Audio - 1.m4a", m_sound);
        promiseIn(u"/temp/unread-lecture.journal"_s);

        QCOMPARE(found(), 1);
    }

    void aTakeIsNotReadForAJournal()
    {
        put("Audio - 1.m4a", m_sound);
        promiseIn(u"/temp/tempAudioFile.m4a"_s);

        QCOMPARE(found(), 1);
    }

    void whatGotALectureOrWentAfterTheSearchIsLeftOut()
    {
        put("Audio - 1.m4a", m_sound);
        put("Audio - 2.m4a", m_sound);
        put("Audio - 3.m4a", m_sound);
        QCOMPARE(found(), 3);

        aLecture().withAudio(folder() + u"//Audio - 1.m4a"_s).insertInto(*m_database);
        QVERIFY(QFile::remove(folder() + u"/Audio - 2.m4a"_s));

        QCOMPARE(m_recordings->bringBack(), 1);
        QCOMPARE(lectures().size(), 2);
    }

    void whileAnotherProgramHoldsTheFileNothingIsFoundAndNothingChanges()
    {
        put("Audio - 1.m4a", m_sound);
        aLecture().withoutAudio().insertInto(*m_database);
        QCOMPARE(found(), 1);
        Sqlite other(m_places->databaseFile());
        QVERIFY(other.beginTransaction());

        QVERIFY(m_recordings->bringBack().value_or(0) == 0);
        QCOMPARE(found(), 0);

        QVERIFY(other.rollback());
        QCOMPARE(lectures().size(), 1);
        QCOMPARE(found(), 1);
        QCOMPARE(m_recordings->bringBack(), 1);
    }

    void hundredsAreFoundWithoutWaitingForThem()
    {
        for (int number = 0; number < 300; ++number)
            put(qPrintable(u"Audio - %1.m4a"_s.arg(number)), m_sound);

        m_recordings->search();
        QVERIFY(m_recordings->isSearching());
        QCOMPARE(m_recordings->count(), 0);

        QTRY_VERIFY_WITH_TIMEOUT(!m_recordings->isSearching(), 120000);
        QCOMPARE(m_recordings->bringBack(), 300);
        QCOMPARE(lectures().size(), 300);
    }

    void aSearchThatIsNotWantedAnyMoreEnds()
    {
        for (int number = 0; number < 50; ++number)
            put(qPrintable(u"Audio - %1.m4a"_s.arg(number)), m_sound);

        m_recordings->search();
        m_recordings->search();
        m_recordings.reset();

        QCoreApplication::processEvents();
        QVERIFY(QFile::exists(folder() + u"/Audio - 49.m4a"_s));
    }

private:
    void prepare() override
    {
        DatabaseCase::prepare();
        m_dates = std::make_unique<tarvelo::platform::Dates>(
            m_clock, tarvelo::platform::Region{"en_US", u"UTC"_s});
        m_recordings = std::make_unique<UnlistedRecordings>(
            *m_database, *m_dates,
            UnlistedRecordings::Sources{[this] { return QString(folder() + u'/'); },
                                        [this] { return m_promised; }});
        QDir().mkpath(folder());
    }
    void finish() override
    {
        m_recordings.reset();
        m_dates.reset();
        DatabaseCase::finish();
        m_promised.clear();
    }

    QString root() const { return m_places->places().applicationSupport; }
    QString folder() const { return root() + u"/Tarvelo/Audio"_s; }
    // A journal of that name promises the first recording to a lecture.
    void promiseIn(const QString &name) const
    {
        LectureJournal journal;
        journal.isDone = true;
        journal.target = folder() + u"//Audio - 1.m4a"_s;
        QDir().mkpath(m_places->folder() + u"/temp"_s);
        QFile file(m_places->folder() + name);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(toBytes(journal)) > 0);
    }
    void put(const char *name, const QByteArray &content,
             const QDate &day = QDate(2024, 3, 1)) const
    {
        QFile file(folder() + u'/' + QLatin1String(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        QVERIFY(file.flush());
        QVERIFY(file.setFileTime(QDateTime(day, QTime(12, 0), Qt::UTC),
                                 QFileDevice::FileModificationTime));
    }
    int found() const
    {
        m_recordings->search();
        static_cast<void>(QTest::qWaitFor([this] { return !m_recordings->isSearching(); }, 120000));
        return m_recordings->isSearching() ? -1 : m_recordings->count();
    }
    Rows lectures() const
    {
        return m_database->openDb()
            ->executeQuery(u"select * from audioData order by ID"_s)
            .value_or(Rows());
    }

    QByteArray m_sound;
    QByteArray m_cutOff;
    std::unique_ptr<tarvelo::platform::Dates> m_dates;
    QStringList m_promised;
    std::unique_ptr<UnlistedRecordings> m_recordings;
};

QTEST_GUILESS_MAIN(UnlistedRecordingsTest)
#include "UnlistedRecordingsTest.moc"
