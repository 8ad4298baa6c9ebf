#include "platform/MailComposer.h"

#include "platform/DesktopCase.h"
#include "support/FileContent.h"
#include "support/HostileTexts.h"
#include "support/StandInServices.h"
#include "support/StderrCatcher.h"

#include <QRandomGenerator>
#include <QScopeGuard>
#include <QUrl>
#include <QUrlQuery>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::platform::DesktopMailComposer;
using tarvelo::platform::StyledText;
using tarvelo::tests::addHostileTexts;
using tarvelo::tests::hasAnythingRun;
using tarvelo::tests::StandInCommands;
using tarvelo::tests::StandInPortal;
using tarvelo::tests::StandInService;
using tarvelo::tests::StderrCatcher;
using tarvelo::tests::writeContent;

using Manner = StandInService::Manner;

namespace {

const QString Command = QStringLiteral("xdg-email");
const QString PortalName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Hook = QStringLiteral("xdg-email-hook.sh");

StyledText words(const QString &text)
{
    return {{text}};
}

QString bodyOf(const QString &address)
{
    const QUrlQuery query(QUrl(address, QUrl::StrictMode));
    return query.queryItemValue(QStringLiteral("body"), QUrl::FullyDecoded)
        .replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

} // namespace

class MailComposerTest final : public tarvelo::tests::DesktopCase
{
    Q_OBJECT

public:
    MailComposerTest()
        : DesktopCase(Command)
    {
    }

private Q_SLOTS:
    // -- The portal

    void thePortalGetsTheWordsAndNothingElseThatWasNotGiven()
    {
        const StandInPortal portal(m_bus.address());
        QVERIFY(portal.isThere());

        m_composer.compose({{u"Optics"_s, QFont()}, {u"\n\nLenses"_s}}, QUrl());

        QTRY_COMPARE(portal.mails.size(), 1);
        QCOMPARE(portal.mails.first().options, (QVariantMap{{u"body"_s, u"Optics\n\nLenses"_s}}));
        QCOMPARE(portal.mails.first().parentWindow, QString());
    }

    void thePortalGetsTheFileAsADescriptor()
    {
        const StandInPortal portal(m_bus.address());
        const QString path = writeFile(u"Audio - 1.m4a"_s, 3'000'001);

        m_composer.compose(words(u"Optics"_s), QUrl::fromLocalFile(path));

        QTRY_COMPARE(portal.mails.size(), 1);
        QCOMPARE(portal.mails.first().paths, QStringList{path});
        QVERIFY(portal.mails.first().contents == QList<QByteArray>{m_written});
        QVERIFY(m_commands->callsOf(Command).isEmpty());
    }

    void hostileWordsAndNamesReachThePortalUnchanged_data() { addHostileTexts(); }
    void hostileWordsAndNamesReachThePortalUnchanged()
    {
        QFETCH(const QString, text);
        const StandInPortal portal(m_bus.address());
        const QString path = writeFile(text, 100);

        m_composer.compose(words(text), QUrl::fromLocalFile(path));

        QTRY_COMPARE(portal.mails.size(), 1);
        QCOMPARE(portal.mails.first().options.value(u"body"_s).toString(), text);
        QCOMPARE(portal.mails.first().paths, QStringList{path});
        QVERIFY(portal.mails.first().contents == QList<QByteArray>{m_written});
        QVERIFY(!hasAnythingRun());
    }

    void thePortalIsNotWaitedFor()
    {
        const StandInPortal portal(m_bus.address());

        m_composer.compose(words(u"Optics"_s), QUrl());

        QVERIFY(portal.mails.isEmpty());
        QTRY_COMPARE(portal.mails.size(), 1);
    }

    void aFileThatIsGoneLeavesTheWordsToThePortal()
    {
        const StandInPortal portal(m_bus.address());

        m_composer.compose(words(u"Optics"_s), QUrl::fromLocalFile(inFolder(u"gone.m4a"_s)));

        QTRY_COMPARE(portal.mails.size(), 1);
        QCOMPARE(portal.mails.first().options, (QVariantMap{{u"body"_s, u"Optics"_s}}));
    }

    void whatIsNoFileIsNotAttachedAndKeepsNobodyWaiting()
    {
        const StandInPortal portal(m_bus.address());
        const QString pipe = inFolder(u"pipe"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);

        m_composer.compose(words(u"a folder"_s), QUrl::fromLocalFile(m_folder->path()));
        m_composer.compose(words(u"a pipe"_s), QUrl::fromLocalFile(pipe));

        QTRY_COMPARE(portal.mails.size(), 2);
        QVERIFY(!portal.mails.at(0).options.contains(u"attachment_fds"_s));
        QVERIFY(portal.mails.at(0).contents.isEmpty() && portal.mails.at(1).contents.isEmpty());
    }

    // -- The command

    void withoutAPortalTheCommandGetsTheWordsAndTheFile()
    {
        const QString path = writeFile(u"Audio - 1.m4a"_s, 100);

        m_composer.compose(words(u"Optics\n\nLenses & mirrors"_s), QUrl::fromLocalFile(path));

        QTRY_COMPARE(m_commands->callsOf(Command).size(), 1);
        QCOMPARE(m_commands->callsOf(Command).first(),
                 (QStringList{u"--utf8"_s, u"--attach"_s, path,
                              u"mailto:?body=Optics%0D%0A%0D%0ALenses%20%26%20mirrors"_s}));
    }

