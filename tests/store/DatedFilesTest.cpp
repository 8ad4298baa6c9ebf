#include "store/DatedFiles.h"

#include "support/TestCase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <initializer_list>

using namespace Qt::StringLiterals;
using tarvelo::store::DatedFiles;

class DatedFilesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNameSaysWhenTheFileWasMade()
    {
        const QDateTime made({2024, 3, 5}, {10, 0, 7, 89});

        const QString name = m_copies.nameOf(made);

        QCOMPARE(name, u"Copy 2024-03-05 10.00.07.089.db"_s);
        QCOMPARE(m_copies.madeAt(name), made);
        QCOMPARE(m_copies.pathOf(name), m_folder.filePath(name));
    }

    void theOldestNameIsTheFirst()
    {
        make({"Copy 2024-03-05 10.00.00.001.db", "Copy 2023-12-31 23.59.59.999.db",
              "Copy 2024-03-05 10.00.00.000.db"});

        QCOMPARE(m_copies.names(), QStringList({u"Copy 2023-12-31 23.59.59.999.db"_s,
                                                u"Copy 2024-03-05 10.00.00.000.db"_s,
                                                u"Copy 2024-03-05 10.00.00.001.db"_s}));
    }

    void ofTwoKindsInOneFolderEachKnowsItsOwn()
    {
        make({"Copy 2024-03-05 10.00.00.000.db", "Copy damaged 2024-03-05 10.00.00.000.db"});
        const DatedFiles damaged(m_folder.path(), u"Copy damaged"_s);

        QCOMPARE(m_copies.names(), QStringList{u"Copy 2024-03-05 10.00.00.000.db"_s});
        QCOMPARE(damaged.names(), QStringList{u"Copy damaged 2024-03-05 10.00.00.000.db"_s});
        QVERIFY(!damaged.madeAt(m_copies.names().first()).isValid());
    }

    void whatIsNotNamedByAMomentIsNone()
    {
        make({"Copy.db", "Copy of mine.db", "Copy 2024-13-05 10.00.00.000.db", ".room",
              "Copy 2024-03-05 10.00.00.000.db-journal"});

        QCOMPARE(m_copies.names(), QStringList());
    }

    void theRoomForTheNextOneIsThatOfAllKinds()
    {
        QCOMPARE(m_copies.roomPath(), DatedFiles(m_folder.path(), u"Other"_s).roomPath());
        QVERIFY(m_copies.roomPath().startsWith(m_folder.path()));
    }

private:
    void make(std::initializer_list<const char *> names) const
    {
        for (const char *name : names)
            QVERIFY(QFile(m_folder.filePath(QString::fromLatin1(name))).open(QIODevice::WriteOnly));
    }
    void finish() override
    {
        for (const QString &name : QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden))
            QVERIFY(QFile::remove(m_folder.filePath(name)));
    }

    QTemporaryDir m_folder;
    DatedFiles m_copies{m_folder.path(), QStringLiteral("Copy")};
};

QTEST_GUILESS_MAIN(DatedFilesTest)
#include "DatedFilesTest.moc"
