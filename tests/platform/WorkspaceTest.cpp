#include "platform/Workspace.h"

#include "platform/DesktopCase.h"
#include "support/FileContent.h"
#include "support/HostileTexts.h"
#include "support/Modes.h"
#include "support/OrdinaryUser.h"
#include "support/StandInPlayers.h"
#include "support/StandInServices.h"
#include "support/StderrCatcher.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::platform::DesktopWorkspace;
using tarvelo::tests::addHostileTexts;
using tarvelo::tests::hasAnythingRun;
using tarvelo::tests::modeOf;
using tarvelo::tests::OrdinaryUser;
using tarvelo::tests::setMode;
using tarvelo::tests::StandInCommands;
using tarvelo::tests::StandInFileManager;
using tarvelo::tests::StandInPlayers;
using tarvelo::tests::StandInService;
using tarvelo::tests::StderrCatcher;
using tarvelo::tests::writeContent;

using Manner = StandInService::Manner;

namespace {

const QString Command = QStringLiteral("xdg-open");

QList<QStringList> oneCallWith(const QString &argument)
{
    QList<QStringList> calls;
    calls.append(QStringList{argument});
    return calls;
}

} // namespace

class WorkspaceTest final : public tarvelo::tests::DesktopCase
{
    Q_OBJECT

public:
    WorkspaceTest()
        : DesktopCase(Command)
    {
    }

private Q_SLOTS:
    // -- Showing files

    void theFileManagerSelectsTheFiles()
    {
        const StandInFileManager manager(m_bus.address());
        QVERIFY(manager.isThere());

        m_workspace.activateFileViewerSelectingURLs(
            {QUrl(u"file:///music/Audio - 1.m4a"_s), QUrl(u"file:///music/2.m4a"_s)});

        QTRY_COMPARE(manager.showings.size(), 1);
        QCOMPARE(manager.showings.first().addresses,
                 (QStringList{u"file:///music/Audio%20-%201.m4a"_s, u"file:///music/2.m4a"_s}));
        QCOMPARE(manager.showings.first().startupId, QString());
        QVERIFY(m_commands->callsOf(Command).isEmpty());
    }

    void theFileManagerIsNotWaitedFor()
    {
        const StandInFileManager manager(m_bus.address());

        m_workspace.activateFileViewerSelectingURLs({QUrl(u"file:///music/1.m4a"_s)});

        QVERIFY(manager.showings.isEmpty());
        QTRY_COMPARE(manager.showings.size(), 1);
    }

    void aDoubledSlashIsOneForTheFileManager()
    {
        const StandInFileManager manager(m_bus.address());

        m_workspace.activateFileViewerSelectingURLs(
            {QUrl::fromLocalFile(u"/home/Audio//Audio - 1.m4a"_s)});

        QTRY_COMPARE(manager.showings.size(), 1);
        QCOMPARE(manager.showings.first().addresses,
                 QStringList{u"file:///home/Audio/Audio%20-%201.m4a"_s});
    }

    void hostileNamesReachTheFileManagerUnchanged_data() { addHostileTexts(); }
    void hostileNamesReachTheFileManagerUnchanged()
    {
        QFETCH(const QString, text);
        const StandInFileManager manager(m_bus.address());
        const QString path = writeFile(text);

        m_workspace.activateFileViewerSelectingURLs({QUrl::fromLocalFile(path)});

        QTRY_COMPARE(manager.showings.size(), 1);
        const QUrl address(manager.showings.first().addresses.value(0), QUrl::StrictMode);
        QCOMPARE(address.toLocalFile(), path);
        QVERIFY(!hasAnythingRun());
    }

    void withoutAFileManagerTheFolderIsOpened()
    {
        const QString path = writeFile(u"Audio - 1.m4a"_s);

        m_workspace.activateFileViewerSelectingURLs({QUrl::fromLocalFile(path)});

        QTRY_COMPARE(m_commands->callsOf(Command), oneCallWith(m_folder->path()));
    }

    void aFileThatIsGoneIsLookedForInItsFolder()
    {
        m_workspace.activateFileViewerSelectingURLs(
            {QUrl::fromLocalFile(m_folder->path() + u"//gone.m4a"_s)});

        QTRY_COMPARE(m_commands->callsOf(Command), oneCallWith(m_folder->path()));
    }

