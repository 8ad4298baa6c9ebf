#include "app/TerminationSignals.h"

#include "support/TestCase.h"

#include <QSignalSpy>

#include <csignal>

using tarvelo::app::TerminationSignals;

class TerminationSignalsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRequestToEndReachesTheEventLoop_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }

    void aRequestToEndReachesTheEventLoop()
    {
        QFETCH(int, signal);
        const TerminationSignals requests;
        QSignalSpy requested(&requests, &TerminationSignals::terminationRequested);

        ::raise(signal);

        QCOMPARE(requested.size(), 0);
        QTRY_COMPARE(requested.size(), 1);
    }

    void severalRequestsAtOnceAreOne()
    {
        const TerminationSignals requests;
        QSignalSpy requested(&requests, &TerminationSignals::terminationRequested);

        ::raise(SIGTERM);
        ::raise(SIGTERM);

        QTRY_COMPARE(requested.size(), 1);
        QCoreApplication::processEvents();
        QCOMPARE(requested.size(), 1);
    }
};

QTEST_GUILESS_MAIN(TerminationSignalsTest)
#include "TerminationSignalsTest.moc"
