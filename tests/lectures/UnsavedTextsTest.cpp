#include "lectures/UnsavedTexts.h"

#include "lectures/StoredTexts.h"
#include "store/DatabaseCase.h"
#include "store/LectureInfoItem.h"
#include "support/LectureBuilder.h"

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace tarvelo::store;
using tarvelo::lectures::UnsavedTexts;
using tarvelo::tests::aLecture;

class UnsavedTextsTest final : public tarvelo::tests::DatabaseCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatWaitsIsSavedAsSoonAsItCan()
    {
        const auto lecture = stored("/music/optics.m4a");
        stored("/music/other.m4a");
        auto other = std::make_unique<Sqlite>(m_places->databaseFile());
        QVERIFY(other->beginTransaction());
        m_texts->keep(lecture, u"Waves"_s, u"Pipes"_s);

        m_clock.advance(10s);
        QVERIFY(other->rollback());
        other.reset();
        QCOMPARE(everything(), QStringList({u"Optics: Lenses"_s, u"Optics: Lenses"_s}));
        m_clock.advance(10s);

        QCOMPARE(everything(), QStringList({u"Waves: Pipes"_s, u"Optics: Lenses"_s}));
    }

    void theLastTextsCount()
    {
        auto lecture = stored("");
        m_texts->keep(lecture, u"Waves"_s, u"Pipes"_s);
        lecture.setNotes(u"Pipes"_s);
        m_texts->keep(lecture, u"Waves"_s, u"Pipes and strings"_s);

        m_clock.advance(10s);

        QCOMPARE(everything(), QStringList{u"Waves: Pipes and strings"_s});
    }

    // As when the write that failed first did so at its last step only.
    void theLastTextsCountAlsoWhereTheEarlierOnesAreStored()
    {
        const auto lecture = stored("");
        m_texts->keep(lecture, u"Waves"_s, u"Pipes"_s);
        QVERIFY(m_database->openDb()->executeNonQuery(u"UPDATE audioData SET notes = 'Pipes'"_s));
        m_texts->keep(lecture, u"Waves"_s, u"Pipes and strings"_s);

        m_clock.advance(10s);

        QCOMPARE(everything(), QStringList{u"Waves: Pipes and strings"_s});
    }

    void whatWasSavedOtherwiseIsForgotten()
    {
        const auto lecture = stored("");
        m_texts->keep(lecture, u"Waves"_s, u"Pipes"_s);
        m_texts->forget(lecture);

        m_clock.advance(10s);

        QCOMPARE(everything(), QStringList{u"Optics: Lenses"_s});
    }

    void aLectureThatIsReadAnewGetsItsTexts()
    {
        const auto lecture = stored("/music/optics.m4a");
        auto other = stored("/music/other.m4a");
        m_texts->keep(lecture, u"waves"_s, u"Pipes"_s);

        auto again = lecture;
        m_texts->putInto(again);
        m_texts->putInto(other);

        QCOMPARE(again.strSubject() + again.strNotes(), u"WavesPipes"_s);
        QCOMPARE(other.strSubject() + other.strNotes(), u"OpticsLenses"_s);
    }

    void whoeverGetsTheIdOfADeletedLectureGetsNotItsTexts_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("with a recording") << u"/music/optics.m4a"_s;
        QTest::newRow("without a recording") << QString();
    }
    void whoeverGetsTheIdOfADeletedLectureGetsNotItsTexts()
    {
        QFETCH(QString, path);
        const auto lecture = stored(path);
        m_texts->keep(lecture, u"Waves"_s, u"Pipes"_s);
        m_database->deleteVoiceData(lecture);
        const auto next = aLecture().named("Logic").withNotes("Sets").withAudio(u"/music/b.m4a"_s);
        QCOMPARE(next.insertInto(*m_database), lecture.getRecordUniqueID());

        m_clock.advance(10s);

        QCOMPARE(everything(), QStringList{u"Logic: Sets"_s});
    }

    void theEndIsTheLastTry()
    {
        m_texts->keep(stored("/music/optics.m4a"), u"Waves"_s, u"Pipes"_s);

        m_texts.reset();

        QCOMPARE(everything(), QStringList{u"Waves: Pipes"_s});
    }

private:
    void prepare() override
    {
        DatabaseCase::prepare();
        m_texts = std::make_unique<UnsavedTexts>(*m_database, m_clock);
    }
    void finish() override
    {
        m_texts.reset();
        DatabaseCase::finish();
    }

    LectureInfoItem stored(const char *path) const { return stored(QString::fromLatin1(path)); }
    LectureInfoItem stored(const QString &path) const
    {
        return tarvelo::tests::storedOptics(*m_database, path);
    }
    QStringList everything() const { return tarvelo::tests::textsIn(*m_database); }

    std::unique_ptr<UnsavedTexts> m_texts;
};

QTEST_GUILESS_MAIN(UnsavedTextsTest)
#include "UnsavedTextsTest.moc"
