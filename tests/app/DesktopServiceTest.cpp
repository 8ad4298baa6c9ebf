#include "app/DesktopService.h"

#include "support/PrivateBus.h"
#include "support/TestCase.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusPendingCall>
#include <QDBusReply>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using tarvelo::app::DesktopService;
using tarvelo::app::Request;
using tarvelo::tests::PrivateBus;

constexpr int Patience = 60000; // milliseconds: a machine with much to do is slow, not broken

// Asked over a bus of the test's own, as a launcher asks.
class DesktopServiceTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theProgramHasItsNameOnTheBusAsLongAsItRuns()
    {
        {
            const DesktopService service;
            QTRY_VERIFY_WITH_TIMEOUT(isOnBus(), Patience);
        }

        QTRY_VERIFY_WITH_TIMEOUT(!isOnBus(), Patience);
    }

    void activatingBringsItForward()
    {
        const DesktopService service;
        QSignalSpy requested(&service, &DesktopService::requested);

        QVERIFY(ask(u"Activate"_s, {QVariantMap()}));
        QVERIFY(ask(u"Open"_s, {QStringList{u"file:///lecture.m4a"_s}, QVariantMap()}));

        QCOMPARE(requested.size(), 2);
        QCOMPARE(requested[0][0].value<Request>(), Request::Reopen);
        QCOMPARE(requested[1][0].value<Request>(), Request::Reopen);
    }

    void theActionsOfTheMenuEntryAreOffered_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<Request>("request");
        QTest::newRow("a new lecture") << u"new-lecture"_s << Request::NewLecture;
        QTest::newRow("the preferences") << u"preferences"_s << Request::ShowPreferences;
    }

    void theActionsOfTheMenuEntryAreOffered()
    {
        QFETCH(QString, action);
        QFETCH(Request, request);
        const DesktopService service;
        QSignalSpy requested(&service, &DesktopService::requested);

        QVERIFY(ask(u"ActivateAction"_s, {action, QVariantList(), QVariantMap()}));

        QCOMPARE(requested.size(), 1);
        QCOMPARE(requested[0][0].value<Request>(), request);
    }

    void anActionThatIsNotOfferedDoesNothing()
    {
        const DesktopService service;
        QSignalSpy requested(&service, &DesktopService::requested);

        QVERIFY(ask(u"ActivateAction"_s, {u"dance"_s, QVariantList(), QVariantMap()}));

        QCOMPARE(requested.size(), 0);
    }

private:
    static bool isOnBus()
    {
        return QDBusConnection::sessionBus()
            .interface()
            ->isServiceRegistered(QString::fromLatin1(DesktopService::Name))
            .value();
    }
    // Returns when it was answered.
    static bool ask(const QString &method, const QVariantList &arguments)
    {
        QDBusMessage call = QDBusMessage::createMethodCall(
            QString::fromLatin1(DesktopService::Name), QString::fromLatin1(DesktopService::Path),
            u"org.freedesktop.Application"_s, method);
        call.setArguments(arguments);
        QDBusConnection asking =
            QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"asking"_s);
        const QDBusPendingCall answer = asking.asyncCall(call);
        const bool inTime = QTest::qWaitFor([&] { return answer.isFinished(); }, Patience);
        return inTime && !answer.isError();
    }

    PrivateBus m_bus;
};

QTEST_GUILESS_MAIN(DesktopServiceTest)
#include "DesktopServiceTest.moc"
