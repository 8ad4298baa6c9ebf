#include "platform/DurableMove.h"

#include "support/FileContent.h"
#include "support/OtherDisk.h"
#include "support/SmallFiles.h"
#include "support/TestCase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace tarvelo::platform;
using tarvelo::tests::contentOf;
using tarvelo::tests::foldersAreDisks;
using tarvelo::tests::SmallFiles;
using tarvelo::tests::writeContent;

class DurableMoveTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aFileTakesTheOtherNameOnEitherDisk_data()
    {
        QTest::addColumn<bool>("onOtherDisk");
        QTest::newRow("on the same disk") << false;
        QTest::newRow("on another disk") << true;
    }

    void aFileTakesTheOtherNameOnEitherDisk()
    {
        QFETCH(bool, onOtherDisk);
        foldersAreDisks = onOtherDisk;
        const QByteArray sound = QByteArray("sound").repeated(700'000);
        QVERIFY(writeContent(m_from, sound));
        QVERIFY(writeContent(m_to, "an earlier one"));

        QVERIFY(moveDurably(m_from, m_to));

        QCOMPARE(contentOf(m_to), sound);
        QVERIFY(!QFileInfo::exists(m_from));
        QCOMPARE(filesThere(), QStringList(u"saved"_s));
    }

    void aCopyOnAnotherDiskIsForItsUserAlone()
    {
        foldersAreDisks = true;
        QVERIFY(writeContent(m_from, "sound"));

        QVERIFY(moveDurably(m_from, m_to));

        QCOMPARE(QFileInfo(m_to).permissions() & 0x0fff, QFile::ReadUser | QFile::WriteUser);
    }

    void whatIsLeftOfAnEarlierTryIsWrittenAnew()
    {
        foldersAreDisks = true;
        QVERIFY(writeContent(m_from, "sound"));
        QVERIFY(writeContent(QFileInfo(m_to).path() + u"/.saved.moved"_s, "half of another sound"));

        QVERIFY(moveDurably(m_from, m_to));

        QCOMPARE(contentOf(m_to), QByteArray("sound"));
        QCOMPARE(filesThere(), QStringList(u"saved"_s));
    }

    void onAnotherDiskThatIsFullBothFilesStay()
    {
        foldersAreDisks = true;
        QVERIFY(writeContent(m_from, "sound"));
        QVERIFY(writeContent(m_to, "an earlier one"));
        {
            const SmallFiles noRoom(0);
            QVERIFY(!moveDurably(m_from, m_to));
        }

        QCOMPARE(contentOf(m_from), QByteArray("sound"));
        QCOMPARE(contentOf(m_to), QByteArray("an earlier one"));
        QCOMPARE(filesThere(), QStringList(u"saved"_s));
    }

    void aCopyIsKnownByItsBytes()
    {
        const QByteArray sound = QByteArray("sound").repeated(700'000);
        QVERIFY(writeContent(m_from, sound));
        for (const auto &[content, isCopy] :
             {std::pair(sound, true), std::pair(sound.chopped(1), false),
              std::pair(sound + 's', false), std::pair(sound.chopped(1) + 'x', false),
              std::pair(QByteArray(), false)}) {
            QVERIFY(writeContent(m_to, content));
            QCOMPARE(isCopyOf(m_to, m_from), isCopy);
            QCOMPARE(isCopyOf(m_from, m_to), isCopy);
        }
        QVERIFY(!isCopyOf(m_from, m_dir.filePath(u"take/none"_s)));
    }

    void whatCannotBeMovedStaysWhereItIs()
    {
        QVERIFY(writeContent(m_from, "sound"));

        QVERIFY(!moveDurably(m_from, m_dir.filePath(u"no folder/saved"_s)));
        QVERIFY(!moveDurably(m_dir.filePath(u"take/none"_s), m_to));

        QCOMPARE(contentOf(m_from), QByteArray("sound"));
        QVERIFY(filesThere().isEmpty());
    }

private:
    void prepare() override
    {
        m_from = m_dir.filePath(u"take/take"_s);
        m_to = m_dir.filePath(u"audio/saved"_s);
        QVERIFY(QDir(m_dir.path()).mkdir(u"take"_s) && QDir(m_dir.path()).mkdir(u"audio"_s));
    }
    void finish() override
    {
        foldersAreDisks = false;
        QVERIFY(QDir(m_dir.filePath(u"take"_s)).removeRecursively());
        QVERIFY(QDir(m_dir.filePath(u"audio"_s)).removeRecursively());
    }

    QStringList filesThere() const
    {
        return QDir(QFileInfo(m_to).path()).entryList(QDir::Files | QDir::Hidden);
    }

    QTemporaryDir m_dir;
    QString m_from;
    QString m_to;
};

QTEST_GUILESS_MAIN(DurableMoveTest)
#include "DurableMoveTest.moc"
