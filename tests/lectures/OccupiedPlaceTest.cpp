// What stands where the next take would be written, and cannot be moved away just now: nothing of
// it is lost, and nothing of what comes next.

#include "lectures/ProgramCase.h"
#include "platform/FolderLock.h"
#include "support/FileContent.h"
#include "support/RefusedCalls.h"

#include <QDirIterator>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::store::LectureJournal;
using tarvelo::tests::contentOf;
using tarvelo::tests::refuse;
using tarvelo::tests::RefusedInTurn;
using tarvelo::tests::refuseNothing;
using tarvelo::tests::writeContent;

class OccupiedPlaceTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    void aLeftTakeThatCannotBeMovedAtStartIsNotWrittenOver_data()
    {
        QTest::addColumn<QByteArray>("call");
        QTest::addColumn<QByteArray>("path");
        QTest::newRow("its name") << QByteArray("rename") << QByteArray("/tempAudioFile.m4a");
        QTest::newRow("its content") << QByteArray("fsync") << QByteArray("/tempAudioFile.m4a");
        QTest::newRow("the journal's name")
            << QByteArray("rename") << QByteArray("/lecture.journal");
        QTest::newRow("the journal's content")
            << QByteArray("read") << QByteArray("/lecture.journal");
        QTest::newRow("the folder") << QByteArray("opendir") << QByteArray("/temp");
    }
    void aLeftTakeThatCannotBeMovedAtStartIsNotWrittenOver()
    {
        QFETCH(QByteArray, call);
        QFETCH(QByteArray, path);
        leaveTakeAndJournal();
        refuse(call.constData(), path.constData());

        m_program->showDay(m_program->today());
        QVERIFY(tarvelo::tests::wasRefused());
        m_program->recordNewLecture(3);
        subject().setText(u"Acoustics"_s);
        m_program->finishNewLecture();

        QCOMPARE(m_program->subjectsShown(), QStringList({u"Acoustics"_s}));
        QCOMPARE(contentOf(m_program->storedRows().value(0)["audioFileFullPath"_L1].toString()),
                 QByteArray("a take"));
        m_program->clock.advance(10s);
        expectLeftLecture();
    }

    void whicheverCallFailsOnceAtStartBothLecturesAreThere()
    {
        RefusedInTurn calls("/Tarvelo/temp");
        while (calls.areLeft()) {
            prepare();
            leaveTakeAndJournal();
            calls.refuse();
            m_program->showDay(m_program->today());
            calls.allow();

            m_program->recordNewLecture(3);
            subject().setText(u"Acoustics"_s);
            m_program->finishNewLecture();
            m_program->clock.advance(10s);

            QVERIFY2(foundInHome(takeBytes()), calls.which());
            QVERIFY2(foundInHome("wave optics"), calls.which());
            const auto rows = m_program->storedRows();
            QVERIFY2(rows.size() == 1, calls.which());
            QVERIFY2(contentOf(rows[0]["audioFileFullPath"_L1].toString()) == "a take",
                     calls.which());
        }
        QVERIFY2(calls.count() > 20, calls.which());
    }

    void whicheverCallFailsOnceWhileItIsKeptTheLectureIsThere()
    {
        RefusedInTurn calls("/Tarvelo/");
        while (calls.areLeft()) {
            prepare();
            m_program->showDay(m_program->today());
            m_program->recordNewLecture(3);
            QVERIFY(writeContent(controller().tempAudioSavePath(), takeBytes()));
            subject().setText(u"Acoustics"_s);
            controller().journal().flush();
            calls.refuse();
            m_program->finishNewLecture();
            calls.allow();

            m_program->recordNewLecture(4);
            m_program->clock.advance(10s);

            QVERIFY2(foundInHome(takeBytes()), calls.which());
            const auto rows = m_program->storedRows();
            QVERIFY2(rows.size() == 1 && rows[0]["subject"_L1] == u"Acoustics"_s, calls.which());
        }
        QVERIFY2(calls.count() > 60, calls.which());
    }

    void withoutARoomOfItsOwnEitherNothingIsWrittenOver()
    {
        leaveTakeAndJournal();
        refuse("fsync", "/tempAudioFile.m4a", 1000);
        refuse("mkdtemp", "/temp", 1000);
        m_program->showDay(m_program->today());

        m_program->recordNewLecture(3);
        refuseNothing();
        m_program->finishNewLecture();
        m_program->clock.advance(10s);

        expectLeftLecture();
    }

    // The row cannot be stored either, and there is no journal.
    void whatIsDoneWithoutARoomOfItsOwnIsStoredLater()
    {
        leaveTakeAndJournal();
        refuse("fsync", "/tempAudioFile.m4a", 1000);
        refuse("mkdtemp", "/temp", 1000);
        m_program->showDay(m_program->today());
        tarvelo::tests::aLecture().named("earlier").insertInto(m_program->database);
        m_program->recordNewLecture(3);
        subject().setText(u"Acoustics"_s);
        {
            tarvelo::store::Sqlite other(m_program->places.databaseFile());
            QVERIFY(other.beginTransaction());
            m_program->finishNewLecture();
        }

        m_program->clock.advance(10s);

        QCOMPARE(m_program->storedRows().size(), 2);
        QCOMPARE(m_program->storedRows().value(1)["subject"_L1], u"Acoustics"_s);
    }

    void whatALivingProcessRecordsIsNotTouched()
    {
        leaveTakeAndJournal();
        tarvelo::platform::FolderLock other;
        QVERIFY(other.own(folder()));
        m_program->showDay(m_program->today());

        m_program->recordNewLecture(3);
        subject().setText(u"Acoustics"_s);
        m_program->finishNewLecture();

        QCOMPARE(contentOf(folder() + u"/tempAudioFile.m4a"_s), takeBytes());
        QCOMPARE(m_program->storedRows().size(), 1);
        QCOMPARE(contentOf(m_program->storedRows().value(0)["audioFileFullPath"_L1].toString()),
                 QByteArray("a take"));
    }

    void whatASecondProcessLeftIsOfferedWhenItIsDead_data()
    {
        QTest::addColumn<bool>("isAlive");
        QTest::newRow("dead") << false;
        QTest::newRow("alive") << true;
    }
    void whatASecondProcessLeftIsOfferedWhenItIsDead()
    {
        QFETCH(bool, isAlive);
        const QString itsOwn = folder() + u"/take-abcdef"_s;
        leaveTakeAndJournal(itsOwn);
        tarvelo::platform::FolderLock second;
        QVERIFY(!isAlive || second.own(itsOwn));

        m_program->showDay(m_program->today());

        if (isAlive) {
            QVERIFY(controller().leftLectures().undecided().isEmpty());
            QCOMPARE(contentOf(itsOwn + u"/tempAudioFile.m4a"_s), takeBytes());
        } else {
            expectLeftLecture();
            QVERIFY(!QFile::exists(itsOwn));
        }
        QCOMPARE(controller().tempAudioSavePath(), folder() + u"/tempAudioFile.m4a"_s);
    }

    void aSecondProcessHasAFolderOfItsOwn()
    {
        tarvelo::platform::FolderLock other;
        QVERIFY(QDir().mkpath(folder()) && other.own(folder()));
        m_program->showDay(m_program->today());
        const QString itsOwn = QFileInfo(controller().tempAudioSavePath()).path();
        QVERIFY(itsOwn.startsWith(folder() + u"/take-"_s) && QFile::exists(itsOwn));
        m_program->recordNewLecture(3);
        m_program->finishNewLecture();
        controller().journal().flush();
        QCOMPARE(QDir(itsOwn).entryList(QDir::Files), QStringList());
    }

    void aLectureThatIsOwedOutlivesAJournalThatCannotBeWritten()
    {
        m_program->showDay(m_program->today());
        tarvelo::tests::aLecture().named("earlier").insertInto(m_program->database);
        m_program->recordNewLecture(3);
        subject().setText(u"Optics"_s);
        auto other = lockAndRefuseJournals();
        QVERIFY(other);

        m_program->finishNewLecture();
        m_program->recordNewLecture(4);
        m_program->clock.advance(10s);
        QVERIFY(other->rollback());
        other.reset();
        m_program->clock.advance(10s);
        refuseNothing();
        m_program->clock.advance(10s);

        QCOMPARE(m_program->storedRows().size(), 2);
        QCOMPARE(m_program->storedRows().value(1)["subject"_L1], u"Optics"_s);
        QCOMPARE(contentOf(m_program->storedRows().value(1)["audioFileFullPath"_L1].toString()),
                 QByteArray("a take"));
    }

    void whatIsChangedInOneWhoseJournalCannotBeWrittenIsStoredWithIt()
    {
        m_program->showDay(m_program->today());
        m_program->recordNewLecture(3);
        subject().setText(u"Optics"_s);
        auto other = lockAndRefuseJournals();
        QVERIFY(other);
        m_program->finishNewLecture();

        m_program->change(0, u"wave optics"_s, u"Huygens"_s);
        QVERIFY(other->rollback());
        other.reset();
        m_program->clock.advance(10s);
        refuseNothing();
        m_program->clock.advance(10s);

        QCOMPARE(m_program->storedTexts(), QStringList{u"wave optics: Huygens"_s});
    }

    // It is not seen for a moment, and its lecture is stored without it.
    void aTakeThatWasOverlookedIsNotWrittenOver()
    {
        m_program->showDay(m_program->today());
        m_program->recordNewLecture(3);
        QVERIFY(writeContent(controller().tempAudioSavePath(), takeBytes()));
        m_program->windows.newLectureOutlets().BtnDoneOrClose->click();
        refuse("access", "/tempAudioFile.m4a");
        m_program->clock.advance(200ms);
        QVERIFY(tarvelo::tests::wasRefused());
        QCOMPARE(m_program->storedRows().value(0)["recordDuration"_L1], u"No Audio"_s);

        m_program->recordNewLecture(4);

        const auto lectures = controller().leftLectures().undecided();
        QCOMPARE(lectures.size(), 1);
        QCOMPARE(contentOf(lectures[0].takePath), takeBytes());
    }

    void whatIsOwedIsWrittenDownAtTheEndAtLast()
    {
        m_program->showDay(m_program->today());
        m_program->recordNewLecture(3);
        subject().setText(u"Optics"_s);
        auto other = std::make_unique<tarvelo::store::Sqlite>(m_program->places.databaseFile());
        m_program->database.openDb();
        QVERIFY(other->beginTransaction());
        controller().journal().flush();
        refuse("pwrite", ".journal.spare", 1000, ENOSPC);
        m_program->finishNewLecture();
        refuseNothing();

        controller().saveWhatWaits();

        QCOMPARE(controller().leftLectures().owed(), 1);
    }

    void notesThatCouldNotBeWrittenOnceAreWrittenSoon()
    {
        m_program->showDay(m_program->today());
        controller().onAddItem(nullptr);
        controller().journal().flush();
        refuse("pwrite", ".journal.spare", 2);
        subject().setText(u"Optics"_s);
        m_program->clock.advance(4s);
        controller().journal().flush();
        QVERIFY(tarvelo::tests::wasRefused());

        m_program->clock.advance(4s);

        controller().journal().flush();
        QVERIFY(contentOf(folder() + u"/lecture.journal"_s).contains("Optics"));
    }

    void twoLecturesOfTheSameNotesAreTwo()
    {
        m_program->showDay(m_program->today());
        for (int i = 0; i < 2; ++i) {
            std::unique_ptr<tarvelo::store::Sqlite> other;
            if (i == 1) {
                other = std::make_unique<tarvelo::store::Sqlite>(m_program->places.databaseFile());
                QVERIFY(other->beginTransaction());
            }
            controller().onAddItem(nullptr);
            subject().setText(u"Optics"_s);
            m_program->finishNewLecture();
        }

        m_program->clock.advance(20s);

        QCOMPARE(m_program->storedRows().size(), 2);
    }

