#include "audio/SharingAndExport.h"

#include "audio/FileCopy.h"
#include "store/LectureInfoItem.h"
#include "support/EnvironmentVariable.h"
#include "support/FakeMailComposer.h"
#include "support/FakeWorkspace.h"
#include "support/FileContent.h"
#include "support/Modes.h"
#include "support/StandInPlayers.h"
#include "support/TestCase.h"

#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <optional>

using namespace Qt::StringLiterals;
using tarvelo::audio::FileCopy;
using tarvelo::audio::SharingAndExport;
using tarvelo::platform::plainText;
using tarvelo::platform::StyledText;
using tarvelo::store::LectureInfoItem;
using tarvelo::tests::addUmasks;
using tarvelo::tests::contentOf;
using tarvelo::tests::FakeMailComposer;
using tarvelo::tests::FakeWorkspace;
using tarvelo::tests::modeOf;
using tarvelo::tests::setMode;
using tarvelo::tests::Umask;
using tarvelo::tests::writeContent;

class SharingAndExportTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // -- Mail

    void aMailHasTheSubjectInFifteenPointsAndTheNotesWithoutAFont()
    {
        m_sharing->doSendMail(lecture(u"Optics"_s, u"Lenses and mirrors"_s));

        QFont subject = QGuiApplication::font();
        subject.setPointSizeF(15.0);
        QCOMPARE(m_mail.mails.size(), 1);
        QCOMPARE(m_mail.mails.first().text,
                 (StyledText{
                     {u"Optics"_s, subject}, {u"\n\n"_s}, {u"Lenses and mirrors"_s}, {u"\n_"_s}}));
    }

    void notesOfElevenCharactersAreFollowedByAnUnderscore_data()
    {
        QTest::addColumn<QString>("notes");
        QTest::addColumn<QString>("body");
        QTest::newRow("none") << u""_s << u"Optics\n\n"_s;
        QTest::newRow("10") << u"0123456789"_s << u"Optics\n\n0123456789"_s;
        QTest::newRow("11") << u"0123456789a"_s << u"Optics\n\n0123456789a\n_"_s;
        QTest::newRow("10 and a line end") << u"0123456789\n"_s << u"Optics\n\n0123456789\n\n_"_s;
    }
    void notesOfElevenCharactersAreFollowedByAnUnderscore()
    {
        QFETCH(const QString, notes);
        QFETCH(const QString, body);

        m_sharing->doSendMail(lecture(u"Optics"_s, notes));

        QCOMPARE(plainText(m_mail.mails.first().text), body);
    }

    void theStoredFileIsAttachedWhetherOrNotItIsThere()
    {
        m_sharing->doSendMail(lectureAt(u"/nowhere/Audio//Audio - 1.aac"_s));

        QCOMPARE(m_mail.mails.first().attachment,
                 QUrl::fromLocalFile(u"/nowhere/Audio//Audio - 1.aac"_s));
    }

    void aLectureWithoutAudioIsMailedByItsWords()
    {
        m_sharing->doSendMail(lectureAt(QString()));

        QCOMPARE(m_mail.mails.first().attachment, QUrl());
    }

    // -- Music library

    void theFileGoesIntoTheMusicFolderUnderTheProgramsName()
    {
        const QString stored = writeRecording(u"Audio - 20240305090000.m4a"_s, "sound");

        m_sharing->onExportToiTunes(lectureAt(stored));

        const QString target = exported(u"Tarvelo - 20240305090000.m4a"_s);
        QCOMPARE(contentOf(target), QByteArray("sound"));
        QCOMPARE(m_workspace.opened, QStringList{target});
    }

    void aCopyIsForItsUserAloneAndTheLibraryStaysAsItIs_data() { addUmasks(); }
    void aCopyIsForItsUserAloneAndTheLibraryStaysAsItIs()
    {
        QFETCH(const mode_t, umask);
        const Umask mask(umask);
        const QString library = m_dir->filePath(u"Music"_s);
        QVERIFY(QDir().mkdir(library) && setMode(library, 0755));

        m_sharing->onExportToiTunes(lectureAt(writeRecording(u"Audio - 1.m4a"_s, "sound")));

        QCOMPARE(modeOf(exported(u"Tarvelo - 1.m4a"_s)), u"600"_s);
        QCOMPARE(modeOf(exported(QString())), u"700"_s);
        QCOMPARE(modeOf(library + u"/Tarvelo"_s), u"700"_s);
        QCOMPARE(modeOf(library), u"755"_s);
    }

    void aStoredPathWithADoubledSlashIsExported()
    {
        const QString stored = writeRecording(u"Audio - 1.m4a"_s, "sound");
        QVERIFY(stored.contains(u"//Audio - "));

        m_sharing->onExportToiTunes(lectureAt(stored));

        QVERIFY(QFile::exists(exported(u"Tarvelo - 1.m4a"_s)));
    }

    void whatIsCopiedIsNamedWithSingleSlashes()
    {
        const auto path = lectureAt(u"/home/Tarvelo//Audio//Audio - 1.m4a"_s);
        const auto none = lectureAt(QString());

        QCOMPARE(SharingAndExport::exportedFrom(path), u"/home/Tarvelo/Audio/Audio - 1.m4a"_s);
        QCOMPARE(SharingAndExport::exportedFrom(none), QString());
    }

    void aSecondExportLeavesTheFirstCopyAndOpensItAgain()
    {
        const QString stored = writeRecording(u"Audio - 1.m4a"_s, "first");
        m_sharing->onExportToiTunes(lectureAt(stored));
        writeRecording(u"Audio - 1.m4a"_s, "second");

        m_sharing->onExportToiTunes(lectureAt(stored));

        const QString target = exported(u"Tarvelo - 1.m4a"_s);
        QCOMPARE(contentOf(target), QByteArray("first"));
        QCOMPARE(m_workspace.opened, (QStringList{target, target}));
    }

    void aFileThatEndsInMp3IsNeverExported_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("extension") << u"Audio - 1.mp3"_s;
        QTest::newRow("no extension") << u"Audio mp3"_s;
    }
    void aFileThatEndsInMp3IsNeverExported()
    {
        QFETCH(const QString, name);

        m_sharing->onExportToiTunes(lectureAt(writeRecording(name, "sound")));

        QVERIFY(QDir(m_sharing->musicExportFolder()).isEmpty());
        QVERIFY(m_workspace.opened.isEmpty());
    }

    void otherFilesAreExportedWhateverTheirKind()
    {
        const QString stored = writeRecording(u"Lecture.MP3 - Audio -.aac"_s, "sound");

        m_sharing->onExportToiTunes(lectureAt(stored));

        QCOMPARE(contentOf(exported(u"Lecture.MP3 - Tarvelo -.aac"_s)), QByteArray("sound"));
    }

    void aLectureWithoutAudioIsNotExported()
    {
        m_sharing->onExportToiTunes(lectureAt(QString()));

        QVERIFY(m_workspace.opened.isEmpty());
        QVERIFY(!QFile::exists(m_sharing->musicExportFolder()));
    }

    void aFileThatIsGoneIsOpenedAllTheSame()
    {
        m_sharing->onExportToiTunes(lectureAt(m_dir->filePath(u"Audio - gone.m4a"_s)));

        const QString target = exported(u"Tarvelo - gone.m4a"_s);
        QCOMPARE(m_workspace.opened, QStringList{target});
        QVERIFY(!QFile::exists(target));
    }

    void aMusicFolderThatHasTheNameOfRecordingsIsNotExportedInto()
    {
        const QString stored = writeRecording(u"Audio - 1.m4a"_s, "sound");
        SharingAndExport sharing(m_dir->filePath(u"Audio - all"_s), m_mail, m_workspace);

        sharing.onExportToiTunes(lectureAt(stored));

        const QString target = m_dir->filePath(u"Tarvelo - all/Tarvelo/Audio/Tarvelo - 1.m4a"_s);
        QCOMPARE(m_workspace.opened, QStringList{target});
        QVERIFY(!QFile::exists(target));
        QVERIFY(QDir(m_dir->filePath(u"Audio - all/Tarvelo/Audio"_s)).isEmpty());
    }

    void whatStandsInTheFoldersPlaceStays()
    {
        QVERIFY(writeContent(m_dir->filePath(u"Music"_s), "a file"));

        m_sharing->onExportToiTunes(lectureAt(writeRecording(u"Audio - 1.m4a"_s, "sound")));

        QCOMPARE(contentOf(m_dir->filePath(u"Music"_s)), QByteArray("a file"));
        QCOMPARE(m_workspace.opened.size(), 1);
    }

    void aLargeFileIsOpenedWhenItsCopyIsWhole()
    {
        const QByteArray content(3 * FileCopy::PieceSize, 'x');

        m_sharing->onExportToiTunes(lectureAt(writeRecording(u"Audio - 1.m4a"_s, content)));

        QVERIFY(m_workspace.opened.isEmpty());
        QTRY_COMPARE(m_workspace.opened.size(), 1);
        QVERIFY(contentOf(m_workspace.opened.first()) == content);
    }

    void aCopyThatRunsWhenTheProgramEndsLeavesNothing()
    {
        const QByteArray content(3 * FileCopy::PieceSize, 'x');
        m_sharing->onExportToiTunes(lectureAt(writeRecording(u"Audio - 1.m4a"_s, content)));
        const QString folder = m_sharing->musicExportFolder();

        m_sharing.reset();

        QVERIFY(QDir(folder).isEmpty(QDir::Files | QDir::Hidden));
        QVERIFY(m_workspace.opened.isEmpty());
    }

    void theCopyOpensInTheUsersPlayer()
    {
        const tarvelo::tests::StandInPlayers players;
        tarvelo::platform::DesktopWorkspace workspace;
        SharingAndExport sharing(m_dir->filePath(u"Music"_s), m_mail, workspace);
        const QByteArray content = QByteArray("\0\0\0\x18"
                                              "ftypM4A \0\0\2\0isomiso2",
                                              24);

        sharing.onExportToiTunes(lectureAt(writeRecording(u"Audio - 1.m4a"_s, content)));

        QTRY_COMPARE(players.opened(), QStringList{exported(u"Tarvelo - 1.m4a"_s)});
    }

    // -- What is offered

    void onlyFilesWithTheExtensionM4aAreOfferedForExport_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("isOffered");
        QTest::newRow("m4a") << u"/Audio//Audio - 1.m4a"_s << true;
        QTest::newRow("aac") << u"/Audio//Audio - 1.aac"_s << false;
        QTest::newRow("upper case") << u"/Audio//Audio - 1.M4A"_s << false;
        QTest::newRow("mp3") << u"/Audio//Audio - 1.mp3"_s << false;
        QTest::newRow("m4a is the name") << u"/Audio/m4a"_s << false;
        QTest::newRow("m4a is the folder's") << u"/Audio.m4a/Audio - 1"_s << false;
        QTest::newRow("no audio") << QString() << false;
    }
    void onlyFilesWithTheExtensionM4aAreOfferedForExport()
    {
        QFETCH(const QString, path);
        QFETCH(const bool, isOffered);

        QCOMPARE(SharingAndExport::isSupportedIniTunes(lectureAt(path)), isOffered);
    }

