#include "audio/FileCopy.h"

#include "support/FileContent.h"
#include "support/Modes.h"
#include "support/OrdinaryUser.h"
#include "support/SmallFiles.h"
#include "support/TestCase.h"

#include <QDir>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>

#include <optional>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using tarvelo::audio::FileCopy;
using tarvelo::tests::addUmasks;
using tarvelo::tests::contentOf;
using tarvelo::tests::modeOf;
using tarvelo::tests::OrdinaryUser;
using tarvelo::tests::setMode;
using tarvelo::tests::SmallFiles;
using tarvelo::tests::Umask;
using tarvelo::tests::writeContent;

namespace {

constexpr qsizetype SeveralPieces = 5 * FileCopy::PieceSize + 7;

} // namespace

class FileCopyTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aSmallFileIsCopiedAtOnce()
    {
        writeSource(1000);

        copy().start();

        QCOMPARE(m_ends, 1);
        QVERIFY(contentOf(m_target) == m_content);
    }

    void aCopyIsForItsUserAlone_data() { addUmasks(); }
    void aCopyIsForItsUserAlone()
    {
        QFETCH(const mode_t, umask);
        const Umask mask(umask);
        writeSource(1000);
        QVERIFY(setMode(m_source, 0644));

        copy().start();

        QCOMPARE(m_ends, 1);
        QCOMPARE(modeOf(m_target), u"600"_s);
    }

    void anEmptyFileIsCopiedToo()
    {
        writeSource(0);

        copy().start();

        QVERIFY(QFile::exists(m_target));
        QCOMPARE(QFileInfo(m_target).size(), 0);
    }

    void aLargeFileIsCopiedWhileTheProgramGoesOn()
    {
        writeSource(SeveralPieces);
        int turns = 0;
        QTimer otherWork;
        connect(&otherWork, &QTimer::timeout, this, [&] { turns += m_ends == 0 ? 1 : 0; });
        otherWork.start(0);

        copy().start();

        QCOMPARE(m_ends, 0);
        QTRY_COMPARE(m_ends, 1);
        QVERIFY(turns > 2);
        QVERIFY(contentOf(m_target) == m_content);
    }

    void aCopyHasItsNameOnlyWhenItIsWhole()
    {
        writeSource(SeveralPieces);
        int halfCopies = 0;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this,
                [&] { halfCopies += QFile::exists(m_target) && m_ends == 0 ? 1 : 0; });
        watch.start(0);

        copy().start();

        QTRY_COMPARE(m_ends, 1);
        QCOMPARE(halfCopies, 0);
        QCOMPARE(namesInFolder(), QStringList{u"target.m4a"_s});
    }

    void aFileThatIsThereStays()
    {
        writeSource(1000);
        QVERIFY(writeContent(m_target, "earlier"));

        copy().start();

        QCOMPARE(m_ends, 1);
        QCOMPARE(contentOf(m_target), QByteArray("earlier"));
    }

    void aFileThatComesMeanwhileStays()
    {
        writeSource(SeveralPieces);

        copy().start();
        QVERIFY(writeContent(m_target, "another's"));

        QTRY_COMPARE(m_ends, 1);
        QCOMPARE(contentOf(m_target), QByteArray("another's"));
        QCOMPARE(namesInFolder(), QStringList{u"target.m4a"_s});
    }

    void aCopyThatIsGivenUpLeavesNothing()
    {
        writeSource(SeveralPieces);
        FileCopy &given = copy();
        given.start();

        delete &given;

        QCOMPARE(namesInFolder(), QStringList());
        QCOMPARE(m_ends, 0);
    }

    void aFullDiskLeavesNothing()
    {
        writeSource(SeveralPieces);
        const SmallFiles disk(2 * FileCopy::PieceSize);

        copy().start();

        QTRY_COMPARE(m_ends, 1);
        QCOMPARE(namesInFolder(), QStringList());
    }

    void whatIsNoFileIsNotCopied()
    {
        const QString pipe = m_dir->filePath(u"pipe"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);

        for (const QString &source : {m_dir->filePath(u"gone"_s), pipe, m_dir->path()})
            copy(source).start();

        QCOMPARE(m_ends, 3);
        QCOMPARE(namesInFolder(), QStringList());
    }

    void aFolderThatTakesNoFileIsNoTrouble()
    {
        writeSource(1000);
        QFile::setPermissions(m_dir->filePath(u"library"_s), QFile::ReadOwner | QFile::ExeOwner);
        const OrdinaryUser user;

        copy().start();

        QCOMPARE(m_ends, 1);
        QVERIFY(!QFile::exists(m_target));
    }

    void aCopyGoesWhenItHasEnded()
    {
        writeSource(1000);
        const QPointer<FileCopy> ended(&copy());

        ended->start();

        QTRY_VERIFY(!ended);
    }

private:
    void prepare() override
    {
        m_dir.emplace();
        QVERIFY(QDir(m_dir->path()).mkdir(u"library"_s));
        m_source = m_dir->filePath(u"source.m4a"_s);
        m_target = m_dir->filePath(u"library/target.m4a"_s);
        m_ends = 0;
    }
    void finish() override { m_dir.reset(); }

    FileCopy &copy() { return copy(m_source); }
    FileCopy &copy(const QString &source)
    {
        return *new FileCopy(
            source, m_target, [this] { ++m_ends; }, this);
    }

    void writeSource(qsizetype size)
    {
        m_content.resize(size);
        for (qsizetype i = 0; i < size; ++i)
            m_content[i] = static_cast<char>(i * 31 + i / 251);
        QVERIFY(writeContent(m_source, m_content));
    }
    QStringList namesInFolder() const
    {
        return QDir(m_dir->filePath(u"library"_s)).entryList(QDir::Files | QDir::Hidden);
    }

    std::optional<QTemporaryDir> m_dir;
    QString m_source;
    QString m_target;
    QByteArray m_content; // of the source
    int m_ends = 0;
};

QTEST_GUILESS_MAIN(FileCopyTest)
#include "FileCopyTest.moc"
