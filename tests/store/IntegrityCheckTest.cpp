#include "store/IntegrityCheck.h"

#include "store/DamagedDatabases.h"
#include "support/TestCase.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

using namespace Qt::StringLiterals;
using namespace tarvelo::store;
using namespace tarvelo::tests;

class IntegrityCheckTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_sound = databaseOf(60); }

    void aSoundFileIsSound()
    {
        QVERIFY(writeContent(path(), m_sound));

        QCOMPARE(integrity(), Integrity::Intact);

        QCOMPARE(contentOf(path()), m_sound);
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files).size(), 1);
    }

    void everyDamagedPageIsFound()
    {
        for (qsizetype at = 0; at < m_sound.size(); at += DatabasePage) {
            QByteArray content = m_sound;
            content.replace(at, DatabasePage, QByteArray(DatabasePage, '\xa5'));
            QVERIFY(writeContent(path(), content));

            QCOMPARE(integrity(), Integrity::Damaged);
        }
    }

    void aFileThatWasCutOffOrIsNoDatabaseIsDamaged()
    {
        for (const QByteArray &content :
             {m_sound.chopped(DatabasePage), m_sound.first(5000), QByteArray(9000, 'x')}) {
            QVERIFY(writeContent(path(), content));

            QCOMPARE(integrity(), Integrity::Damaged);
        }
    }

    void ofAFileThatIsNotThereOrADirectoryNothingIsKnown()
    {
        QCOMPARE(integrity(), Integrity::Unknown);
        QDir().mkpath(path());
        QCOMPARE(integrity(), Integrity::Unknown);
    }

    void aNameWithSignsOfAnAddressIsAFile()
    {
        m_name = u"100% sure?#1&x.db"_s;
        QVERIFY(writeContent(path(), m_sound));

        QCOMPARE(integrity(), Integrity::Intact);
    }

    // A lock would make a lecture that is saved meanwhile fail, and cost it all others.
    void itStandsInTheWayOfNoWrite()
    {
        QVERIFY(writeContent(path(), m_sound));
        Sqlite database(path());
        IntegrityCheck check(path());

        for (int write = 0; write < 200; ++write)
            QVERIFY(aLecture().insertInto(database));

        QVERIFY(isSound(database));
        QCOMPARE(subjectsIn(database).size(), 260);
    }

    void itEndsAtOnceWithItsObjectAndIsNotHeardOfThen()
    {
        QVERIFY(writeContent(path(), databaseOf(20000)));
        for (int round = 0; round < 20; ++round) {
            auto check = std::make_unique<IntegrityCheck>(path());
            QSignalSpy heard(check.get(), &IntegrityCheck::finished);

            check.reset();

            QCoreApplication::processEvents();
            QCOMPARE(heard.size(), 0);
        }
    }

private:
    void prepare() override
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_name = u"lectures.db"_s;
    }
    void finish() override { m_dir.reset(); }

    QString path() const { return m_dir->filePath(m_name); }
    Integrity integrity() const
    {
        IntegrityCheck check(path());
        std::optional<Integrity> heard;
        connect(&check, &IntegrityCheck::finished, &check,
                [&heard](Integrity integrity) { heard = integrity; });
        static_cast<void>(QTest::qWaitFor([&heard] { return heard.has_value(); }, 60000));
        return heard.value_or(Integrity::Unknown);
    }

    QByteArray m_sound;
    QString m_name;
    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(IntegrityCheckTest)
#include "IntegrityCheckTest.moc"
