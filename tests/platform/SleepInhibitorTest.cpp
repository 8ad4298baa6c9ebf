#include "platform/SleepInhibitor.h"

#include "support/PrivateBus.h"
#include "support/StandInKeepers.h"
#include "support/StderrCatcher.h"
#include "support/TestCase.h"

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::platform::DesktopSleepInhibitor;
using tarvelo::tests::PrivateBus;
using tarvelo::tests::StandInLogin;
using tarvelo::tests::StandInService;
using tarvelo::tests::StandInSleepPortal;
using tarvelo::tests::StderrCatcher;

using Manner = StandInService::Manner;

namespace {

const QString Reason = QStringLiteral("A lecture is being recorded");
const QString WithTheLid = QStringLiteral("sleep:idle:handle-lid-switch");
const QString WithoutTheLid = QStringLiteral("sleep:idle");

} // namespace

class SleepInhibitorTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_system.emplace(PrivateBus::Kind::System);
        m_session.emplace();
        QVERIFY(m_system->isRunning() && m_session->isRunning());
    }
    void cleanupTestCase()
    {
        m_session.reset();
        m_system.reset();
    }

    // -- The login service

    void sleepIsHeldOffTheLidIncluded()
    {
        const StandInLogin login(m_system->address());
        QVERIFY(login.isThere());

        m_sleep->hold();

        QTRY_COMPARE(login.holders(), 1);
        QCOMPARE(login.asked, (QList<QStringList>{{WithTheLid, u"Tarvelo"_s, Reason, u"block"_s}}));
    }

    void releasingLetsGo()
    {
        const StandInLogin login(m_system->address());
        m_sleep->hold();
        QTRY_COMPARE(login.holders(), 1);

        m_sleep->release();

        QTRY_COMPARE(login.holders(), 0);
    }

    void goingLetsGo()
    {
        const StandInLogin login(m_system->address());
        m_sleep->hold();
        QTRY_COMPARE(login.holders(), 1);

        m_sleep.reset();

        QTRY_COMPARE(login.holders(), 0);
    }

    void howeverOftenItIsAskedOneReleaseLetsGo()
    {
        const StandInLogin login(m_system->address());
        m_sleep->hold();
        m_sleep->hold();
        QTRY_COMPARE(login.holders(), 1);
        m_sleep->hold();

        m_sleep->release();

        QTRY_COMPARE(login.holders(), 0);
        QCOMPARE(login.asked.size(), 1);
    }

    void itCanBeHeldAgain()
    {
        const StandInLogin login(m_system->address());
        m_sleep->hold();
        QTRY_COMPARE(login.holders(), 1);
        m_sleep->release();
        QTRY_COMPARE(login.holders(), 0);

        m_sleep->hold();

        QTRY_COMPARE(login.holders(), 1);
        QCOMPARE(login.asked.size(), 2);
    }

    void nobodyIsWaitedFor()
    {
        const StandInLogin login(m_system->address());

        m_sleep->hold();

        QVERIFY(login.asked.isEmpty());
        QTRY_COMPARE(login.asked.size(), 1);
    }

    void whatIsLetGoBeforeAnybodyIsThereAsksNobody()
    {
        const StandInLogin login(m_system->address());
        m_sleep->hold();

        m_sleep->release();

        m_sleep->hold();
        QTRY_COMPARE(login.holders(), 1);
        QCOMPARE(login.asked.size(), 1);
    }

    void aLockThatComesTooLateIsLetGo()
    {
        StandInLogin login(m_system->address(), Manner::KeepsSilent);
        m_sleep->hold();
        QTRY_COMPARE(login.asked.size(), 1);
        m_sleep->release();

        login.answerAfterAll();

        QCOMPARE(login.holders(), 1);
        QTRY_COMPARE(login.holders(), 0);
    }

    void aLateAnswerIsNotTakenForThatOfTheNextHold()
    {
        StandInLogin login(m_system->address(), Manner::KeepsSilent);
        m_sleep->hold();
        QTRY_COMPARE(login.asked.size(), 1);
        m_sleep->release();
        login.answerAfterAll();
        m_sleep->hold();
        QTRY_COMPARE(login.asked.size(), 2);
        QTRY_COMPARE(login.holders(), 0);

        login.answerAfterAll();
        m_sleep->release();

        QTRY_COMPARE(login.holders(), 0);
    }

    void aLoginServiceThatGoesIsNoTrouble()
    {
        std::optional<StandInLogin> login(m_system->address());
        m_sleep->hold();
        QTRY_COMPARE(login->holders(), 1);
        const StderrCatcher catcher;

        login.reset();
        m_sleep->release();

        login.emplace(m_system->address());
        m_sleep->hold();
        QTRY_COMPARE(login->holders(), 1);
        QCOMPARE(catcher.caught(), QByteArray());
    }

    // -- Refusals

    void whoMayNotHoldTheLidHoldsTheRest()
    {
        StandInLogin login(m_system->address());
        login.refused = u"handle-lid-switch"_s;
        const StandInSleepPortal portal(m_session->address());

        m_sleep->hold();

        QTRY_COMPARE(login.holders(), 1);
        QCOMPARE(login.asked.size(), 2);
        QCOMPARE(login.asked.last().first(), WithoutTheLid);
        QVERIFY(portal.asked.isEmpty());
    }

    void aLoginServiceThatRefusesAllLeavesItToThePortal()
    {
        const StandInLogin login(m_system->address(), Manner::Refuses);
        const StandInSleepPortal portal(m_session->address());

        m_sleep->hold();

        QTRY_COMPARE(portal.holders(), 1);
        QCOMPARE(login.asked.size(), 2);
    }

    void aLoginServiceThatKeepsSilentIsGivenUp()
    {
        const StandInLogin login(m_system->address(), Manner::KeepsSilent);
        const StandInSleepPortal portal(m_session->address());
        DesktopSleepInhibitor impatient(Reason, 50ms);

        impatient.hold();

        QTRY_COMPARE(portal.holders(), 1);
    }

    void aRefusalThatComesAfterTheReleaseAsksNobodyElse()
    {
        StandInLogin login(m_system->address(), Manner::KeepsSilent);
        const StandInSleepPortal portal(m_session->address());
        m_sleep->hold();
        QTRY_COMPARE(login.asked.size(), 1);
        m_sleep->release();

        login.refuseAfterAll();

        // The next one is asked for both kinds, and then the portal.
        m_sleep->hold();
        QTRY_COMPARE(login.asked.size(), 2);
        login.refuseAfterAll();
        QTRY_COMPARE(login.asked.size(), 3);
        login.refuseAfterAll();
        QTRY_COMPARE(portal.asked.size(), 1);
        QCOMPARE(login.asked.last().first(), WithoutTheLid);
    }

    void whereEverybodyRefusesNothingHappens()
    {
        const StandInLogin login(m_system->address(), Manner::Refuses);
        const StandInSleepPortal portal(m_session->address(), Manner::Refuses);
        const StderrCatcher catcher;
        m_sleep->hold();
        QTRY_COMPARE(portal.asked.size(), 1);

        m_sleep->release();

        m_sleep->hold();
        QTRY_COMPARE(portal.asked.size(), 2);
        QCOMPARE(catcher.caught(), QByteArray());
    }

    // -- The portal

    void withoutALoginServiceThePortalIsAsked()
    {
        const StandInSleepPortal portal(m_session->address());
        QVERIFY(portal.isThere());

        m_sleep->hold();

        QTRY_COMPARE(portal.holders(), 1);
        QCOMPARE(portal.asked.first().parentWindow, QString());
        QCOMPARE(portal.asked.first().kinds, 4U | 8U);
        QCOMPARE(portal.asked.first().options, (QVariantMap{{u"reason"_s, Reason}}));
    }

    void thePortalsRequestIsClosed()
    {
        const StandInSleepPortal portal(m_session->address());
        m_sleep->hold();
        QTRY_COMPARE(portal.holders(), 1);
        // It has answered; the answer is here when the next one of the same bus is.
        settle();

        m_sleep->release();

        QTRY_COMPARE(portal.holders(), 0);
    }

    void aRequestThatComesTooLateIsClosed()
    {
        StandInSleepPortal portal(m_session->address(), Manner::KeepsSilent);
        m_sleep->hold();
        QTRY_COMPARE(portal.asked.size(), 1);
        m_sleep->release();

        portal.answerAfterAll();

        QCOMPARE(portal.holders(), 1);
        QTRY_COMPARE(portal.holders(), 0);
    }

    void aPortalThatGoesIsNoTrouble()
    {
        std::optional<StandInSleepPortal> portal(m_session->address());
        m_sleep->hold();
        QTRY_COMPARE(portal->holders(), 1);
        settle();
        const StderrCatcher catcher;

        portal.reset();
        m_sleep->release();

        portal.emplace(m_session->address());
        m_sleep->hold();
        QTRY_COMPARE(portal->holders(), 1);
        QCOMPARE(catcher.caught(), QByteArray());
    }

private:
    void prepare() override { m_sleep.emplace(Reason); }
    void finish() override { m_sleep.reset(); }

    // An answer that was sent before this returns has been dealt with.
    static void settle()
    {
        const QDBusConnection session = QDBusConnection::sessionBus();
        session.call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s,
                                                    u"org.freedesktop.DBus"_s, u"GetId"_s));
        QCoreApplication::processEvents();
    }

    std::optional<PrivateBus> m_system;
    std::optional<PrivateBus> m_session;
    std::optional<DesktopSleepInhibitor> m_sleep;
};

QTEST_GUILESS_MAIN(SleepInhibitorTest)
#include "SleepInhibitorTest.moc"
