#include "lectures/LectureJournalKeeper.h"

#include "lectures/ProgramCase.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::lectures::LectureJournalKeeper;
using tarvelo::store::JournalFile;
using tarvelo::store::readJournal;
using tarvelo::tests::LectureProgram;
using tarvelo::tests::theDay;
using State = tarvelo::store::LectureJournal::State;

class LectureJournalKeeperTest final : public tarvelo::tests::TodayCase
{
    Q_OBJECT

private Q_SLOTS:
    void anOpenLectureIsWrittenDown()
    {
        controller().prepareViewForDate(theDay("2024-12-31"));
        controller().onAddItem(nullptr);

        const auto journal = written();

        QVERIFY(journal);
        QCOMPARE(journal->id, u"20240305T090000500"_s);
        QCOMPARE(journal->day + u' ' + journal->date, u"2024-12-31 2024-12-31"_s);
        QVERIFY(journal->state == State::Idle && !journal->isDone && journal->isBlank());
    }

    void theFileIsForItsUserAlone()
    {
        controller().onAddItem(nullptr);
        QVERIFY(written());

        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(file("lecture.journal")).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, 0600U);
    }

    void withoutAnOpenLectureNothingIsWritten()
    {
        subject().setText(u"Optics"_s);
        m_program->clock.advance(1min);

        QVERIFY(!written());
    }

    void whatIsTypedIsWrittenWithinFiveSeconds()
    {
        controller().onAddItem(nullptr);
        QTest::keyClicks(&subject(), u"Optics"_s);
        QTest::keyClicks(&notes(), u"Lenses"_s);
        QCOMPARE(written()->subject, QString());

        m_program->clock.advance(4s);

        QCOMPARE(written()->subject, u"Optics"_s);
        QCOMPARE(written()->notes, u"Lenses"_s);
    }

    void typingThatGoesOnIsWrittenNotOftenerThanThat()
    {
        controller().onAddItem(nullptr);
        for (int second = 0; second < 12; ++second) {
            QTest::keyClick(&notes(), 'a');
            m_program->clock.advance(1s);
            QCOMPARE(written()->notes.size(), (second + 1) / 4 * 4);
        }
    }

    void aPauseInTypingMakesTheNextChangeBeWrittenAtOnce()
    {
        controller().onAddItem(nullptr);
        m_program->clock.advance(1h);

        QTest::keyClick(&notes(), 'a');
        m_program->clock.advance(0ms);

        QCOMPARE(written()->notes, u"a"_s);
    }

    void aClockThatIsPutBackDelaysNothing()
    {
        controller().onAddItem(nullptr);
        m_program->clock.set(m_program->clock.now().addDays(-1));
        QTest::keyClick(&notes(), 'a');

        m_program->clock.advance(4s);

        QCOMPARE(written()->notes, u"a"_s);
    }

    void everyStateOfTheRecordingIsWrittenAtOnce()
    {
        controller().onAddItem(nullptr);
        recording().btnStartRecord->click();
        QVERIFY(written()->state == State::Recording);
        QCOMPARE(written()->take, controller().tempAudioSavePath());

        m_program->engine.recordedSeconds = 7;
        recording().btnPauseResumeRecording->click();
        QVERIFY(written()->state == State::Paused);
        QCOMPARE(written()->seconds, 7.0);

        recording().btnPauseResumeRecording->click();
        QVERIFY(written()->state == State::Recording);

        m_program->engine.recordedSeconds = 9;
        recording().btnStopRecord->click();
        QVERIFY(written()->state == State::Stopped);
        QCOMPARE(written()->seconds, 9.0);
    }

    void aRunningTakeIsFollowed()
    {
        controller().onAddItem(nullptr);
        recording().btnStartRecord->click();
        m_program->engine.recordedSeconds = 4;

        m_program->clock.advance(4s);

        QCOMPARE(written()->seconds, 4.0);
    }

    void aTimeTagIsWrittenAtOnce()
    {
        controller().onAddItem(nullptr);
        recording().btnStartRecord->click();
        m_program->engine.recordedSeconds = 1;
        m_program->clock.advance(1s);

        recording().btnTimeTag->click();

        QVERIFY(written()->notes.contains(u"00:00:01"_s));
    }

    void doneTakesTheJournalAway()
    {
        m_program->recordNewLecture(3);
        subject().setText(u"Optics"_s);

        m_program->windows.newLectureOutlets().BtnDoneOrClose->click();
        QVERIFY(written()->isDone);
        QCOMPARE(written()->subject, u"Optics"_s);
        m_program->clock.advance(200ms);

        QVERIFY(!written());
        QCOMPARE(names(), QStringList({u".owner"_s}));
        m_program->clock.advance(1min);
        QVERIFY(!written());
    }

    // Without a database the row is not stored, and the journal shows how it stood then.
    // Nobody looks after the lecture any more once it has gone.
    void whenTheWindowGoesTheJournalSaysThatItIsDone()
    {
        m_program->recordNewLecture(3);
        QTest::keyClicks(&notes(), u"Lenses"_s);
        QWidget &window = *m_program->windows.newLectureOutlets().newNoteWindow;
        m_watched = &window;
        window.installEventFilter(this);

        m_program->windows.newLectureOutlets().BtnDoneOrClose->click();

        QVERIFY(window.isHidden());
        QVERIFY(m_whenHidden.state == JournalFile::State::Read);
        QVERIFY(m_whenHidden.journal.isDone);
        QCOMPARE(m_whenHidden.journal.notes, u"Lenses"_s);
    }

    void beforeTheTakeIsMovedTheJournalSaysWhere()
    {
        m_program = std::make_unique<LectureProgram>();
        QDir().mkpath(m_program->places.folder() + u"/TarveloInfo.db"_s);
        m_program->showDay(m_program->today());
        m_program->recordNewLecture(3);

        m_program->finishNewLecture();

        const auto journal = written();
        QVERIFY(journal && journal->isDone);
        QCOMPARE(journal->target, controller().arrangedObjects().at(0)->strLectureAudioPath());
        QVERIFY(QFile::exists(journal->target));
        QCOMPARE(journal->duration, u"00:00:03"_s);
    }

    void cancelTakesTheJournalAway()
    {
        m_program->recordNewLecture(3);
        subject().setText(u"Optics"_s);

        controller().onCancelAddNewLecture(nullptr);
        m_program->clock.advance(1min);

        QVERIFY(!written());
        QCOMPARE(names(), QStringList({u".owner"_s}));
    }

    void cancelMarksATakeThatStillRuns()
    {
        controller().onAddItem(nullptr);
        recording().btnStartRecord->click();

        controller().onCancelAddNewLecture(nullptr);

        QVERIFY(!written());
        QVERIFY(QFile::exists(file("lecture.closed")));
    }

    void closeMarksTheTakeThatIsLeft()
    {
        m_program->recordNewLecture(3);
        subject().setText(u"Optics"_s);

        m_program->windows.newLectureOutlets().btnCloseNewLecture->click();
        m_program->clock.advance(1min);

        QVERIFY(!written());
        QCOMPARE(readJournal(file("lecture.closed")).journal.take,
                 controller().tempAudioSavePath());
        QVERIFY(QFile::exists(controller().tempAudioSavePath()));
    }

    void theMarkGoesWithTheNextLecture()
    {
        m_program->recordNewLecture(3);
        m_program->windows.newLectureOutlets().btnCloseNewLecture->click();

        controller().onAddItem(nullptr);

        QVERIFY(written());
        QVERIFY(!QFile::exists(file("lecture.closed")));
    }

    void theEndOfTheProgramLeavesTheJournalAsItIsThen()
    {
        m_program->recordNewLecture(3);
        QTest::keyClicks(&notes(), u"Lenses"_s);

        controller().closeTake();
        controller().saveWhatWaits();

        QCOMPARE(written()->notes, u"Lenses"_s);
    }

    // As with a full disk: the row cannot be stored, and the table is not reset for it again.
    void aRowThatCannotBeStoredNowIsStoredAsSoonAsItCan()
    {
        tarvelo::tests::aLecture().named("earlier").insertInto(m_program->database);
        m_program->recordNewLecture(3);
        subject().setText(u"Optics"_s);
        auto other = std::make_unique<tarvelo::store::Sqlite>(m_program->places.databaseFile());
        QVERIFY(other->beginTransaction());
        m_program->finishNewLecture();
        QCOMPARE(m_program->subjectsShown(), QStringList({u"Optics"_s}));

        m_program->clock.advance(10s);
        QCOMPARE(m_program->controller.leftLectures().owed(), 1);
        QVERIFY(other->rollback());
        other.reset();
        m_program->clock.advance(10s);

        QCOMPARE(m_program->controller.leftLectures().owed(), 0);
        const auto rows = m_program->storedRows();
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows[1]["subject"_L1], u"Optics"_s);
        QCOMPARE(controller().arrangedObjects().at(0)->getRecordUniqueID(),
                 rows[1]["ID"_L1].toLongLong());
        m_program->clock.advance(1min);
        QCOMPARE(m_program->storedRows().size(), 2);
        QCOMPARE(names(), QStringList({u".owner"_s}));
    }

    // It was done before this start, and the list that shows does not have it.
    void whatIsStoredOnlyAtASecondTryIsShown()
    {
        tarvelo::tests::aLecture().named("earlier").insertInto(m_program->database);
        m_program->showDay(m_program->today());
        const tarvelo::store::LectureJournal journal{.id = u"20240304T080000000"_s,
                                                     .subject = u"Optics"_s,
                                                     .day = u"2024-03-05"_s,
                                                     .isDone = true};
        QFile file(m_program->places.folder() + u"/temp/leftover-20240304T080000000.journal"_s);
        QVERIFY(file.open(QIODevice::WriteOnly) &&
                file.write(tarvelo::store::toBytes(journal)) > 0);
        file.close();
        controller().owedLectures().storeSoon();
        {
            tarvelo::store::Sqlite other(m_program->places.databaseFile());
            QVERIFY(other.beginTransaction());
            m_program->clock.advance(10s);
            QVERIFY(!m_program->subjectsShown().contains(u"Optics"_s));
        }

        m_program->clock.advance(10s);

        QVERIFY(m_program->subjectsShown().contains(u"Optics"_s));
    }

    void theNextLectureCanBeginWhileARowWaits()
    {
        tarvelo::tests::aLecture().named("earlier").insertInto(m_program->database);
        auto other = std::make_unique<tarvelo::store::Sqlite>(m_program->places.databaseFile());
        QVERIFY(other->beginTransaction());
        m_program->recordNewLecture(3);
        subject().setText(u"Optics"_s);
        m_program->finishNewLecture();
        m_program->clock.advance(1s);

        m_program->recordNewLecture(4);
        subject().setText(u"Acoustics"_s);
        QVERIFY(other->rollback());
        other.reset();
        m_program->finishNewLecture();
        m_program->clock.advance(20s);

        QCOMPARE(m_program->storedRows().size(), 3);
        QCOMPARE(m_program->controller.leftLectures().owed(), 0);
    }

    void aTakeThatCannotBeMovedGetsToItsPlaceLater()
    {
        m_program->recordNewLecture(3);
        const QString audio = m_program->places.folder() + u"/Audio"_s;
        QVERIFY(QDir(audio).removeRecursively());
        QFile inTheWay(audio);
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        m_program->finishNewLecture();
        const QString path = controller().arrangedObjects().at(0)->strLectureAudioPath();

        m_program->clock.advance(10s);
        QVERIFY(inTheWay.remove() && QDir().mkdir(audio));
        m_program->clock.advance(10s);

        QVERIFY(QFile::exists(path));
        QCOMPARE(m_program->storedRows().size(), 1);
        QCOMPARE(m_program->storedRows().value(0)["audioFileFullPath"_L1], path);
    }

    void whileAnotherProcessOwnsTheTakeNothingIsWritten()
    {
        tarvelo::platform::FolderLock other;
        m_program = std::make_unique<LectureProgram>();
        QDir().mkpath(folder());
        QVERIFY(other.own(folder()));
        m_program->showDay(m_program->today());

        controller().onAddItem(nullptr);
        subject().setText(u"Optics"_s);
        m_program->finishNewLecture();

        QVERIFY(!controller().journal().ownsUsualPlace());
        QCOMPARE(names(), QStringList({u".owner"_s}));
        QCOMPARE(m_program->storedRows().size(), 1);
    }

    void whereNothingCanBeWrittenTheLectureIsStoredAllTheSame()
    {
        m_program = std::make_unique<LectureProgram>();
        QDir().mkpath(m_program->places.folder());
        QFile inTheWay(folder());
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        m_program->showDay(m_program->today());
        controller().onAddItem(nullptr);

        m_program->finishNewLecture();

        QCOMPARE(m_program->storedRows().size(), 1);
    }

private:
    const tarvelo::audio::RecordingOutlets &recording()
    {
        return m_program->windows.recordingOutlets();
    }
    QLineEdit &subject() { return *m_program->windows.newLectureOutlets().txtSubjectForNewNote; }
    QTextEdit &notes() { return *m_program->windows.newLectureOutlets().txtView; }

    QString folder() const { return m_program->places.folder() + u"/temp"_s; }
    QString file(const char *name) const { return folder() + u'/' + QLatin1StringView(name); }
    // As it stands on the disk by now.
    std::optional<tarvelo::store::LectureJournal> written()
    {
        controller().journal().flush();
        const JournalFile found = readJournal(file("lecture.journal"));
        return found.state == JournalFile::State::Read ? std::optional(found.journal)
                                                       : std::nullopt;
    }
    QStringList names() const
    {
        return QDir(folder()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == m_watched && event->type() == QEvent::Hide)
            m_whenHidden = readJournal(file("lecture.journal"));
        return false;
    }

    const QWidget *m_watched = nullptr;
    JournalFile m_whenHidden{JournalFile::State::Missing};
};

QTEST_MAIN(LectureJournalKeeperTest)
#include "LectureJournalKeeperTest.moc"