private:
    void prepare() override
    {
        m_dir.emplace();
        QVERIFY(QDir(m_dir->path()).mkdir(u"Audio"_s));
        m_mail.mails.clear();
        m_workspace.opened.clear();
        m_sharing.emplace(m_dir->filePath(u"Music"_s), m_mail, m_workspace);
    }
    void finish() override
    {
        m_sharing.reset();
        m_dir.reset();
    }

    static LectureInfoItem lecture(const QString &subject, const QString &notes)
    {
        LectureInfoItem item(subject, QString(), QString(), QString(), false);
        item.setNotes(notes);
        return item;
    }
    static LectureInfoItem lectureAt(const QString &path)
    {
        LectureInfoItem item = lecture(u"Optics"_s, QString());
        item.setLectureAudioPath(path);
        return item;
    }

    // Gives the path as it is stored, with two slashes before the name.
    QString writeRecording(const QString &name, const QByteArray &content) const
    {
        const QString path = m_dir->filePath(u"Audio//"_s) + name;
        return writeContent(path, content) ? path : QString();
    }
    QString exported(const QString &name) const
    {
        return m_dir->filePath(u"Music/Tarvelo/Audio/"_s) + name;
    }

    std::optional<QTemporaryDir> m_dir;
    FakeMailComposer m_mail;
    FakeWorkspace m_workspace;
    std::optional<SharingAndExport> m_sharing;
};

QTEST_MAIN(SharingAndExportTest)
#include "SharingAndExportTest.moc"
