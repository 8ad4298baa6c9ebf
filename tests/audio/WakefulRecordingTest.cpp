#include "audio/RecordingControl.h"
#include "audio/StageCase.h"

using namespace std::chrono_literals;

// While a take is open the computer stays awake, and not a moment longer.
class WakefulRecordingTest final : public tarvelo::tests::StageCase
{
    Q_OBJECT

private Q_SLOTS:
    void beforeTheFirstTakeTheComputerMaySleep() { QVERIFY(!isAwake()); }

    void aTakeKeepsTheComputerAwakeUntilItIsStopped()
    {
        m_stage->start();
        QVERIFY(isAwake());

        m_stage->pressStop();

        QVERIFY(!isAwake());
    }

    void thePausesOfATakeAreNoSleep()
    {
        m_stage->start();

        m_stage->pressPauseResume();
        m_stage->clock.advance(15min);
        QVERIFY(isAwake());
        m_stage->pressPauseResume();

        QVERIFY(isAwake());
        m_stage->pressStop();
        QVERIFY(!isAwake());
    }

    void aTakeThatIsStoppedWhileItIsPausedLetsGo()
    {
        m_stage->start();
        m_stage->pressPauseResume();

        m_stage->pressStop();

        QVERIFY(!isAwake());
    }

    void aDiscardedTakeLetsGo()
    {
        m_stage->start();

        control().discardTake();

        QVERIFY(!isAwake());
    }

    void aTakeThatEndsByItselfLetsGo()
    {
        m_stage->start();

        m_engine->recorderDelegate->audioRecorderDidFinishRecordingSuccessfully(m_engine->recorder,
                                                                                false);

        QVERIFY(!isAwake());
    }

    void theEndOfTheProgramLetsGo()
    {
        m_stage->start();

        control().closeTake();

        QVERIFY(!isAwake());
    }

    void startStopHoldsAndLetsGoAsWell()
    {
        m_stage->start();

        control().startStopRecording(nullptr);
        QVERIFY(!isAwake());
        control().startStopRecording(nullptr);

        QVERIFY(isAwake());
    }

    void theEndOfAnEarlierTakeDoesNotLetGoOfTheNext()
    {
        m_stage->start();
        m_stage->pressStop();

        m_stage->start();
        m_stage->clock.advance(1s);

        QVERIFY(isAwake());
    }

    void whereNothingCanBeRecordedTheComputerMaySleep_data()
    {
        QTest::addColumn<bool>("makes");
        QTest::newRow("no recorder") << false;
        QTest::newRow("one that cannot prepare") << true;
    }
    void whereNothingCanBeRecordedTheComputerMaySleep()
    {
        QFETCH(const bool, makes);
        m_engine->makesRecorders = makes;
        m_engine->prepares = false;

        m_stage->start();

        QVERIFY(control().recording());
        QVERIFY(!isAwake());
    }

    void listeningToATakeIsNoRecording()
    {
        m_stage->start();
        m_stage->pressStop();
        m_stage->clock.advance(1s);

        m_stage->playback.playRecordTemp(nullptr);

        QVERIFY(!isAwake());
    }

private:
    bool isAwake() const { return m_stage->sleep.isHeld; }
};

QTEST_MAIN(WakefulRecordingTest)
#include "WakefulRecordingTest.moc"