protected:
    void prepare() override
    {
        ProgramCase::prepare();
        m_program->defaults.setValue(u"fileFormat"_s, 1);
    }
    void finish() override
    {
        refuseNothing();
        ProgramCase::finish();
    }

private:
    QLineEdit &subject() { return *m_program->windows.newLectureOutlets().txtSubjectForNewNote; }
    QString folder() const { return m_program->places.folder() + u"/temp"_s; }

    // Too large to be taken for one in which nothing can be heard.
    static QByteArray takeBytes() { return QByteArray(100'000, 's'); }
    bool foundInHome(const QByteArray &content) const
    {
        QDirIterator files(m_program->places.folder(), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            if (contentOf(files.next()).contains(content))
                return true;
        return false;
    }
    // Neither a row nor a journal can be written until it is gone, and refuseNothing() was called.
    std::unique_ptr<tarvelo::store::Sqlite> lockAndRefuseJournals()
    {
        auto other = std::make_unique<tarvelo::store::Sqlite>(m_program->places.databaseFile());
        if (!other->beginTransaction())
            return nullptr;
        controller().journal().flush();
        refuse("pwrite", ".journal.spare", 1000, ENOSPC);
        return other;
    }
    void leaveTakeAndJournal() const { leaveTakeAndJournal(folder()); }
    static void leaveTakeAndJournal(const QString &folder)
    {
        QDir().mkpath(folder);
        QVERIFY(writeContent(folder + u"/tempAudioFile.m4a"_s, takeBytes()));
        LectureJournal journal;
        journal.id = u"20240304T080000000"_s;
        journal.subject = u"wave optics"_s;
        journal.day = u"2024-02-29"_s;
        journal.take = folder + u"/tempAudioFile.m4a"_s;
        QVERIFY(writeContent(folder + u"/lecture.journal"_s, tarvelo::store::toBytes(journal)));
    }
    void expectLeftLecture()
    {
        const auto lectures = controller().leftLectures().undecided();
        QCOMPARE(lectures.size(), 1);
        QCOMPARE(lectures[0].journal.subject, u"wave optics"_s);
        QCOMPARE(contentOf(lectures[0].takePath), takeBytes());
    }
};

QTEST_MAIN(OccupiedPlaceTest)
#include "OccupiedPlaceTest.moc"
