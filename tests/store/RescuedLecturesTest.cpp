#include "store/RescuedLectures.h"

#include "store/DamagedDatabases.h"
#include "store/FullDisk.h"
#include "support/TestCase.h"

#include <QTemporaryDir>

#include <algorithm>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace tarvelo::store;
using namespace tarvelo::tests;

namespace {

constexpr int Lectures = 60;
using Damage = std::function<void(QByteArray &page)>;

} // namespace

class RescuedLecturesTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_sound = databaseOf(Lectures); }

    void ofASoundFileEveryLectureComesUnderItsOwnNumber()
    {
        QVERIFY(rescue(m_sound));

        QCOMPARE(rescued(), all());
        Sqlite database(intactPath());
        const auto last = database.executeQuery(u"select ID from audioData where subject = ?"_s,
                                                u"Lecture 60."_s);
        QCOMPARE(last->first().value(u"ID"_s), QVariant(60));
    }

    void aPageThatIsDamagedCostsTheLecturesOnItAlone_data()
    {
        QTest::addColumn<Damage>("damage");
        QTest::newRow("noise") << Damage([](QByteArray &page) { page.fill('\xa5'); });
        QTest::newRow("zeros") << Damage([](QByteArray &page) { page.fill('\0'); });
        QTest::newRow("every bit") << Damage([](QByteArray &page) {
            std::for_each(page.begin(), page.end(),
                          [](char &byte) { byte = static_cast<char>(~byte); });
        });
        QTest::newRow("its header")
            << Damage([](QByteArray &page) { page.replace(0, 12, QByteArray(12, '\xff')); });
    }
    void aPageThatIsDamagedCostsTheLecturesOnItAlone()
    {
        QFETCH(const Damage, damage);

        for (qsizetype at = 2 * DatabasePage; at < m_sound.size(); at += DatabasePage) {
            QByteArray page = m_sound.mid(at, DatabasePage);
            const QStringList expected = allBut(page);
            damage(page);
            QByteArray content = m_sound;
            content.replace(at, DatabasePage, page);

            QVERIFY(rescue(content));

            QCOMPARE(rescued(), expected);
        }
    }

    void theFirstPageOrItsHeaderCostsNothing_data()
    {
        QTest::addColumn<int>("length");
        QTest::newRow("the name of the format") << 16;
        QTest::newRow("the header") << 100;
        QTest::newRow("the whole page") << 4096;
    }
    void theFirstPageOrItsHeaderCostsNothing()
    {
        QFETCH(const int, length);
        for (const char byte : {'\0', '\xa5'}) {
            QByteArray content = m_sound;
            content.replace(0, length, QByteArray(length, byte));

            QVERIFY(rescue(content));

            QCOMPARE(rescued(), all());
        }
    }

    void whatIsLeftOfAFileThatWasCutOffComes()
    {
        for (qsizetype size = 2 * DatabasePage; size < m_sound.size(); size += DatabasePage) {
            QVERIFY(rescue(m_sound.first(size)));

            QCOMPARE(rescued(), allBut(m_sound.mid(size)));
        }
    }

    void aFileThatEndsAnywhereIsTaken()
    {
        for (const qsizetype size : {0, 1, 15, 16, 99, 100, 511, 4095, 4096, 4097, 8191, 12000}) {
            QVERIFY(rescue(m_sound.first(size)));

            const QStringList lectures = rescued();
            QVERIFY(std::all_of(lectures.begin(), lectures.end(),
                                [this](const QString &name) { return all().contains(name); }));
        }
    }

    // None may end the program, and what comes is a sound file.
    void aByteThatIsWrongAnywhereIsTaken()
    {
        for (qsizetype at = 0; at < m_sound.size(); at += 797) {
            QByteArray content = m_sound;
            content[at] = static_cast<char>(content.at(at) ^ 0x55);

            QVERIFY(rescue(content));

            QVERIFY(rescued().size() <= Lectures);
        }
    }

    void whatIsNoDatabaseGivesAnEmptyOne_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("text") << QByteArray("Minutes of the meeting\n").repeated(999);
        QTest::newRow("zeros") << QByteArray(65536, '\0');
        QTest::newRow("a name and no more") << QByteArray("SQLite format 3\0", 16);
    }
    void whatIsNoDatabaseGivesAnEmptyOne()
    {
        QFETCH(const QByteArray, content);

        QVERIFY(rescue(content));

        QCOMPARE(rescued(), QStringList());
    }

    void changesThatWereNotAtTheirEndAreTakenBack()
    {
        QByteArray journal;
        QByteArray content;
        leaveHalfDone(content, journal);
        QVERIFY(!content.isEmpty() && !journal.isEmpty());
        QVERIFY(writeContent(damagedPath() + u"-journal"_s, journal));

        QVERIFY(rescue(content));

        QCOMPARE(rescued(), all());
        QCOMPARE(contentOf(damagedPath() + u"-journal"_s), journal);
    }

    void withoutRoomItSaysSoAndNothingIsTakenForLost()
    {
        QDir().mkpath(m_dir->filePath(u"small"_s));
        SmallDisk disk(m_dir->filePath(u"small"_s), 64);
        QVERIFY(writeContent(damagedPath(), m_sound));

        QVERIFY(!rescueLectures(damagedPath(), m_dir->filePath(u"small/sound.db"_s)));

        QCOMPARE(contentOf(damagedPath()), m_sound);
    }

    void nothingElseIsLeftBehind()
    {
        QVERIFY(rescue(m_sound));

        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList({u"damaged.db"_s, u"sound.db"_s}));
        QCOMPARE(QFileInfo(intactPath()).permissions() & 0x0fff,
                 QFile::ReadUser | QFile::WriteUser);
    }

private:
    void prepare() override { m_dir = std::make_unique<QTemporaryDir>(); }
    void finish() override { m_dir.reset(); }

    QString damagedPath() const { return m_dir->filePath(u"damaged.db"_s); }
    QString intactPath() const { return m_dir->filePath(u"sound.db"_s); }

    // The file itself must stay as it is.
    bool rescue(const QByteArray &content) const
    {
        return writeContent(damagedPath(), content) &&
               rescueLectures(damagedPath(), intactPath()) && contentOf(damagedPath()) == content;
    }
    // Of a file that must be sound.
    QStringList rescued() const
    {
        Sqlite database(intactPath());
        return isSound(database) ? subjectsIn(database) : QStringList(u"not sound"_s);
    }
    static QStringList all() { return allBut(QByteArray()); }
    // What the bytes do not hold.
    static QStringList allBut(const QByteArray &bytes)
    {
        QStringList subjects;
        for (int number = 1; number <= Lectures; ++number)
            if (const QString name = u"Lecture %1."_s.arg(number); !bytes.contains(name.toUtf8()))
                subjects << name;
        return subjects;
    }
    // As a death in the middle of a large change leaves it.
    void leaveHalfDone(QByteArray &content, QByteArray &journal) const
    {
        const QString path = m_dir->filePath(u"half.db"_s);
        QVERIFY(writeContent(path, m_sound));
        Sqlite database(path);
        QVERIFY(database.executeQuery(u"PRAGMA cache_size = 2"_s));
        QVERIFY(database.beginTransaction());
        QVERIFY(database.executeNonQuery(u"UPDATE audioData SET subject = 'half', notes = ''"_s));
        content = contentOf(path);
        journal = contentOf(path + u"-journal"_s);
        QVERIFY(database.rollback());
    }

    QByteArray m_sound;
    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(RescuedLecturesTest)
#include "RescuedLecturesTest.moc"