    void aPortalWithoutMailsLeavesThemToTheCommand()
    {
        const StandInPortal portal(m_bus.address(), Manner::Refuses);

        m_composer.compose(words(u"Optics"_s), QUrl());

        QTRY_COMPARE(m_commands->callsOf(Command).size(), 1);
        QCOMPARE(m_commands->callsOf(Command).first(),
                 (QStringList{u"--utf8"_s, u"mailto:?body=Optics"_s}));
    }

    void aPortalThatKeepsSilentIsGivenUp()
    {
        const StandInPortal portal(m_bus.address(), Manner::KeepsSilent);
        DesktopMailComposer impatient(50ms);

        impatient.compose(words(u"Optics"_s), QUrl());

        QTRY_COMPARE(m_commands->callsOf(Command).size(), 1);
    }

    void aPortalThatCannotBeStartedLeavesMailsToTheCommand()
    {
        QVERIFY(m_bus.setActivatable(PortalName, u"/bin/false"_s));
        const auto undo = qScopeGuard([this] { m_bus.setActivatable(PortalName, QString()); });

        m_composer.compose(words(u"Optics"_s), QUrl());

        QTRY_COMPARE(m_commands->callsOf(Command).size(), 1);
    }

    void hostileWordsAndNamesReachTheCommandUnchanged_data() { addHostileTexts(); }
    void hostileWordsAndNamesReachTheCommandUnchanged()
    {
        QFETCH(const QString, text);
        const QString path = writeFile(text, 100);

        m_composer.compose(words(text), QUrl::fromLocalFile(path));

        QTRY_COMPARE(m_commands->callsOf(Command).size(), 1);
        const QStringList arguments = m_commands->callsOf(Command).first();
        QCOMPARE(arguments.mid(0, 3), (QStringList{u"--utf8"_s, u"--attach"_s, path}));
        QCOMPARE(arguments.size(), 4);
        QCOMPARE(bodyOf(arguments.last()), text);
        QVERIFY(!hasAnythingRun());
    }

    // The real command hands its address to a hook of that name when there is one.
    void hostileWordsComeOutOfTheRealCommandUnchanged_data() { addHostileTexts(); }
    void hostileWordsComeOutOfTheRealCommandUnchanged()
    {
        QFETCH(const QString, text);
        const QString path = writeFile(u"Audio - 1's $(touch RAN).m4a"_s, 100);
        m_commands.reset();
        m_commands.emplace(QStringList{Hook});

        m_composer.compose(words(text), QUrl::fromLocalFile(path));

        QTRY_COMPARE(m_commands->callsOf(Hook).size(), 1);
        const QString address = m_commands->callsOf(Hook).first().value(0);
        const QUrlQuery query(QUrl(address, QUrl::StrictMode));
        QCOMPARE(bodyOf(address), text);
        QCOMPARE(query.queryItemValue(u"attach"_s, QUrl::FullyDecoded), path);
        QCOMPARE(query.queryItems().size(), 2);
        QVERIFY(!hasAnythingRun());
    }

    void aFileThatIsGoneLeavesTheWordsToTheCommand()
    {
        m_composer.compose(words(u"Optics"_s), QUrl::fromLocalFile(inFolder(u"gone.m4a"_s)));

        QTRY_COMPARE(m_commands->callsOf(Command).size(), 1);
        QCOMPARE(m_commands->callsOf(Command).first(),
                 (QStringList{u"--utf8"_s, u"mailto:?body=Optics"_s}));
    }

    // -- Silence

    void whatTheCommandPrintsIsNotShown()
    {
        QVERIFY(m_commands->makeTalkative(Command, u"cannot find a mail program"_s));
        const StderrCatcher catcher;

        m_composer.compose(words(u"Optics"_s), QUrl());

        QTRY_COMPARE(m_commands->callsOf(Command).size(), 1);
        QCOMPARE(catcher.caught(), QByteArray());
    }

    void withoutAnyMailProgramNothingIsSaid()
    {
        m_commands.reset();
        m_commands.emplace(QStringList(), StandInCommands::Path::NothingBehind);
        const StandInPortal portal(m_bus.address(), Manner::Refuses);
        const StderrCatcher catcher;

        m_composer.compose(words(u"Optics"_s), QUrl());

        QTRY_COMPARE(portal.mails.size(), 1);
        // The next one is refused after the first has been dealt with.
        m_composer.compose(words(u"Waves"_s), QUrl());
        QTRY_COMPARE(portal.mails.size(), 2);
        QCOMPARE(catcher.caught(), QByteArray());
    }

private:
    QString inFolder(const QString &name) const { return m_folder->filePath(name); }
    // Gives the path of a new file of `size` bytes, which are in m_written.
    QString writeFile(const QString &name, qsizetype size)
    {
        m_written.resize(size);
        for (char &byte : m_written)
            byte = static_cast<char>(QRandomGenerator::global()->bounded(256));
        return writeContent(inFolder(name), m_written) ? inFolder(name) : QString();
    }

    DesktopMailComposer m_composer;
    QByteArray m_written;
};

QTEST_MAIN(MailComposerTest)
#include "MailComposerTest.moc"
