#include "lectures/LectureSaving.h"

#include "lectures/StoredTexts.h"
#include "store/DatabaseCase.h"
#include "store/LectureInfoItem.h"
#include "support/LectureBuilder.h"

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace tarvelo::store;
using tarvelo::lectures::LectureSaving;
using tarvelo::tests::aLecture;

class LectureSavingTest final : public tarvelo::tests::DatabaseCase
{
    Q_OBJECT

private Q_SLOTS:
    void theTextsGoIntoTheRowAndTheLecture()
    {
        auto lecture = stored();
        stored();

        m_saving->save(lecture, u"acoustics"_s, u"Pipes"_s);

        QCOMPARE(everything(), QStringList({u"acoustics: Pipes"_s, u"Optics: Lenses"_s}));
        QCOMPARE(lecture.strSubject() + lecture.strNotes(), u"AcousticsPipes"_s);
    }

    void theIdIsWrittenWhole()
    {
        QCOMPARE(QString(statements::Update),
                 u"UPDATE audioData SET subject = ?, notes = ?  where ID = ?"_s);
        auto lecture = storedAs(2147483647);

        m_saving->save(lecture, u"Acoustics"_s, u"Pipes"_s);

        QCOMPARE(everything(), QStringList{u"Acoustics: Pipes"_s});
    }

    // Other programs may have given it.
    void aLectureWithTheIdZeroIsSavedAsAnyOther()
    {
        auto lecture = storedAs(0);
        QVERIFY(m_saving->isStored(lecture));

        m_saving->save(lecture, u"Acoustics"_s, u"Pipes"_s);

        QCOMPARE(everything(), QStringList{u"Acoustics: Pipes"_s});
    }

    void whatIsNotSavedYetIsInTheLectureThatIsReadAnew()
    {
        auto lecture = stored();
        auto again = lecture;
        {
            Sqlite other(m_places->databaseFile());
            QVERIFY(other.beginTransaction());
            m_saving->save(lecture, u"Acoustics"_s, u"Pipes"_s);
            QVERIFY(other.rollback());
        }

        m_saving->putUnsavedInto(again);

        QCOMPARE(again.strSubject() + again.strNotes(), u"AcousticsPipes"_s);
        QCOMPARE(everything(), QStringList{u"Optics: Lenses"_s});
        m_clock.advance(10s);
        QCOMPARE(everything(), QStringList{u"Acoustics: Pipes"_s});
    }

    void aLectureThatWaitsForItsRowIsToldOf()
    {
        stored();
        LectureInfoItem lecture(u"Optics"_s, {}, {}, {}, false);
        lecture.setRecordUniqueID(LectureInfoItem::NoRow);
        QVERIFY(!m_saving->isStored(lecture));

        m_saving->save(lecture, u"Acoustics"_s, u"Pipes"_s);

        QCOMPARE(m_told, QStringList{u"Acoustics: Pipes"_s});
        QCOMPARE(everything(), QStringList{u"Optics: Lenses"_s});
        m_isWaiting = true;
        QVERIFY(m_saving->isStored(lecture));
    }

    void aDeletedLectureIsNotStored()
    {
        const auto lecture = stored();
        QVERIFY(m_saving->isStored(lecture));

        QVERIFY(m_database->deleteVoiceData(lecture));

        QVERIFY(!m_saving->isStored(lecture));
    }

    void aLectureThatHasGoneIsStoredInItsCopyAndGetsItsRowBack()
    {
        auto lecture = stored();
        lecture.setLectureAudioPath({}); // or its recording would tell which row is its own
        GoneLectures{u"/copy.db"_s}.mark(lecture);
        QVERIFY(m_saving->isStored(lecture));

        m_saving->giveRowBack(lecture, {u"/other.db"_s, {{1, 7}}, 1});
        QVERIFY(lecture.hasGone());
        m_saving->giveRowBack(lecture, {u"/copy.db"_s, {{lecture.getRecordUniqueID(), 7}}, 1});

        QVERIFY(!lecture.hasGone());
        QCOMPARE(lecture.getRecordUniqueID(), 7);
    }

private:
    void prepare() override
    {
        m_told.clear();
        m_isWaiting = false;
        DatabaseCase::prepare();
        m_saving = std::make_unique<LectureSaving>(LectureSaving::Collaborators{
            m_clock, *m_database,
            [this](const LectureInfoItem &, const QString &subject, const QString &notes) {
                m_told << subject + u": "_s + notes;
            },
            [this](const LectureInfoItem &) { return m_isWaiting; }});
    }
    void finish() override
    {
        m_saving.reset();
        DatabaseCase::finish();
    }

    LectureInfoItem stored() const
    {
        return tarvelo::tests::storedOptics(*m_database, u"/music/%1.m4a"_s.arg(m_files++));
    }
    LectureInfoItem storedAs(qint64 id) const
    {
        LectureInfoItem lecture = stored();
        m_database->openDb()->executeNonQueryArguments(u"UPDATE audioData SET ID = ?"_s, {id});
        lecture.setRecordUniqueID(id);
        return lecture;
    }
    QStringList everything() const { return tarvelo::tests::textsIn(*m_database); }

    std::unique_ptr<LectureSaving> m_saving;
    QStringList m_told;
    bool m_isWaiting = false;
    mutable int m_files = 0;
};

QTEST_GUILESS_MAIN(LectureSavingTest)
#include "LectureSavingTest.moc"