    // Whether it can be opened is the opener's to say.
    void aFolderThatIsGoneIsHandedToTheOpenerAllTheSame()
    {
        const QString folder = m_folder->filePath(u"gone"_s);
        const StderrCatcher catcher;

        m_workspace.activateFileViewerSelectingURLs({QUrl::fromLocalFile(folder + u"/1.m4a"_s)});

        QTRY_COMPARE(m_commands->callsOf(Command), oneCallWith(folder));
        QCOMPARE(catcher.caught(), QByteArray());
        QVERIFY(!QFileInfo::exists(folder));
    }

    void theFolderOfRecordingsItselfIsOpened()
    {
        m_workspace.activateFileViewerSelectingURLs({QUrl::fromLocalFile(m_folder->path() + u'/')});

        QTRY_COMPARE(m_commands->callsOf(Command), oneCallWith(m_folder->path()));
    }

    void aFileManagerThatRefusesLeavesTheFolder()
    {
        const StandInFileManager manager(m_bus.address(), Manner::Refuses);

        m_workspace.activateFileViewerSelectingURLs({QUrl(u"file:///music/1.m4a"_s)});

        QTRY_COMPARE(m_commands->callsOf(Command), oneCallWith(u"/music"_s));
    }

    void aFileManagerThatKeepsSilentIsGivenUp()
    {
        const StandInFileManager manager(m_bus.address(), Manner::KeepsSilent);
        DesktopWorkspace impatient(50ms);

        impatient.activateFileViewerSelectingURLs({QUrl(u"file:///music/1.m4a"_s)});

        QTRY_COMPARE(m_commands->callsOf(Command), oneCallWith(u"/music"_s));
    }

    void whatIsNoFileIsNotShown()
    {
        const StandInFileManager manager(m_bus.address());

        m_workspace.activateFileViewerSelectingURLs({});
        m_workspace.activateFileViewerSelectingURLs({QUrl::fromLocalFile(QString())});
        m_workspace.activateFileViewerSelectingURLs({QUrl::fromLocalFile(u"No Audio"_s)});
        m_workspace.activateFileViewerSelectingURLs({QUrl(u"file:///music/1.m4a"_s)});

        QTRY_COMPARE(manager.showings.size(), 1);
        QCOMPARE(manager.showings.first().addresses, QStringList{u"file:///music/1.m4a"_s});
    }

    // -- Opening files

    void hostileNamesReachTheOpenerUnchanged_data() { addHostileTexts(); }
    void hostileNamesReachTheOpenerUnchanged()
    {
        QFETCH(const QString, text);
        const QString path = writeFile(text);

        m_workspace.openFileWithApplication(path);

        QTRY_COMPARE(m_commands->callsOf(Command), oneCallWith(path));
        QVERIFY(!hasAnythingRun());
    }

    void aFileThatIsGoneIsHandedToTheOpenerAllTheSame()
    {
        m_workspace.openFileWithApplication(u"/music/gone.m4a"_s);

        QTRY_COMPARE(m_commands->callsOf(Command), oneCallWith(u"/music/gone.m4a"_s));
    }

    void aFileThatCannotBeReadIsHandedToTheOpenerAndStaysSo()
    {
        const QString path = writeFile(u"Audio - 1.m4a"_s);
        QVERIFY(setMode(path, 0000));
        const OrdinaryUser user;
        QVERIFY(!QFile(path).open(QIODevice::ReadOnly));
        const StderrCatcher catcher;

        m_workspace.openFileWithApplication(path);

        QTRY_COMPARE(m_commands->callsOf(Command), oneCallWith(path));
        QCOMPARE(modeOf(path), u"0"_s);
        QCOMPARE(catcher.caught(), QByteArray());
    }

    void aFileThatCannotBeReadIsShownAllTheSame()
    {
        const StandInFileManager manager(m_bus.address());
        const QString path = writeFile(u"Audio - 1.m4a"_s);
        QVERIFY(setMode(path, 0000));
        const OrdinaryUser user;

        m_workspace.activateFileViewerSelectingURLs({QUrl::fromLocalFile(path)});

        QTRY_COMPARE(manager.showings.size(), 1);
        QCOMPARE(QUrl(manager.showings.first().addresses.value(0)).toLocalFile(), path);
    }

