#include "store/LectureJournal.h"

#include "support/FileContent.h"
#include "support/TestCase.h"

#include <QFile>
#include <QTemporaryDir>

#include <limits>

using namespace Qt::StringLiterals;
using namespace tarvelo::store;
using tarvelo::tests::writeContent;
using State = LectureJournal::State;

class LectureJournalTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenIsReadBack()
    {
        const LectureJournal written = full();

        const auto read = journalFrom(toBytes(written));

        QVERIFY(read);
        QCOMPARE(toBytes(*read), toBytes(written));
        QCOMPARE(read->subject, u"wave optics"_s);
        QCOMPARE(read->notes, u"Huygens\n\n00:00:07\n"_s);
        QVERIFY(read->state == State::Paused);
        QCOMPARE(read->seconds, 7.25);
        QVERIFY(read->isDone);
        QCOMPARE(read->target, u"/audio//Audio - 1.m4a"_s);
    }

    void everyStateIsReadBack()
    {
        for (const State state : {State::Idle, State::Recording, State::Paused, State::Stopped}) {
            LectureJournal journal;
            journal.state = state;
            QVERIFY(journalFrom(toBytes(journal))->state == state);
        }
    }

    void blanksMayFollow() { QVERIFY(journalFrom(toBytes(full()) + QByteArray(5000, ' ') + '\n')); }

    void whatIsNoJournalIsNone_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("blanks") << QByteArray(100, ' ');
        QTest::newRow("cut off") << toBytes(full()).left(40);
        QTest::newRow("zeros") << QByteArray(4096, '\0');
        QTest::newRow("a list") << QByteArray("[1, 2]");
    }
    void whatIsNoJournalIsNone()
    {
        QFETCH(QByteArray, bytes);

        QVERIFY(!journalFrom(bytes));
    }

    void whatIsMissingOrOfAnotherKindIsEmpty()
    {
        const auto read = journalFrom(R"({"subject": 7, "state": "dancing", "later": true})");

        QVERIFY(read && read->isBlank());
        QVERIFY(read->state == State::Idle);
    }

    void whatIsKnownOfAFileIsSaid()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"lecture.journal"_s);
        using Found = JournalFile::State;
        QVERIFY(readJournal(path).state == Found::Missing);

        QVERIFY(writeContent(path, QByteArray(4096, '\0')));
        QVERIFY(readJournal(path).state == Found::Worthless);

        QVERIFY(writeContent(path, toBytes(full()) + QByteArray(100, ' ')));
        QVERIFY(readJournal(path).state == Found::Read);
        QCOMPARE(readJournal(path).journal.subject, u"wave optics"_s);
        QVERIFY(readJournal(folder.path()).state == Found::Unreadable);
    }

    void whatWasToBeWrittenLastIsAheadOfTheJournal()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"lecture.journal"_s);
        LectureJournal journal = full();
        journal.version = 7;
        QVERIFY(!tarvelo::store::readLatest(path).isAhead);

        QVERIFY(tarvelo::store::writeLatest(path, toBytes(journal)));
        QVERIFY(tarvelo::store::readLatest(path).isAhead); // there is no journal yet
        QVERIFY(writeContent(path, toBytes(journal)));
        QVERIFY(!tarvelo::store::readLatest(path).isAhead);

        journal.version = 8;
        journal.notes = u"later"_s;
        QVERIFY(tarvelo::store::writeLatest(path, toBytes(journal)));
        QVERIFY(tarvelo::store::readLatest(path).isAhead);
        QCOMPARE(tarvelo::store::readLatest(path).file.journal.notes, u"later"_s);

        QVERIFY(tarvelo::store::removeLatest(path));
        QVERIFY(!tarvelo::store::readLatest(path).isAhead);
        QCOMPARE(tarvelo::store::readLatest(path).file.journal.version, 7);
    }

    // As a power cut leaves it.
    void whatIsNotWholeIsNotAhead()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"lecture.journal"_s);
        LectureJournal journal = full();
        journal.version = 7;
        QVERIFY(writeContent(path, toBytes(journal)));
        journal.notes = u"Huygens "_s.repeated(600);
        journal.version = 8;
        const QByteArray before = toBytes(journal);
        journal.notes = u"Fresnel "_s.repeated(600);
        journal.version = 9;
        const QByteArray bytes = toBytes(journal);
        QCOMPARE(before.size(), bytes.size());

        for (qsizetype end = 0; end <= bytes.size(); end += end + 64 < bytes.size() ? 64 : 1) {
            QVERIFY(writeContent(tarvelo::store::latestOf(path), bytes.first(end)));
            // The last is a line's end.
            QCOMPARE(tarvelo::store::readLatest(path).isAhead, end >= bytes.size() - 1);
        }
        QVERIFY(
            writeContent(tarvelo::store::latestOf(path), bytes.first(2048) + before.sliced(2048)));
        QVERIFY(!tarvelo::store::readLatest(path).isAhead);
        QVERIFY(
            writeContent(tarvelo::store::latestOf(path), before.first(2048) + bytes.sliced(2048)));
        QVERIFY(!tarvelo::store::readLatest(path).isAhead);
    }

    void theLastRowIsReadBackWhenItIsKnown()
    {
        LectureJournal journal = full();
        QVERIFY(!journalFrom(toBytes(journal))->lastRow);

        for (const qint64 row : {qint64(0), qint64(7), std::numeric_limits<qint64>::max()}) {
            journal.lastRow = row;
            QCOMPARE(journalFrom(toBytes(journal))->lastRow.value_or(-1), row);
        }
    }

    void anyTextIsKept_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("quotes") << u"\"a\\b\" 'c'"_s;
        QTest::newRow("scripts") << u"\u0639\u0644\u0645 \u8b1b\u7fa9 \U0001F393"_s;
        QTest::newRow("control") << u"a\tb\r\nc\u0001"_s;
        QTest::newRow("nul") << QString(u"a"_s + QChar(u'\0') + u"b"_s);
    }
    void anyTextIsKept()
    {
        QFETCH(QString, text);
        LectureJournal journal;
        journal.notes = text;

        QCOMPARE(journalFrom(toBytes(journal))->notes, text);
    }

    void blankIsWhatNobodyMisses()
    {
        LectureJournal journal;
        journal.subject = u" "_s;
        journal.notes = u"\n"_s;
        QVERIFY(journal.isBlank());

        QVERIFY(!full().isBlank());
        journal.take = u"/temp/take.aac"_s;
        QVERIFY(!journal.isBlank());
        journal.take.clear();
        journal.isDone = true;
        QVERIFY(!journal.isBlank());
    }

    void theRowIsThatOfALecture()
    {
        const QVariantList row = full().row();

        QCOMPARE(row, QVariantList({u"wave optics"_s, u"test course"_s, u"Huygens\n\n00:00:07\n"_s,
                                    u"2024-03-05"_s, u"10.00 AM"_s, u"11.30 AM"_s,
                                    u"/audio//Audio - 1.m4a"_s, u"00:00:07"_s}));
    }

private:
    static LectureJournal full()
    {
        return {.id = u"20240305T090000000"_s,
                .subject = u"wave optics"_s,
                .notes = u"Huygens\n\n00:00:07\n"_s,
                .day = u"2024-03-05"_s,
                .date = u"2024-03-05"_s,
                .state = State::Paused,
                .seconds = 7.25,
                .take = u"/temp/tempAudioFile.m4a"_s,
                .isDone = true,
                .target = u"/audio//Audio - 1.m4a"_s,
                .duration = u"00:00:07"_s};
    }
};

QTEST_GUILESS_MAIN(LectureJournalTest)
#include "LectureJournalTest.moc"
