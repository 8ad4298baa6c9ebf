#include "platform/PrivateFiles.h"

#include "support/Modes.h"
#include "support/TestCase.h"

#include <QDir>
#include <QTemporaryDir>

#include <optional>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace tarvelo::platform;
using tarvelo::tests::addUmasks;
using tarvelo::tests::modeOf;
using tarvelo::tests::setMode;
using tarvelo::tests::Umask;

class PrivateFilesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aFolderAndAllThatWasMissingAboveItAreForTheirUserAlone_data() { addUmasks(); }
    void aFolderAndAllThatWasMissingAboveItAreForTheirUserAlone()
    {
        QFETCH(const mode_t, umask);
        const Umask mask(umask);

        createFolderIfMissing(path("share/Tarvelo/Audio"));

        QCOMPARE(modeOf(path("share")), u"700"_s);
        QCOMPARE(modeOf(path("share/Tarvelo")), u"700"_s);
        QCOMPARE(modeOf(path("share/Tarvelo/Audio")), u"700"_s);
    }

    void theUmaskStaysAsItIsForThoseWhomWeStart()
    {
        const Umask mask(0022);

        createFolderIfMissing(path("folder"));
        createFileIfMissing(path("file"));

        QFile other(path("other"));
        QVERIFY(other.open(QIODevice::WriteOnly));
        QCOMPARE(modeOf(path("other")), u"644"_s);
    }

    void aFolderThatIsThereKeepsItsMode()
    {
        makeFolder("share", 0755);

        createFolderIfMissing(path("share"));
        createFolderIfMissing(path("share/Tarvelo"));

        QCOMPARE(modeOf(path("share")), u"755"_s);
        QCOMPARE(modeOf(path("share/Tarvelo")), u"700"_s);
    }

    void aFileInThePlaceOfAFolderStays()
    {
        makeFile("share", 0644);

        createFolderIfMissing(path("share/Tarvelo"));
        createFolderIfMissing(QString());

        QCOMPARE(modeOf(path("share")), u"644"_s);
    }

    void aNewFileIsForItsUserAlone_data() { addUmasks(); }
    void aNewFileIsForItsUserAlone()
    {
        QFETCH(const mode_t, umask);
        const Umask mask(umask);

        createFileIfMissing(path("file"));

        QCOMPARE(modeOf(path("file")), u"600"_s);
        QCOMPARE(QFileInfo(path("file")).size(), 0);
    }

    void aFileThatIsThereStaysAsItIs()
    {
        makeFile("file", 0644);

        createFileIfMissing(path("file"));

        QCOMPARE(modeOf(path("file")), u"644"_s);
        QCOMPARE(QFileInfo(path("file")).size(), 5);
    }

    void aLinkIntoNowhereMakesNoFileThere()
    {
        QVERIFY(QFile::link(path("elsewhere"), path("file")));

        createFileIfMissing(path("file"));

        QVERIFY(!QFileInfo::exists(path("elsewhere")));
    }

    void whatAnEarlierVersionAllowedOthersIsTakenBack_data()
    {
        QTest::addColumn<mode_t>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("readable") << mode_t(0755) << u"700"_s;
        QTest::newRow("writable") << mode_t(0777) << u"700"_s;
        QTest::newRow("for a group") << mode_t(02770) << u"2700"_s;
        QTest::newRow("private") << mode_t(0700) << u"700"_s;
        QTest::newRow("tighter") << mode_t(0505) << u"500"_s;
    }
    void whatAnEarlierVersionAllowedOthersIsTakenBack()
    {
        QFETCH(const mode_t, before);
        makeFolder("Tarvelo", before);

        keepFolderPrivate(path("Tarvelo"));

        QTEST(modeOf(path("Tarvelo")), "after");
    }

    void aLinkToAFolderElsewhereChangesNothingThere()
    {
        makeFolder("shared", 0755);
        QVERIFY(QFile::link(path("shared"), path("Tarvelo")));

        keepFolderPrivate(path("Tarvelo"));

        QCOMPARE(modeOf(path("shared")), u"755"_s);
    }

    void aLinkToAFileElsewhereChangesNothingThere()
    {
        makeFile("shared", 0644);
        QVERIFY(QFile::link(path("shared"), path("file")));

        keepFilePrivate(path("file"));

        QCOMPARE(modeOf(path("shared")), u"644"_s);
    }

    // An ordinary user cannot give a folder away, and looks at one of the system's.
    void aFolderOfSomebodyElseIsLeftAlone()
    {
        constexpr uid_t Nobody = 65534;
        makeFolder("given", 0755);
        const bool isGiven =
            ::chown(QFile::encodeName(path("given")).constData(), Nobody, Nobody) == 0;
        const QString folder = isGiven ? path("given") : QDir::rootPath();
        const QString before = modeOf(folder);

        keepFolderPrivate(folder);

        QCOMPARE(modeOf(folder), before);
    }

    void aFileIsNoFolderAndAFolderIsNoFile()
    {
        makeFile("file", 0644);
        makeFolder("folder", 0755);

        keepFolderPrivate(path("file"));
        keepFilePrivate(path("folder"));
        keepFilePrivate(path("missing"));

        QCOMPARE(modeOf(path("file")), u"644"_s);
        QCOMPARE(modeOf(path("folder")), u"755"_s);
        QVERIFY(!QFileInfo::exists(path("missing")));
    }

    void aPipeKeepsNobodyWaiting()
    {
        QCOMPARE(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
        QVERIFY(setMode(path("pipe"), 0644));

        keepFilePrivate(path("pipe"));

        QCOMPARE(modeOf(path("pipe")), u"644"_s);
    }

    void aNewFileBecomesItsUsersAlone()
    {
        makeFile("file", 0664);

        keepFilePrivate(path("file"));

        QCOMPARE(modeOf(path("file")), u"600"_s);
    }

private:
    void prepare() override { m_folder.emplace(); }
    void finish() override { m_folder.reset(); }

    QString path(const char *name) const { return m_folder->filePath(QString::fromLatin1(name)); }
    void makeFolder(const char *name, mode_t mode) const
    {
        QVERIFY(QDir().mkdir(path(name)) && setMode(path(name), mode));
    }
    void makeFile(const char *name, mode_t mode) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("lines") == 5);
        QVERIFY(setMode(path(name), mode));
    }

    std::optional<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(PrivateFilesTest)
#include "PrivateFilesTest.moc"
