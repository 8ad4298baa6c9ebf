#include "app/WaysOut.h"

#include "Application.h"
#include "support/TestCase.h"

#include <QLineEdit>
#include <QTimer>

#include <csignal>

namespace tarvelo::tests {

namespace {

// A program whose take runs.
struct Recording
{
    Recording()
    {
        program.launch();
        program.clock.advance(std::chrono::milliseconds(500));
        program.controller.onAddItem(nullptr);
        program.controller.startRecording(nullptr);
        program.engine.takeAsked();
    }

    // The status with which the event loop ends that hears this.
    int statusAfter(const std::function<void()> &event)
    {
        QTimer::singleShot(0, qApp, event);
        return QApplication::exec();
    }

    Application program;
    app::WaysOut waysOut{*qApp, program.delegate, program.controller};
};

} // namespace

class WaysOutTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRequestOfTheSystemClosesTheTakeAndEnds()
    {
        Recording recording;

        const int status = recording.statusAfter([] { ::raise(SIGTERM); });

        QCOMPARE(status, 0);
        QCOMPARE(recording.program.engine.takeAsked(), inOrder({"recorder stop"}));
        QVERIFY(QFile::exists(recording.program.controller.tempAudioSavePath()));
    }

    void theEndOfTheSessionClosesTheTakeThoughAWindowWouldNotBeClosed()
    {
        Recording recording;

        const int status = recording.statusAfter([] {
            QEvent end(QEvent::Quit);
            QCoreApplication::sendEvent(qApp, &end);
        });

        QCOMPARE(status, 0);
        QCOMPARE(recording.program.engine.takeAsked(), inOrder({"recorder stop"}));
        QVERIFY(recording.program.alerts.sheets.isEmpty());
    }

    void whatWasDoneAMomentAgoIsStored()
    {
        Recording recording;
        recording.program.windows.newLectureOutlets().txtSubjectForNewNote->setText(
            QStringLiteral("Optics"));
        recording.program.controller.stopRecording(nullptr);
        recording.program.controller.onDoneNewLectureOrCloseWindow(
            recording.program.windows.newLectureOutlets().BtnDoneOrClose);

        recording.statusAfter([&] { recording.program.delegate.terminate(nullptr); });

        QCOMPARE(recording.program.controller.arrangedObjects().size(), 1U);
    }

    void withoutATakeThereIsNothingToClose()
    {
        Application program;
        program.launch();
        const app::WaysOut waysOut(*qApp, program.delegate, program.controller);
        QTimer::singleShot(0, qApp, [&] { program.delegate.terminate(nullptr); });

        QCOMPARE(QApplication::exec(), 0);

        QCOMPARE(program.engine.takeAsked(), QStringList());
    }
};

} // namespace tarvelo::tests

QTEST_MAIN(tarvelo::tests::WaysOutTest)
#include "WaysOutTest.moc"
