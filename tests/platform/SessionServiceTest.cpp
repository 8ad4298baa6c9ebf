#include "platform/SessionService.h"

#include "support/EnvironmentVariable.h"
#include "support/StderrCatcher.h"
#include "support/TestCase.h"

#include <QDBusMessage>

using namespace Qt::StringLiterals;
using tarvelo::platform::callSessionService;
using tarvelo::platform::PatienceWithServices;
using tarvelo::platform::portalCall;
using tarvelo::platform::portalService;
using tarvelo::tests::EnvironmentVariable;
using tarvelo::tests::StderrCatcher;

// What is done with services that are there is held by the tests of those who call them.
class SessionServiceTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutABusTheOtherWayIsTakenAtOnce()
    {
        const EnvironmentVariable noBus("DBUS_SESSION_BUS_ADDRESS", u"unix:path=/nowhere"_s);
        const StderrCatcher catcher;
        int others = 0;

        callSessionService(QDBusMessage::createMethodCall(u"org.freedesktop.FileManager1"_s, u"/"_s,
                                                          u"org.freedesktop.FileManager1"_s,
                                                          u"ShowItems"_s),
                           PatienceWithServices, [&others] { ++others; });

        QCOMPARE(others, 1);
        QCOMPARE(catcher.caught(), QByteArray());
    }

    void aCallOfThePortalComesFromNoWindow()
    {
        const QDBusMessage call = portalCall(u"Email"_s, u"ComposeEmail"_s, {QVariantMap()});

        QCOMPARE(call.service(), portalService());
        QCOMPARE(call.path(), u"/org/freedesktop/portal/desktop"_s);
        QCOMPARE(call.interface(), u"org.freedesktop.portal.Email"_s);
        QCOMPARE(call.member(), u"ComposeEmail"_s);
        QCOMPARE(call.arguments(), QVariantList({QString(), QVariantMap()}));
    }
};

QTEST_GUILESS_MAIN(SessionServiceTest)
#include "SessionServiceTest.moc"
