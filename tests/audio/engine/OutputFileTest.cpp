#include "audio/engine/OutputFile.h"
#include "support/FileContent.h"
#include "support/FolderCase.h"
#include "support/OrdinaryUser.h"
#include "support/SmallFiles.h"

#include <QFile>

#include <sys/stat.h>
#include <vector>

using namespace tarvelo::tests;
using tarvelo::engine::OutputFile;

namespace {

std::vector<std::uint8_t> bytes(std::size_t count, std::uint8_t value)
{
    return std::vector<std::uint8_t>(count, value);
}

} // namespace

class OutputFileTest final : public FolderCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewFileIsForItsOwnerAlone()
    {
        const auto file = OutputFile::create(path());

        struct stat status = {};
        QVERIFY(file);
        QCOMPARE(::stat(path().c_str(), &status), 0);
        QCOMPARE(status.st_mode & 0777U, 0600U);
    }

    void anOldFileIsEmptiedAndMadePrivate()
    {
        QFile old(QString::fromStdString(path()));
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("old");
        old.close();
        old.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);

        QVERIFY(OutputFile::create(path()));

        QCOMPARE(old.size(), 0);
        QVERIFY(!old.permissions().testFlag(QFile::ReadOther));
    }

    void appendingAndWritingInPlace()
    {
        const auto file = OutputFile::create(path());

        QVERIFY(file->append(bytes(3, 'a')));
        QVERIFY(file->append(bytes(3, 'b')));
        QVERIFY(file->writeAt(1, bytes(1, 'c')));
        QVERIFY(file->sync());

        QCOMPARE(file->size(), 6);
        QCOMPARE(content(), QByteArray("acabbb"));
    }

    void whatDoesNotFitOnTheDiskLeavesNoTrace()
    {
        const auto file = OutputFile::create(path());
        {
            const SmallFiles disk(5);
            QVERIFY(file->append(bytes(3, 'a')));

            QVERIFY(!file->append(bytes(3, 'b')));

            QCOMPARE(content(), QByteArray("aaa"));
        }

        QVERIFY(file->append(bytes(3, 'c')));
        QCOMPARE(content(), QByteArray("aaaccc"));
    }

    void aFolderThatCannotBeWrittenGivesNoFile()
    {
        QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner);
        const OrdinaryUser user;

        QVERIFY(!OutputFile::create(path()));
    }

    void aMissingFolderGivesNoFile() { QVERIFY(!OutputFile::create(path() + "/take")); }

    void onlyARegularFileIsOne()
    {
        QCOMPARE(::mkfifo(path().c_str(), 0600), 0);

        QVERIFY(!OutputFile::create(path()));
        QVERIFY(!OutputFile::create(m_folder->path().toStdString()));
        QVERIFY(!OutputFile::create("/dev/null"));
    }

private:
    void finish() override
    {
        QFile::setPermissions(m_folder->path(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        FolderCase::finish();
    }

    std::string path() const { return m_folder->filePath(QStringLiteral("take")).toStdString(); }
    QByteArray content() const { return contentOf(QString::fromStdString(path())); }
};

QTEST_GUILESS_MAIN(OutputFileTest)
#include "OutputFileTest.moc"
