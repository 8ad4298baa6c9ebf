#include "platform/SessionObject.h"

#include "support/PrivateBus.h"
#include "support/TestCase.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusReply>

using namespace Qt::StringLiterals;
using tarvelo::platform::SessionObject;
using tarvelo::tests::PrivateBus;

constexpr int Patience = 60000; // milliseconds: a machine with much to do is slow, not broken

// What its slots are called with is held by the tests of those who offer them.
class SessionObjectTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theNameIsOwnedAsLongAsTheObjectLives()
    {
        QObject object;
        {
            const SessionObject onBus(u"org.example.Object"_s, u"/org/example"_s, object);
            QTRY_COMPARE_WITH_TIMEOUT(owner(u"org.example.Object"_s), ourselves(), Patience);
            QCOMPARE(QDBusConnection::sessionBus().objectRegisteredAt(u"/org/example"_s), &object);
        }

        QTRY_COMPARE_WITH_TIMEOUT(owner(u"org.example.Object"_s), QString(), Patience);
        QVERIFY(!QDBusConnection::sessionBus().objectRegisteredAt(u"/org/example"_s));
    }

    void aNameThatSomebodyOwnsStaysTheirs()
    {
        QDBusConnection other =
            QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"other"_s);
        QVERIFY(other.registerService(u"org.example.Owned"_s));
        QObject object;

        const SessionObject onBus(u"org.example.Owned"_s, u"/org/example"_s, object);

        QCOMPARE(owner(u"org.example.Owned"_s), other.baseService());
    }

private:
    static QString ourselves() { return QDBusConnection::sessionBus().baseService(); }
    // Whatever was sent before has arrived when this is answered.
    static QString owner(const QString &name)
    {
        return QDBusConnection::sessionBus().interface()->serviceOwner(name).value();
    }

    PrivateBus m_bus;
};

QTEST_GUILESS_MAIN(SessionObjectTest)
#include "SessionObjectTest.moc"
