#include "store/LectureRows.h"

#include "store/Sqlite.h"
#include "support/TestCase.h"

using namespace Qt::StringLiterals;
using tarvelo::store::lectureFromRow;

class LectureRowsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyColumnHasItsPlaceInTheRecord()
    {
        const auto lecture = lectureFromRow({{u"ID"_s, 17},
                                             {u"subject"_s, u"history of art"_s},
                                             {u"course"_s, u"test course"_s},
                                             {u"notes"_s, u"rome"_s},
                                             {u"recordingDate"_s, u"2024-03-05"_s},
                                             {u"lectureStartTime"_s, u"10.00 AM"_s},
                                             {u"lectureEndTime"_s, u"11.30 AM"_s},
                                             {u"audioFileFullPath"_s, u"/a.aac"_s},
                                             {u"recordDuration"_s, u"00:45:00"_s}});

        QCOMPARE(lecture.intRecordUniqueID(), 17);
        QCOMPARE(lecture.strSubject(), u"History Of Art"_s);
        QCOMPARE(lecture.strCourse(), u"test course"_s);
        QCOMPARE(lecture.strNotes(), u"rome"_s);
        QCOMPARE(lecture.strStartDuration(), u"10.00 AM"_s);
        QCOMPARE(lecture.strEndDuration(), u"11.30 AM"_s);
        QCOMPARE(lecture.strLectureAudioPath(), u"/a.aac"_s);
        QCOMPARE(lecture.strRecordingDuration(), u"00:45:00"_s);
    }

    void aRecordFromARowIsNotChecked()
    {
        QVERIFY(!lectureFromRow({{u"subject"_s, u"Optics"_s}}).bChecked());
    }

    void aNullOrMissingColumnIsAnEmptyText()
    {
        const auto lecture = lectureFromRow({{u"subject"_s, tarvelo::store::nullMarker()},
                                             {u"notes"_s, tarvelo::store::nullMarker()}});

        QCOMPARE(lecture.strSubject(), QString());
        QCOMPARE(lecture.strNotes(), QString());
        QCOMPARE(lecture.strLectureAudioPath(), QString());
        QCOMPARE(lecture.intRecordUniqueID(), 0);
    }
};

QTEST_GUILESS_MAIN(LectureRowsTest)
#include "LectureRowsTest.moc"
