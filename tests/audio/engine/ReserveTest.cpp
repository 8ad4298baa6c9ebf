#include "audio/engine/Reserve.h"

#include "audio/engine/FragmentedFile.h"
#include "support/FolderCase.h"
#include "support/SmallFiles.h"

#include <QDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace tarvelo::engine;
using tarvelo::tests::SmallFiles;

class ReserveTest final : public tarvelo::tests::FolderCase
{
    Q_OBJECT

private Q_SLOTS:
    void roomIsHeldInAHiddenFileOfTheUsersOwn()
    {
        const Reserve reserve(take());

        QCOMPARE(reserve.bytes(), Reserve::MostBytes);
        QCOMPARE(names(), QStringList{u".take.reserve"_s});
        struct stat status = {};
        QCOMPARE(::stat(file().toStdString().c_str(), &status), 0);
        QVERIFY(status.st_blocks * 512 >= Reserve::MostBytes);
        QCOMPARE(status.st_mode & 07777U, 0600U);
    }

    void whatWaitsInMemoryFitsIntoIt()
    {
        QVERIFY(Reserve::MostBytes >= std::int64_t{FragmentedFile::MostBytesWaiting} * 3 / 2);
    }

    void whatIsGivenBackIsGone()
    {
        Reserve reserve(take());

        reserve.giveBack();
        QCOMPARE(reserve.bytes(), 0);
        QCOMPARE(names(), QStringList());
        reserve.giveBack();

        QCOMPARE(names(), QStringList());
    }

    void aPartOfItIsGivenBack()
    {
        Reserve reserve(take());

        QVERIFY(reserve.giveBack(Reserve::MostBytes / 4));
        QCOMPARE(reserve.bytes(), Reserve::MostBytes * 3 / 4);
        struct stat status = {};
        QCOMPARE(::stat(file().toStdString().c_str(), &status), 0);
        QVERIFY(status.st_blocks * 512 <= Reserve::MostBytes * 3 / 4);

        QVERIFY(!reserve.giveBack(Reserve::MostBytes));
        QCOMPARE(reserve.bytes(), Reserve::MostBytes * 3 / 4);
    }

    void whatWasGivenBackIsHeldAgain()
    {
        Reserve reserve(take());
        QVERIFY(reserve.giveBack(Reserve::MostBytes / 4));

        QVERIFY(reserve.holdAgain());

        QCOMPARE(reserve.bytes(), Reserve::MostBytes);
        struct stat status = {};
        QCOMPARE(::stat(file().toStdString().c_str(), &status), 0);
        QVERIFY(status.st_blocks * 512 >= Reserve::MostBytes);
    }

    void whatSomebodyTookAwayIsNotGivenBack()
    {
        Reserve reserve(take());
        QVERIFY(QFile::remove(file()));

        QVERIFY(!reserve.giveBack(Reserve::MostBytes / 4));
        QCOMPARE(reserve.bytes(), Reserve::MostBytes);
    }

    void itsEndGivesItBack()
    {
        {
            const Reserve reserve(take());
        }

        QCOMPARE(names(), QStringList());
    }

    void whatAKilledProgramLeftIsTakenOver()
    {
        for (const int size : {100, 5 << 20}) {
            QFile left(file());
            QVERIFY(left.open(QIODevice::WriteOnly));
            left.write(QByteArray(size, 'x'));
            left.close();

            const Reserve reserve(take(u"take.aac"_s));

            QCOMPARE(names(), QStringList{u".take.reserve"_s});
            QCOMPARE(left.size(), Reserve::MostBytes);
        }
    }

    void whatAKilledProgramLeftCanBeTakenAway()
    {
        QFile left(file());
        QVERIFY(left.open(QIODevice::WriteOnly));

        Reserve::removeLeft(take(u"take.aac"_s));
        QVERIFY(!left.exists());
        Reserve::removeLeft(take());

        QCOMPARE(names(), QStringList());
    }

    void aLinkInItsPlaceLeadsNowhere()
    {
        QFile other(m_folder->filePath(u"other"_s));
        QVERIFY(other.open(QIODevice::WriteOnly));
        other.write("mine");
        other.close();
        QVERIFY(QFile::link(other.fileName(), file()));

        const Reserve reserve(take());

        QCOMPARE(other.size(), 4);
        QVERIFY(!QFileInfo(file()).isSymLink());
    }

    void whereThereIsNoRoomNoneIsHeld()
    {
        const SmallFiles disk(1000);
        const Reserve reserve(take());

        QCOMPARE(reserve.bytes(), 0);
        QCOMPARE(names(), QStringList());
    }

    void whereThereIsNoFolderNoneIsHeld()
    {
        const Reserve reserve(take(u"missing/take.m4a"_s));

        QCOMPARE(reserve.bytes(), 0);
    }

    void aSmallDiskKeepsMostOfItsRoomForTheSound()
    {
        constexpr std::int64_t MiB = 1 << 20;

        QCOMPARE(Reserve::sizeOn(0), 0);
        QCOMPARE(Reserve::sizeOn(100000), 0);
        QCOMPARE(Reserve::sizeOn(MiB), MiB * 3 / 10);
        QCOMPARE(Reserve::sizeOn(7 * MiB), Reserve::MostBytes);
        QCOMPARE(Reserve::sizeOn(1000000 * MiB), Reserve::MostBytes);
    }

private:
    std::string take(const QString &name = u"take.m4a"_s) const
    {
        return m_folder->filePath(name).toStdString();
    }
    QString file() const { return m_folder->filePath(u".take.reserve"_s); }
    QStringList names() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
};

QTEST_GUILESS_MAIN(ReserveTest)
#include "ReserveTest.moc"
