#include "store/LectureInfoItem.h"

#include "platform/Images.h"
#include "support/TestCase.h"

using namespace Qt::StringLiterals;
using tarvelo::store::LectureInfoItem;

class LectureInfoItemTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theInitialiserFillsFiveFieldsAndLeavesTheOthersEmpty()
    {
        const LectureInfoItem lecture(u"history of art"_s, u"test course"_s, u"10.00 AM"_s,
                                      u"11.30 AM"_s, true);

        QCOMPARE(lecture.strSubject(), u"History Of Art"_s);
        QCOMPARE(lecture.strCourse(), u"test course"_s);
        QCOMPARE(lecture.strStartDuration(), u"10.00 AM"_s);
        QCOMPARE(lecture.strEndDuration(), u"11.30 AM"_s);
        QVERIFY(lecture.bChecked());
        QVERIFY(lecture.strNotes().isEmpty());
        QVERIFY(lecture.strRecordingDuration().isEmpty());
        QVERIFY(lecture.strLectureAudioPath().isEmpty());
        QVERIFY(lecture.strLectureToken().isEmpty());
        QCOMPARE(lecture.intRecordUniqueID(), 0);
        QVERIFY(!lecture.periodStart().isValid());
        QVERIFY(!lecture.periodEnd().isValid());
    }

    void aLectureThatIsNotCheckedSaysSo()
    {
        QVERIFY(!LectureInfoItem(u"a"_s, u"b"_s, u"c"_s, u"d"_s, false).bChecked());
    }

    void aNewSubjectIsCapitalisedToo()
    {
        LectureInfoItem lecture = optics();

        lecture.setSubject(u"ÉTUDES de cas"_s);

        QCOMPARE(lecture.strSubject(), u"Études De Cas"_s);
    }

    void theOtherTextsStayAsGiven()
    {
        LectureInfoItem lecture = optics();

        lecture.setCourse(u"physics 2"_s);
        lecture.setNotes(u"lenses and MIRRORS\n"_s);
        lecture.setDurationStart(u"9.00 am"_s);
        lecture.setDurationEnd(u"9.30 am"_s);
        lecture.setRecordingDuration(u"00:29:59"_s);
        lecture.setLectureAudioPath(u"/audio/o'neill.aac"_s);

        QCOMPARE(lecture.strCourse(), u"physics 2"_s);
        QCOMPARE(lecture.strNotes(), u"lenses and MIRRORS\n"_s);
        QCOMPARE(lecture.strStartDuration(), u"9.00 am"_s);
        QCOMPARE(lecture.strEndDuration(), u"9.30 am"_s);
        QCOMPARE(lecture.strRecordingDuration(), u"00:29:59"_s);
        QCOMPARE(lecture.strLectureAudioPath(), u"/audio/o'neill.aac"_s);
        QCOMPARE(lecture.getLectureAudioPath(), u"/audio/o'neill.aac"_s);
    }

    void theUniqueIdHasSixtyFourBits()
    {
        LectureInfoItem lecture = optics();

        lecture.setRecordUniqueID(qint64(1) << 40);

        QCOMPARE(lecture.intRecordUniqueID(), qint64(1) << 40);
        QCOMPARE(lecture.getRecordUniqueID(), qint64(1) << 40);
    }

    void thePeriodCanBeSet()
    {
        const QDateTime start = QDateTime::fromMSecsSinceEpoch(1709629200000, Qt::UTC);
        LectureInfoItem lecture = optics();

        lecture.setPeriodStart(start);
        lecture.setPeriodEnd(start.addSecs(60));

        QCOMPARE(lecture.periodStart(), start);
        QCOMPARE(lecture.periodEnd(), start.addSecs(60));
    }

    void theDescriptionNamesClassSubjectCourseAndTimes()
    {
        QCOMPARE(optics().description(),
                 u"<LectureInfoItem Optics test course (from 10.00 AM to 11.30 AM)>"_s);
    }

    void aSubjectWithAPlaceMarkIsDescribedAsItIs()
    {
        LectureInfoItem lecture = optics();

        lecture.setSubject(u"100%4 %1"_s);

        QCOMPARE(lecture.description(),
                 u"<LectureInfoItem 100%4 %1 test course (from 10.00 AM to 11.30 AM)>"_s);
    }

    void theIconIsTheImageOfACell() { QCOMPARE(optics().iconImage().name(), u"cellimage"_s); }

    void theSubjectIsDrawnInOpaqueGrey()
    {
        const QColor colour = optics().colorSubject();

        QCOMPARE(colour, QColor(99, 99, 99, 255));
        QCOMPARE(colour.redF(), 0.388235F);
    }

    void aCopyHasTextsOfItsOwn()
    {
        const LectureInfoItem first = optics();
        LectureInfoItem second = first;

        second.setNotes(u"other"_s);

        QVERIFY(first.strNotes().isEmpty());
    }

private:
    static LectureInfoItem optics()
    {
        return {u"Optics"_s, u"test course"_s, u"10.00 AM"_s, u"11.30 AM"_s, true};
    }
};

QTEST_GUILESS_MAIN(LectureInfoItemTest)
#include "LectureInfoItemTest.moc"
