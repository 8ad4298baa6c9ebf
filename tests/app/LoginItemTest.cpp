#include "app/LoginItem.h"

#include "support/FileContent.h"
#include "support/Modes.h"
#include "support/TestCase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using tarvelo::app::LoginItem;
using tarvelo::app::quotedForExec;
using tarvelo::tests::addUmasks;
using tarvelo::tests::modeOf;
using tarvelo::tests::Umask;

class LoginItemTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void switchingOnWritesAnEntryThatStartsTheProgram()
    {
        const QTemporaryDir config;
        LoginItem item(config.filePath(QStringLiteral("made/autostart")),
                       QStringLiteral("/opt/My Apps/Tarvelo"));

        item.setEnabled(true);

        const QList<QByteArray> lines = contentOf(item).split('\n');
        QVERIFY(item.isEnabled());
        QCOMPARE(lines.first(), QByteArray("[Desktop Entry]"));
        QVERIFY(lines.contains("Type=Application"));
        QVERIFY(lines.contains("Exec=\"/opt/My Apps/Tarvelo\""));
        QVERIFY(lines.contains("Icon=org.tarvelo.Tarvelo"));
        QVERIFY(item.file().endsWith(QStringLiteral("/org.tarvelo.Tarvelo.desktop")));
    }

    void theEntryIsForItsUserAlone_data() { addUmasks(); }
    void theEntryIsForItsUserAlone()
    {
        QFETCH(const mode_t, umask);
        const Umask mask(umask);
        const QTemporaryDir config;
        LoginItem item(config.filePath(QStringLiteral("autostart")),
                       QStringLiteral("/usr/bin/Tarvelo"));

        item.setEnabled(true);

        QCOMPARE(modeOf(item.file()), QStringLiteral("600"));
        QCOMPARE(modeOf(config.filePath(QStringLiteral("autostart"))), QStringLiteral("700"));
    }

    void switchingOffRemovesTheEntry()
    {
        const QTemporaryDir config;
        LoginItem item(config.path(), QStringLiteral("/usr/bin/Tarvelo"));
        item.setEnabled(true);

        item.setEnabled(false);

        QVERIFY(!item.isEnabled());
        QVERIFY(QDir(config.path()).isEmpty());
    }

    void switchingOffWhatIsOffChangesNothing()
    {
        const QTemporaryDir config;
        LoginItem item(config.path(), QStringLiteral("/usr/bin/Tarvelo"));

        item.setEnabled(false);

        QVERIFY(!item.isEnabled());
    }

    void anEntryThatTheDesktopSwitchedOffCountsAsOff()
    {
        const QTemporaryDir config;
        LoginItem item(config.path(), QStringLiteral("/usr/bin/Tarvelo"));
        QFile entry(item.file());
        QVERIFY(entry.open(QIODevice::WriteOnly));
        entry.write("[Desktop Entry]\nExec=Tarvelo\nHidden=true\n");
        entry.close();

        QVERIFY(!item.isEnabled());

        item.setEnabled(true);
        QVERIFY(item.isEnabled());
    }

    void aFolderThatCannotBeMadeLeavesTheItemOff()
    {
        const QTemporaryDir config;
        QFile inTheWay(config.filePath(QStringLiteral("autostart")));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        LoginItem item(inTheWay.fileName(), QStringLiteral("/usr/bin/Tarvelo"));

        item.setEnabled(true);

        QVERIFY(!item.isEnabled());
    }

    void anOddPathIsQuotedForTheDesktop()
    {
        QCOMPARE(quotedForExec(QStringLiteral("/a/it's 100%/Tarvelo")),
                 QStringLiteral("\"/a/it's 100%%/Tarvelo\""));
        QCOMPARE(quotedForExec(QStringLiteral("/a/\"b\"/$HOME/`c`")),
                 QStringLiteral(R"("/a/\\"b\\"/\\$HOME/\\`c\\`")"));
        QCOMPARE(quotedForExec(QStringLiteral(R"(/a\b)")), QStringLiteral(R"("/a\\\\b")"));
    }

private:
    static QByteArray contentOf(const LoginItem &item)
    {
        return tarvelo::tests::contentOf(item.file());
    }
};

QTEST_GUILESS_MAIN(LoginItemTest)
#include "LoginItemTest.moc"
