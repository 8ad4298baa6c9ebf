#include "platform/SessionService.h"

#include "support/EnvironmentVariable.h"
#include "support/StderrCatcher.h"
#include "support/TestCase.h"

#include <QDBusMessage>

using namespace Qt::StringLiterals;
using tarvelo::platform::callSessionService;
using tarvelo::platform::PatienceWithServices;
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
};

QTEST_GUILESS_MAIN(SessionServiceTest)
#include "SessionServiceTest.moc"
