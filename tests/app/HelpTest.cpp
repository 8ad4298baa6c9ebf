#include "app/Application.h"
#include "platform/Workspace.h"
#include "support/StandInCommands.h"
#include "support/StderrCatcher.h"
#include "support/TestCase.h"

#include <QAction>

using namespace Qt::StringLiterals;
using namespace tarvelo;
using app::Help;
using tests::Application;

namespace {

const QString Opener = QStringLiteral("xdg-open");
const QUrl WebPage(QStringLiteral("https://tarvelo.org/"));
const QUrl AboutPage(QStringLiteral("https://tarvelo.org/about/"));

// Gives the path of the guide.
QString installGuide(const tests::TemporaryPlaces &home)
{
    const QString folder = home.places().resources;
    QFile guide(folder + u"/Guide.pdf"_s);
    return QDir().mkpath(folder) && guide.open(QIODevice::WriteOnly) ? guide.fileName() : QString();
}

} // namespace

class HelpTest final : public tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTagOpensItsAddress_data()
    {
        QTest::addColumn<int>("tag");
        QTest::addColumn<QUrl>("address");
        QTest::newRow("the web page") << 1 << WebPage;
        QTest::newRow("the web page from a second place") << 2 << WebPage;
        QTest::newRow("the store") << 3 << QUrl(u"appstream://org.tarvelo.tarvelo"_s);
        QTest::newRow("the web page from a third place") << 4 << WebPage;
        QTest::newRow("more programs")
            << 5 << QUrl(u"https://flathub.org/apps/collection/developer/Tarvelo"_s);
        QTest::newRow("about") << 6 << AboutPage;
        QTest::newRow("below all") << -1 << AboutPage;
        QTest::newRow("the least") << std::numeric_limits<int>::min() << AboutPage;
        QTest::newRow("the greatest") << std::numeric_limits<int>::max() << AboutPage;
    }
    void aTagOpensItsAddress()
    {
        QFETCH(const int, tag);
        QFETCH(const QUrl, address);
        Application program;
        installGuide(program.home);

        showHelp(program, tag);

        QVERIFY(address.isValid());
        QCOMPARE(program.workspace.addresses, QList<QUrl>{address});
        QVERIFY(program.workspace.documents.isEmpty());
    }

    void theTagNoughtOpensTheGuide()
    {
        Application program;
        const QString guide = installGuide(program.home);

        showHelp(program, 0);

        QCOMPARE(program.workspace.documents, QStringList{guide});
        QVERIFY(program.workspace.addresses.isEmpty());
    }

    void whoHasNoTagWantsTheGuide()
    {
        Application program;
        const QString guide = installGuide(program.home);
        QObject untagged;
        QObject oddlyTagged;
        oddlyTagged.setProperty("tag", u"help"_s);

        program.delegate.showHelp(nullptr);
        program.delegate.showHelp(&untagged);
        program.delegate.showHelp(&oddlyTagged);

        QCOMPARE(program.workspace.documents, QStringList({guide, guide, guide}));
        QVERIFY(program.workspace.addresses.isEmpty());
    }

    void aMissingGuideIsNotSpokenOf()
    {
        Application program;
        const StderrCatcher catcher;

        showHelp(program, 0);

        QVERIFY(program.workspace.documents.isEmpty());
        QVERIFY(program.workspace.addresses.isEmpty());
        QVERIFY(program.alerts.sheets.isEmpty());
        QCOMPARE(catcher.caught(), QByteArray());
    }

    void anOpenerThatFailsIsNotSpokenOf()
    {
        tests::StandInCommands commands({Opener});
        QVERIFY(commands.makeTalkative(Opener, u"nothing opens this"_s));
        const tests::TemporaryPlaces home;
        const QString guide = installGuide(home);
        platform::DesktopWorkspace workspace;
        const StderrCatcher catcher;

        Help(workspace, home.places().resources).show(nullptr);
        QTRY_COMPARE(commands.callsOf(Opener).value(0), QStringList{guide});
        Help(workspace, home.places().resources).show(&m_webPage);

        QTRY_VERIFY(commands.callsOf(Opener).contains(QStringList{WebPage.toString()}));
        QCOMPARE(catcher.caught(), QByteArray());
    }

private:
    using StderrCatcher = tests::StderrCatcher;

    void prepare() override { Help::setTag(m_webPage, Help::WebPage); }
    static void showHelp(Application &program, int tag)
    {
        QAction entry;
        Help::setTag(entry, tag);
        program.delegate.showHelp(&entry);
    }

    QObject m_webPage;
};

QTEST_MAIN(HelpTest)
#include "HelpTest.moc"