    void everyKindOfSoundFileOpensInTheUsersPlayer_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("MPEG-4 audio") << fileType("M4A ");
        QTest::newRow("MPEG-4, version 1") << fileType("mp41");
        QTest::newRow("MPEG-4 of any content") << fileType("isom");
        QTest::newRow("bare AAC") << QByteArray("\xFF\xF1\x50\x80\x02\x1F\xFC", 7);
    }
    void everyKindOfSoundFileOpensInTheUsersPlayer()
    {
        QFETCH(const QByteArray, content);
        const QString path = writeFile(u"Tarvelo - it's $(touch RAN).m4a"_s, content);
        m_commands.reset();
        const StandInPlayers players;

        m_workspace.openFileWithApplication(path);

        QTRY_COMPARE(players.opened(), QStringList{path});
        QVERIFY(!hasAnythingRun());
    }

    // -- Opening documents and addresses

    void hostileNamesReachTheViewerUnchanged_data() { addHostileTexts(); }
    void hostileNamesReachTheViewerUnchanged()
    {
        QFETCH(const QString, text);
        const QString path = writeFile(text);

        m_workspace.openFile(path);

        QTRY_COMPARE(m_commands->callsOf(Command), oneCallWith(path));
        QVERIFY(!hasAnythingRun());
    }

    void anAddressReachesTheApplicationForItsScheme_data()
    {
        QTest::addColumn<QString>("address");
        QTest::newRow("web page") << u"https://tarvelo.org/about/?a=b&c=d%20e#f"_s;
        QTest::newRow("software store") << u"appstream://org.tarvelo.tarvelo"_s;
        QTest::newRow("hostile") << u"https://tarvelo.org/$(touch%20RAN);'%60touch%20RAN%60'"_s;
    }
    void anAddressReachesTheApplicationForItsScheme()
    {
        QFETCH(const QString, address);

        m_workspace.openURL(QUrl(address));

        QTRY_COMPARE(m_commands->callsOf(Command), oneCallWith(address));
        QVERIFY(!hasAnythingRun());
    }

    void whatIsNoAddressIsNotOpened()
    {
        m_workspace.openURL(QUrl());
        m_workspace.openURL(QUrl(u"--version"_s));
        m_workspace.openURL(QUrl(u"https://[tarvelo"_s, QUrl::StrictMode));
        m_workspace.openURL(QUrl(u"https://tarvelo.org/"_s));

        QTRY_COMPARE(m_commands->callsOf(Command), oneCallWith(u"https://tarvelo.org/"_s));
    }

    // -- Silence

    void anAddressThatCannotBeOpenedIsNotSpokenOf()
    {
        QVERIFY(m_commands->makeTalkative(Command, u"no application knows this address"_s));
        const StderrCatcher catcher;

        m_workspace.openURL(QUrl(u"https://tarvelo.org/"_s));

        QTRY_COMPARE(m_commands->callsOf(Command).size(), 1);
        QCOMPARE(catcher.caught(), QByteArray());
    }

    void whatTheOpenerPrintsIsNotShown()
    {
        QVERIFY(m_commands->makeTalkative(Command, u"no application knows this file"_s));
        const StderrCatcher catcher;

        m_workspace.openFileWithApplication(u"/music/1.m4a"_s);

        QTRY_COMPARE(m_commands->callsOf(Command).size(), 1);
        QCOMPARE(catcher.caught(), QByteArray());
    }

    void withoutAnOpenerNothingIsSaid()
    {
        m_commands.reset();
        m_commands.emplace(QStringList(), StandInCommands::Path::NothingBehind);
        const StderrCatcher catcher;

        m_workspace.openFileWithApplication(u"/music/1.m4a"_s);
        m_workspace.openFile(u"/music/1.pdf"_s);
        m_workspace.openURL(QUrl(u"https://tarvelo.org/"_s));

        QCOMPARE(catcher.caught(), QByteArray());
    }

private:
    // The beginning of an MPEG-4 file of the given brand.
    static QByteArray fileType(const char *brand)
    {
        return QByteArray("\0\0\0\x18"
                          "ftyp",
                          8) +
               brand + QByteArray("\0\0\2\0isomiso2", 12);
    }
    // Gives the path of the new file.
    QString writeFile(const QString &name, const QByteArray &content = "sound")
    {
        const QString path = m_folder->filePath(name);
        return writeContent(path, content) ? path : QString();
    }

    DesktopWorkspace m_workspace;
};

QTEST_GUILESS_MAIN(WorkspaceTest)
#include "WorkspaceTest.moc"
