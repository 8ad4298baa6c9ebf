// Each of the calls of the system by which a left lecture is kept fails once, and the next program
// goes on with what is there then.

#include "audio/LeftStage.h"
#include "support/RefusedCalls.h"
#include "support/TestCase.h"

#include <sys/wait.h>

using namespace Qt::StringLiterals;
using tarvelo::store::LectureJournal;
using tarvelo::tests::callsUntilRefusal;
using tarvelo::tests::LeftStage;

class RefusedKeepingTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whicheverCallFailsOnceNothingIsLostOrDoubled_data()
    {
        QTest::addColumn<bool>("isDone");
        QTest::newRow("to be offered") << false;
        QTest::newRow("done") << true;
    }
    void whicheverCallFailsOnceNothingIsLostOrDoubled()
    {
        QFETCH(bool, isDone);
        LeftStage::takeBytes();
        LectureJournal journal = LeftStage::journal();
        journal.isDone = isDone;
        int calls = 0;
        for (bool isThrough = false; !isThrough;) {
            LeftStage stage;
            stage.leaveTake();
            stage.leaveJournal(journal);

            isThrough = !isRefusedInAnother(stage, ++calls);

            keepWhatIsThere(stage);
            stage.expectOneKeptLecture();
            QVERIFY2(stage.rows().value(0).value(u"subject"_s) == u"wave optics"_s,
                     qPrintable(QString::number(calls)));
            QVERIFY2(!QTest::currentTestFailed(), qPrintable(QString::number(calls)));
        }
        QVERIFY(calls > 50);
    }

private:
    // False when the process makes fewer calls.
    static bool isRefusedInAnother(const LeftStage &home, int call)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            LeftStage stage(home.places.places());
            tarvelo::tests::refuseCall(call);
            keepWhatIsThere(stage);
            ::_exit(callsUntilRefusal() > 0 ? 0 : 9);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return !WIFEXITED(status) || WEXITSTATUS(status) != 0;
    }
    static void keepWhatIsThere(LeftStage &stage)
    {
        if (!stage.setAside())
            return;
        stage.left.storeOwed();
        for (const auto &left : stage.left.undecided())
            stage.left.keep(left);
    }
};

QTEST_GUILESS_MAIN(RefusedKeepingTest)
#include "RefusedKeepingTest.moc"
