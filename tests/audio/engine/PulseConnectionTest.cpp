#include "audio/engine/PulseConnection.h"
#include "support/PrivateSoundServer.h"
#include "support/TestCase.h"

#include <atomic>
#include <memory>
#include <optional>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

constexpr int Patience = 60000;

class PulseConnectionTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whoeverUsesItHearsWhenItIsThere()
    {
        QVERIFY(m_server->start());

        QVERIFY(m_connection->start());

        QTRY_COMPARE_WITH_TIMEOUT(m_ready.load(), 1, Patience);
        QCOMPARE(m_lost.load(), 0);
        const PulseLock lock(m_connection->loop());
        QVERIFY(m_connection->isReady());
        QVERIFY(!m_connection->isWaiting());
    }

    void aServerThatComesLaterIsFound()
    {
        QVERIFY(m_connection->start());
        QTRY_VERIFY_WITH_TIMEOUT(m_lost > 1, Patience);
        QCOMPARE(m_ready.load(), 0);

        QVERIFY(m_server->start());

        QTRY_COMPARE_WITH_TIMEOUT(m_ready.load(), 1, Patience);
    }

    void aServerThatDiesIsLookedForUntilItIsBack()
    {
        QVERIFY(m_server->start());
        QVERIFY(m_connection->start());
        QTRY_COMPARE_WITH_TIMEOUT(m_ready.load(), 1, Patience);

        m_server->kill();
        QTRY_VERIFY_WITH_TIMEOUT(m_lost > 0, Patience);
        QVERIFY(m_server->start());

        QTRY_COMPARE_WITH_TIMEOUT(m_ready.load(), 2, Patience);
        QVERIFY(m_letGo > 1);
    }

    void whoeverAsksNowDoesNotWaitForTheNextTry()
    {
        m_connection.emplace(3600 * PA_USEC_PER_SEC, user());
        QVERIFY(m_connection->start());
        QTRY_VERIFY_WITH_TIMEOUT(m_lost > 0, Patience);
        QVERIFY(m_server->start());

        {
            const PulseLock lock(m_connection->loop());
            QVERIFY(m_connection->isWaiting());
            m_connection->retryNow();
        }

        QTRY_COMPARE_WITH_TIMEOUT(m_ready.load(), 1, Patience);
    }

    void onceItIsClosedNothingIsHeardOfIt()
    {
        QVERIFY(m_server->start());
        QVERIFY(m_connection->start());
        QTRY_COMPARE_WITH_TIMEOUT(m_ready.load(), 1, Patience);

        {
            const PulseLock lock(m_connection->loop());
            m_connection->close();
        }
        m_server->kill();
        m_connection.reset();

        QCOMPARE(m_lost.load(), 0);
    }

private:
    void prepare() override
    {
        m_letGo = 0;
        m_ready = 0;
        m_lost = 0;
        m_server = std::make_unique<PrivateSoundServer>();
        m_connection.emplace(PA_USEC_PER_SEC / 20, user());
    }
    void finish() override
    {
        if (m_connection && m_connection->isStarted()) {
            const PulseLock lock(m_connection->loop());
            m_connection->close();
        }
        m_connection.reset();
        m_server.reset();
    }

    PulseConnection::User user()
    {
        return {[this] { ++m_letGo; }, [] {}, [this] { ++m_ready; },
                [this] {
                    ++m_lost;
                    m_connection->retryLater();
                }};
    }

    std::unique_ptr<PrivateSoundServer> m_server;
    std::optional<PulseConnection> m_connection;
    std::atomic<int> m_letGo = 0;
    std::atomic<int> m_ready = 0;
    std::atomic<int> m_lost = 0;
};

QTEST_MAIN(PulseConnectionTest)
#include "PulseConnectionTest.moc"
