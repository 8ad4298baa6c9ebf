#include "store/DamagedFiles.h"

#include "store/DamagedDatabases.h"
#include "store/FullDisk.h"
#include "support/FakeClock.h"
#include "support/Modes.h"
#include "support/TestCase.h"

#include <cerrno>
#include <memory>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace tarvelo::store;
using namespace tarvelo::tests;

namespace {

QByteArray stubborn;

} // namespace

// Stands in for the C library's in this program: one file cannot be removed.
extern "C" int unlinkUnlessStubborn(const char *path) noexcept __asm__("unlink");
extern "C" int unlinkUnlessStubborn(const char *path) noexcept
{
    if (stubborn == path) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_unlink, path));
}

class DamagedFilesTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsPutAsideIsWholeWithItsJournalAndForItsUserAlone()
    {
        write("damaged", "its journal");

        const auto aside = m_files->putAside(file());

        QVERIFY(aside && aside->isNew);
        QCOMPARE(QFileInfo(aside->filePath).fileName(),
                 u"TarveloInfo damaged "_s +
                     m_clock.now().toLocalTime().toString(u"yyyy-MM-dd HH.mm.ss.zzz'.db'"_s));
        QCOMPARE(contentOf(aside->filePath), QByteArray("damaged"));
        QCOMPARE(contentOf(aside->filePath + u"-journal"_s), QByteArray("its journal"));
        QCOMPARE(modeOf(aside->filePath), u"600"_s);
        QCOMPARE(modeOf(folder()), u"700"_s);
        QCOMPARE(names().size(), 2);
    }

    void theSameDamageIsPutAsideOnce()
    {
        write("damaged");
        const auto first = m_files->putAside(file());
        m_clock.advance(std::chrono::hours(24));

        const auto again = m_files->putAside(file());

        QCOMPARE(again->filePath, first->filePath);
        QVERIFY(!again->isNew);
        QCOMPARE(names().size(), 1);
    }

    void twoDamagesInOneMomentLieBesideEachOther()
    {
        write("damaged");
        QVERIFY(m_files->putAside(file()));
        write("damaged again");

        QVERIFY(m_files->putAside(file())->isNew);

        QCOMPARE(names().size(), 2);
        QCOMPARE(contentOf(m_files->newest()->filePath), QByteArray("damaged again"));
    }

    void whatTurnsOutToBeSoundGoesWithItsJournal()
    {
        write("sound", "its journal");

        m_files->remove(*m_files->putAside(file()));

        QCOMPARE(names(), QStringList());
        QVERIFY(!m_files->newest());
    }

    void whatCannotBeReadIsNotPutAside()
    {
        QVERIFY(!m_files->putAside(file()));
        QDir().mkpath(file());
        QVERIFY(!m_files->putAside(file()));

        QCOMPARE(names(), QStringList());
    }

    void aSoundFileTakesThePlaceOfTheDamagedOneAndTheOldJournalGoes()
    {
        write(damaged(), "an old journal");

        QVERIFY(m_files->replaceWithIntact(file()));

        Sqlite database(file());
        QVERIFY(isSound(database));
        QVERIFY(subjectsIn(database).size() >= 40);
        QVERIFY(!QFileInfo::exists(file() + u"-journal"_s));
        QCOMPARE(contentOf(m_files->newest()->filePath), damaged());
        QCOMPARE(modeOf(file()), u"600"_s);
        QCOMPARE(names().size(), 2);
    }

    void anOldJournalThatCannotBeRemovedIsLeftToItsOwnFile()
    {
        write(damaged(), "an old journal");
        stubborn = QFile::encodeName(file() + u"-journal"_s);

        QVERIFY(!m_files->replaceWithIntact(file()));

        QCOMPARE(contentOf(file()), damaged());
        stubborn.clear();
        QVERIFY(m_files->replaceWithIntact(file()));
    }

    void withoutRoomToPutItAsideTheFileStaysAsItIs()
    {
        m_places->makeFolder();
        QDir().mkpath(folder());
        SmallDisk disk(folder(), 16);
        write(damaged());

        QVERIFY(!m_files->replaceWithIntact(file()));

        QCOMPARE(contentOf(file()), damaged());
        QVERIFY(!m_files->newest());
        QCOMPARE(names(), QStringList());
    }

    void withoutRoomForTheSoundFileTheDamagedOneStaysAndLiesAside()
    {
        m_places->makeFolder();
        QDir().mkpath(folder());
        SmallDisk disk(folder(), 96);
        write(damaged());

        QVERIFY(!m_files->replaceWithIntact(file()));
        QVERIFY(!m_files->replaceWithIntact(file()));

        QCOMPARE(contentOf(file()), damaged());
        QCOMPARE(contentOf(m_files->newest()->filePath), damaged());
        QCOMPARE(names().size(), 1);
    }

    void theRoomThatIsHeldForCopiesIsThereForIt()
    {
        m_places->makeFolder();
        QDir().mkpath(folder());
        SmallDisk disk(folder(), 80);
        QVERIFY(writeContent(folder() + u"/.room"_s, QByteArray(64 << 10, 'r')));
        write(damaged());

        QVERIFY(m_files->putAside(file()));

        QCOMPARE(contentOf(m_files->newest()->filePath), damaged());
    }

    // The file is whole under its own name, or not there at all.
    void aDeathBeforeTheLastStepLeavesNothingThatIsTakenForACopy()
    {
        write("damaged");
        QDir().mkpath(folder());
        QVERIFY(writeContent(folder() + u"/.damaged"_s, "dama"));

        QVERIFY(!m_files->newest());
        QVERIFY(m_files->putAside(file()));

        QCOMPARE(names().size(), 1);
    }

private:
    void prepare() override
    {
        m_places = std::make_unique<TemporaryPlaces>();
        m_files = std::make_unique<DamagedFiles>(folder(), m_clock);
    }
    void finish() override
    {
        stubborn.clear();
        m_files.reset();
        m_places.reset();
    }

    QString file() const { return m_places->databaseFile(); }
    QString folder() const { return m_places->folder() + u"/Backups"_s; }
    void write(const QByteArray &content, const QByteArray &journal = {}) const
    {
        m_places->writeDatabaseFile(content);
        if (!journal.isEmpty())
            QVERIFY(writeContent(file() + u"-journal"_s, journal));
    }
    QStringList names() const
    {
        QStringList names = QDir(folder()).entryList(QDir::Files | QDir::Hidden);
        names.removeAll(u".room"_s);
        return names;
    }
    // Its last page is nothing.
    static QByteArray damaged()
    {
        static const QByteArray Content = [] {
            QByteArray content = databaseOf(50);
            content.replace(content.size() - DatabasePage, DatabasePage,
                            QByteArray(DatabasePage, '\xa5'));
            return content;
        }();
        return Content;
    }

    FakeClock m_clock;
    std::unique_ptr<TemporaryPlaces> m_places;
    std::unique_ptr<DamagedFiles> m_files;
};

QTEST_GUILESS_MAIN(DamagedFilesTest)
#include "DamagedFilesTest.moc"
