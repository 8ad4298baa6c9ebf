#include "platform/DurableMove.h"

#include "store/FullDisk.h"
#include "support/OtherDisk.h"
#include "support/TestCase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace tarvelo::platform;
using tarvelo::tests::foldersAreDisks;
using tarvelo::tests::NoRoomForFiles;

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
        write(m_from, sound);
        write(m_to, "an earlier one");

        QVERIFY(moveDurably(m_from, m_to));

        QCOMPARE(read(m_to), sound);
        QVERIFY(!QFileInfo::exists(m_from));
        QCOMPARE(filesThere(), QStringList(u"saved"_s));
    }

    void aCopyOnAnotherDiskIsForItsUserAlone()
    {
        foldersAreDisks = true;
        write(m_from, "sound");

        QVERIFY(moveDurably(m_from, m_to));

        QCOMPARE(QFileInfo(m_to).permissions() & 0x0fff, QFile::ReadUser | QFile::WriteUser);
    }

    void whatIsLeftOfAnEarlierTryIsWrittenAnew()
    {
        foldersAreDisks = true;
        write(m_from, "sound");
        write(QFileInfo(m_to).path() + u"/.saved.moved"_s, "half of another sound");

        QVERIFY(moveDurably(m_from, m_to));

        QCOMPARE(read(m_to), QByteArray("sound"));
        QCOMPARE(filesThere(), QStringList(u"saved"_s));
    }

    void onAnotherDiskThatIsFullBothFilesStay()
    {
        foldersAreDisks = true;
        write(m_from, "sound");
        write(m_to, "an earlier one");
        {
            const NoRoomForFiles noRoom;
            QVERIFY(!moveDurably(m_from, m_to));
        }

        QCOMPARE(read(m_from), QByteArray("sound"));
        QCOMPARE(read(m_to), QByteArray("an earlier one"));
        QCOMPARE(filesThere(), QStringList(u"saved"_s));
    }

    void aCopyIsKnownByItsBytes()
    {
        const QByteArray sound = QByteArray("sound").repeated(700'000);
        write(m_from, sound);
        for (const auto &[content, isCopy] :
             {std::pair(sound, true), std::pair(sound.chopped(1), false),
              std::pair(sound + 's', false), std::pair(sound.chopped(1) + 'x', false),
              std::pair(QByteArray(), false)}) {
            write(m_to, content);
            QCOMPARE(isCopyOf(m_to, m_from), isCopy);
            QCOMPARE(isCopyOf(m_from, m_to), isCopy);
        }
        QVERIFY(!isCopyOf(m_from, m_dir.filePath(u"take/none"_s)));
    }

    void whatCannotBeMovedStaysWhereItIs()
    {
        write(m_from, "sound");

        QVERIFY(!moveDurably(m_from, m_dir.filePath(u"no folder/saved"_s)));
        QVERIFY(!moveDurably(m_dir.filePath(u"take/none"_s), m_to));

        QCOMPARE(read(m_from), QByteArray("sound"));
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

    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
