#include "audio/LeftFiles.h"

#include "audio/LeftStage.h"
#include "support/FileContent.h"
#include "support/RefusedCalls.h"
#include "support/TestCase.h"

using namespace Qt::StringLiterals;
using tarvelo::audio::LeftFiles;
using tarvelo::store::JournalFile;
using tarvelo::store::LectureJournal;
using tarvelo::tests::contentOf;
using tarvelo::tests::LeftStage;
using tarvelo::tests::refuse;
using tarvelo::tests::RefusedInTurn;

class LeftFilesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsMovedHasTheMomentOfTheLecture()
    {
        m_stage->leaveTake();
        m_stage->leaveJournal();

        QVERIFY(files().moveFrom(folder()));

        QCOMPARE(m_stage->names(), QStringList({u"leftover-20240304T080000000.journal"_s,
                                                u"leftover-20240304T080000000.m4a"_s}));
    }

    void aCallThatFailsOnceLosesAndPartsNothing_data()
    {
        QTest::addColumn<QByteArray>("call");
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<bool>("isMovedAtOnce");
        // A journal is tried again at once: its recording is moved by then.
        for (const char *call : {"rename", "fsync"}) {
            QTest::addRow("%s of the take", call)
                << QByteArray(call) << QByteArray("/tempAudioFile.m4a") << false;
            QTest::addRow("%s of the journal", call)
                << QByteArray(call) << QByteArray("/lecture.journal") << true;
        }
        QTest::newRow("the journal is read")
            << QByteArray("read") << QByteArray("/lecture.journal") << true;
        QTest::newRow("the folder is read")
            << QByteArray("opendir") << QByteArray("/temp") << false;
    }
    void aCallThatFailsOnceLosesAndPartsNothing()
    {
        QFETCH(QByteArray, call);
        QFETCH(QByteArray, path);
        QFETCH(bool, isMovedAtOnce);
        m_stage->leaveTake();
        m_stage->leaveJournal();
        refuse(call.constData(), path.constData());

        QCOMPARE(files().moveFrom(folder()), isMovedAtOnce);
        QVERIFY(tarvelo::tests::wasRefused());
        QVERIFY(files().moveFrom(folder()));

        expectOneLecture();
    }

    // A look at it may fail by itself.
    void aShortTakeThatCannotBeReadNowIsNotThrownAway()
    {
        m_stage->write(m_stage->takePath(), m_stage->takeBytes());
        QVERIFY(QFileInfo(m_stage->takePath()).size() < 64 << 10);
        refuse("read", "/tempAudioFile.m4a");

        QVERIFY(files().moveFrom(folder()));

        QVERIFY(tarvelo::tests::wasRefused());
        QCOMPARE(files().all()->size(), 1);
        QVERIFY(!files().all()->at(0).takePath.isEmpty());
    }

    void aJournalThatCannotBeReadNowIsKnownForThat()
    {
        m_stage->leaveJournal();
        QVERIFY(files().moveFrom(folder()));
        refuse("read", ".journal");

        QVERIFY(files().all()->at(0).journalFile.state == JournalFile::State::Unreadable);
        QVERIFY(files().all()->at(0).journalFile.state == JournalFile::State::Read);
    }

    // A slow disk had not taken it when the program was killed.
    void whatIsAheadOfTheJournalCounts()
    {
        leaveLatest();

        QVERIFY(files().moveFrom(folder()));

        const auto all = files().all().value();
        QCOMPARE(all.size(), 1);
        QCOMPARE(all[0].journalFile.journal.notes, u"Fresnel"_s);
        QVERIFY(!all[0].takePath.isEmpty());
        QCOMPARE(m_stage->names().size(), 2);
    }

    void whicheverCallFailsOnceWhatIsAheadOfTheJournalIsThereOnce()
    {
        RefusedInTurn calls("/temp");
        while (calls.areLeft()) {
            finish();
            prepare();
            leaveLatest();

            calls.refuse();
            static_cast<void>(files().moveFrom(folder()));
            calls.allow();

            QVERIFY(files().moveFrom(folder()));
            const auto all = files().all().value();
            QVERIFY2(all.size() == 1, calls.which());
            QCOMPARE(all[0].journalFile.journal.notes, u"Fresnel"_s);
            QVERIFY(!all[0].takePath.isEmpty());
        }
        QVERIFY2(calls.count() > 10, calls.which());
    }

    void whatIsAheadAndStaysUnreadableKeepsNothingElseBack()
    {
        leaveLatest();
        tarvelo::tests::refuse("read", "lecture.latest", 1000);

        QVERIFY(files().moveFrom(folder()));
        tarvelo::tests::refuseNothing();

        const auto all = files().all().value();
        QCOMPARE(all.size(), 1);
        QCOMPARE(all[0].journalFile.journal.notes, LeftStage::journal().notes);
        QVERIFY(QFile::exists(folder() + u"/unread-lecture.latest"_s));
    }

    // Either may have been the one that stands.
    void aJournalThatCannotBeReadKeepsItsRecordingBackForADay_data()
    {
        QTest::addColumn<bool>("isOutOfTheWay");
        QTest::newRow("beside the take") << false;
        QTest::newRow("out of the way") << true;
    }
    void aJournalThatCannotBeReadKeepsItsRecordingBackForADay()
    {
        QFETCH(bool, isOutOfTheWay);
        m_stage->leaveTake();
        m_stage->leaveJournal();
        QVERIFY(!isOutOfTheWay || files().moveFrom(folder()));
        refuse("read", ".journal", 1000);
        m_stage->clock.set(QDateTime::currentDateTimeUtc());
        QCOMPARE(files().moveFrom(folder()), isOutOfTheWay);
        QCOMPARE(m_stage->names().filter(u"unread"_s), QStringList());

        m_stage->clock.set(QDateTime::currentDateTimeUtc().addDays(3));
        QVERIFY(files().moveFrom(folder()));
        tarvelo::tests::refuseNothing();

        const auto all = files().all().value();
        QCOMPARE(all.size(), 1);
        QVERIFY(!all[0].takePath.isEmpty());
        QVERIFY(all[0].journalFile.state == JournalFile::State::Missing);
        const QStringList unread = m_stage->names().filter(u"unread-"_s);
        QCOMPARE(unread.size(), 1);
        QVERIFY(contentOf(folder() + u'/' + unread[0]).contains("Huygens"));
    }

    void whatWasPutAsideIsOfferedWhenItCanBeRead_data()
    {
        aJournalThatCannotBeReadKeepsItsRecordingBackForADay_data();
    }
    void whatWasPutAsideIsOfferedWhenItCanBeRead()
    {
        QFETCH(bool, isOutOfTheWay);
        m_stage->leaveTake();
        m_stage->leaveJournal();
        QVERIFY(!isOutOfTheWay || files().moveFrom(folder()));
        refuse("read", ".journal", 1000);
        m_stage->clock.set(QDateTime::currentDateTimeUtc().addDays(3));
        for (int time = 0; time < 3; ++time)
            QVERIFY(files().moveFrom(folder()));
        QCOMPARE(m_stage->names().filter(u"unread-"_s).size(), 1);
        QCOMPARE(m_stage->names().filter(u"unread-unread-"_s), QStringList());
        tarvelo::tests::refuseNothing();

        QVERIFY(files().moveFrom(folder()));

        QCOMPARE(m_stage->names().filter(u"unread-"_s), QStringList());
        const auto all = files().all().value();
        QCOMPARE(
            std::ranges::count_if(
                all, [](const auto &left) { return left.journalFile.journal.notes == u"Huygens"; }),
            1);
        QCOMPARE(
            std::ranges::count_if(all, [](const auto &left) { return !left.takePath.isEmpty(); }),
            1);
        // The recording may be kept by now: the texts do not join it.
        QCOMPARE(all.size(), 2);
    }

    // A lecture of it may be stored by now, or deleted.
    void whatWasDoneAndPutAsideIsOfferedAndNotStoredUnasked()
    {
        LectureJournal journal = LeftStage::journal();
        journal.isDone = true;
        journal.target = m_stage->places.folder() + u"/Audio//gone.m4a"_s;
        LeftStage::write(m_stage->file("unread-lecture.journal"), tarvelo::store::toBytes(journal));

        QVERIFY(files().moveFrom(folder()));

        const auto all = files().all().value();
        QCOMPARE(all.size(), 1);
        QCOMPARE(all[0].journalFile.journal.notes, u"Huygens"_s);
        QVERIFY(!all[0].journalFile.journal.isDone);
        QVERIFY(all[0].journalFile.journal.target.isEmpty());
    }

    // It is of a lecture whose journal was read without it.
    void whatIsAheadAndWasPutAsideStaysThere()
    {
        LeftStage::write(m_stage->file("unread-lecture.latest"),
                         tarvelo::store::toBytes(LeftStage::journal()));

        QVERIFY(files().moveFrom(folder()));

        QVERIFY(files().all()->isEmpty());
        QVERIFY(QFile::exists(m_stage->file("unread-lecture.latest")));
    }

    // Nothing waits for it, and it may be read tomorrow.
    void aJournalThatCannotBeReadAndHasNoRecordingIsNotPutAside()
    {
        m_stage->leaveJournal();
        LeftStage::write(m_stage->file("leftover-20240303T080000000.journal"), "{}");
        refuse("read", ".journal", 1000);
        m_stage->clock.set(QDateTime::currentDateTimeUtc().addDays(3));

        QVERIFY(!files().moveFrom(folder()));
        tarvelo::tests::refuseNothing();

        QCOMPARE(m_stage->names().filter(u"unread-"_s), QStringList());
    }

    // Its own recording is in its place already, or it never had one.
    void aStrayTakeOfAnotherFormatIsNotTheJournalsOwn_data()
    {
        QTest::addColumn<QString>("take");
        QTest::addColumn<QString>("target");
        QTest::newRow("with a recording")
            << u"tempAudioFile.m4a"_s << u"/home/Audio/Audio - 20240304080000.m4a"_s;
        QTest::newRow("without one") << QString() << QString();
    }
    void aStrayTakeOfAnotherFormatIsNotTheJournalsOwn()
    {
        QFETCH(QString, take);
        QFETCH(QString, target);
        LeftStage::write(m_stage->file("tempAudioFile.aac"), QByteArray(100'000, 's'));
        LectureJournal journal = LeftStage::journal();
        journal.isDone = true;
        journal.take = take;
        journal.target = target;
        m_stage->leaveJournal(journal);

        QVERIFY(files().moveFrom(folder()));

        const auto all = files().all().value();
        QCOMPARE(all.size(), 2);
        for (const LeftFiles::Leftover &left : all)
            QCOMPARE(left.journalFile.state == JournalFile::State::Read, left.takePath.isEmpty());
    }

    void twoThatCannotBeReadAreBothKept()
    {
        leaveLatest();
        LeftStage::write(m_stage->file("unread-lecture.latest"), "another");
        refuse("read", "lecture.latest", 1000);

        QVERIFY(files().moveFrom(folder()));
        tarvelo::tests::refuseNothing();

        QCOMPARE(contentOf(m_stage->file("unread-lecture.latest")), QByteArray("another"));
        QVERIFY(contentOf(m_stage->file("unread-lecture.latest-2")).contains("Fresnel"));
    }

    // A take of another format stands there as well.
    void whicheverCallFailsOnceAStrayTakeGetsNoOtherLecturesNotes()
    {
        RefusedInTurn calls("/temp");
        while (calls.areLeft()) {
            finish();
            prepare();
            m_stage->leaveTake();
            m_stage->leaveJournal();
            LeftStage::write(m_stage->file("tempAudioFile.aac"), QByteArray(100'000, 's'));
            LectureJournal journal = LeftStage::journal();
            journal.take = m_stage->file("tempAudioFile.aac");
            m_stage->leaveJournal(journal);

            calls.refuse();
            static_cast<void>(files().moveFrom(folder()));
            calls.allow();

            QVERIFY(files().moveFrom(folder()));
            const auto all = files().all().value();
            QVERIFY2(all.size() == 2, calls.which());
            for (const LeftFiles::Leftover &left : all)
                QVERIFY2((left.journalFile.state == JournalFile::State::Read) ==
                             left.takePath.endsWith(u".aac"_s),
                         calls.which());
        }
        QVERIFY2(calls.count() > 10, calls.which());
    }

    void aTakeUnderTheNameIsNotWrittenOver()
    {
        LeftStage::write(m_stage->file("leftover-20240304T080000000.m4a"), "another");
        m_stage->leaveTake();
        m_stage->leaveJournal();

        QVERIFY(files().moveFrom(folder()));

        QCOMPARE(QFile(m_stage->file("leftover-20240304T080000000.m4a")).size(), 7);
        QVERIFY(QFile::exists(m_stage->file("leftover-20240304T080000000-2.m4a")));
        QVERIFY(QFile::exists(m_stage->file("leftover-20240304T080000000-2.journal")));
    }

    void fromAnotherFolderAllOfItIsMoved()
    {
        const QString other = folder() + u"/take-abcdef"_s;
        QVERIFY(QDir().mkdir(other));
        LeftStage::write(other + u"/tempAudioFile.m4a"_s, LeftStage::takeBytes());
        LeftStage::write(other + u"/lecture.journal"_s,
                         tarvelo::store::toBytes(LeftStage::journal()));
        LectureJournal earlier = LeftStage::journal();
        earlier.subject = u"earlier"_s;
        LeftStage::write(other + u"/leftover-20240303T080000000.journal"_s,
                         tarvelo::store::toBytes(earlier));
        LeftStage::write(other + u"/leftover-20240303T080000000.aac"_s, LeftStage::takeBytes());

        QVERIFY(files().moveFrom(other));

        const auto all = files().all().value();
        QCOMPARE(all.size(), 2);
        QCOMPARE(all[0].journalFile.journal.subject, u"earlier"_s);
        QVERIFY(all[0].takePath.endsWith(u".aac"_s));
        QCOMPARE(all[1].journalFile.journal.subject, u"wave optics"_s);
        QVERIFY(!all[1].takePath.isEmpty());
        QVERIFY(QDir(other).isEmpty());
    }

    void whatWasLeftOnPurposeInAnotherFolderStaysThere()
    {
        const QString other = otherFolderWithClosedTake();

        QVERIFY(files().moveFrom(other));

        QVERIFY(files().all()->isEmpty());
        QVERIFY(QFile::exists(other + u"/tempAudioFile.m4a"_s));
    }

    // The next lecture replaces it there, as one that was left on purpose in this very folder.
    void whatWasLeftOnPurposeElsewhereIsBroughtWhereTheNextLectureIs()
    {
        const QString other = otherFolderWithClosedTake();

        files().moveClosedFrom(other);

        QVERIFY(QFile::exists(m_stage->file("tempAudioFile.m4a")));
        QVERIFY(QFile::exists(m_stage->file("lecture.closed")));
        QVERIFY(QDir(other).isEmpty());
        QVERIFY(files().moveFrom(folder()));
        QVERIFY(files().all()->isEmpty());
    }

    void whereSomethingStandsItIsBroughtAnotherTime_data()
    {
        QTest::addColumn<QString>("inTheWay");
        for (const char *name : {"tempAudioFile.aac", "lecture.journal", "lecture.closed"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void whereSomethingStandsItIsBroughtAnotherTime()
    {
        QFETCH(QString, inTheWay);
        const QString other = otherFolderWithClosedTake();
        LeftStage::write(folder() + u'/' + inTheWay, "something");

        files().moveClosedFrom(other);

        QCOMPARE(m_stage->names(), QStringList{inTheWay});
        QCOMPARE(QDir(other).entryList(QDir::Files).size(), 2);
    }

    void aCallThatFailsWhileItIsBroughtCostsNoTake_data()
    {
        QTest::addColumn<QByteArray>("which");
        QTest::newRow("the mark") << QByteArray("lecture.closed");
        QTest::newRow("the take") << QByteArray("tempAudioFile");
    }
    void aCallThatFailsWhileItIsBroughtCostsNoTake()
    {
        QFETCH(QByteArray, which);
        const QString other = otherFolderWithClosedTake();

        refuse("rename", which.constData());
        files().moveClosedFrom(other);

        QCOMPARE(contentOf(other + u"/tempAudioFile.m4a"_s), LeftStage::takeBytes());
        QVERIFY(!QFile::exists(m_stage->file("tempAudioFile.m4a")));
    }

    void ofAFolderThatCannotBeReadNothingIsKnown()
    {
        QVERIFY(!LeftFiles(folder() + u"/missing"_s, u"tempAudioFile"_s, m_stage->dates).all());
    }

private:
    void prepare() override { m_stage = std::make_unique<LeftStage>(); }
    void finish() override
    {
        tarvelo::tests::refuseNothing();
        m_stage.reset();
    }

    QString folder() const { return m_stage->locations.temporaryFolder(); }
    void leaveLatest() const
    {
        m_stage->leaveTake();
        m_stage->leaveJournal();
        LectureJournal journal = LeftStage::journal();
        journal.notes = u"Fresnel"_s;
        journal.version = 1;
        QVERIFY(tarvelo::store::writeLatest(m_stage->file("lecture.journal"),
                                            tarvelo::store::toBytes(journal)));
    }
    QString otherFolderWithClosedTake() const
    {
        const QString other = folder() + u"/take-abcdef"_s;
        QDir().mkdir(other);
        LeftStage::write(other + u"/tempAudioFile.m4a"_s, LeftStage::takeBytes());
        LeftStage::write(other + u"/lecture.closed"_s, "");
        return other;
    }
    LeftFiles files() const { return {folder(), u"tempAudioFile"_s, m_stage->dates}; }
    void expectOneLecture() const
    {
        const auto all = files().all().value();
        QCOMPARE(all.size(), 1);
        QCOMPARE(all[0].journalFile.journal.subject, u"wave optics"_s);
        QCOMPARE(QFileInfo(all[0].takePath).size(), LeftStage::takeBytes().size());
    }

    std::unique_ptr<LeftStage> m_stage;
};

QTEST_GUILESS_MAIN(LeftFilesTest)
#include "LeftFilesTest.moc"
