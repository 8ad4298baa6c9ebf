#include "lectures/NewLectureWindow.h"

#include "lectures/ProgramCase.h"

#include <QStyle>

using namespace Qt::StringLiterals;
using tarvelo::platform::text;

class NewLectureWindowTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tarvelo::platform::installTexts(); }

    void aNewLectureBeginsWithTheStartButtonAlone()
    {
        const auto &recording = windows().recordingOutlets();

        QVERIFY(!recording.btnStartRecord->isHidden());
        QVERIFY(!recording.btnStopRecord->isHidden());
        QVERIFY(recording.btnPauseResumeRecording->isHidden());
        QVERIFY(recording.btnTimeTag->isHidden());
        QVERIFY(recording.btnStartStopRecording->isHidden());
        QVERIFY(recording.sliderPlayProgress2->isHidden());
        QVERIFY(recording.btnPauseResumeRecording->isCheckable());
    }

    void theTimeTagEndsWhereTheNotesDo_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("left to right") << Qt::LeftToRight;
        QTest::newRow("right to left") << Qt::RightToLeft;
    }
    void theTimeTagEndsWhereTheNotesDo()
    {
        QFETCH(const Qt::LayoutDirection, direction);
        const auto &recording = windows().recordingOutlets();
        QWidget &window = *recording.newNoteWindow;
        window.setLayoutDirection(direction);
        window.show();
        const auto place = [&](const QWidget &view) {
            return QStyle::visualRect(direction, window.rect(), view.geometry());
        };

        QCOMPARE(place(*recording.txtView).left(), 20);
        QCOMPARE(place(*recording.txtView).right(), window.width() - 20 - 1);
        // The drawing lies 2 points further in than its button.
        QCOMPARE(place(*recording.btnTimeTag).right(), place(*recording.txtView).right() + 2);
    }

    void doneAndCloseAreToldApartByTheirTags()
    {
        QCOMPARE(windows().newLectureOutlets().BtnDoneOrClose->tag(), 0);
        QCOMPARE(windows().newLectureOutlets().btnCloseNewLecture->tag(), 1);
    }

    void theNewLectureWindowDoesNotJumpWhileATakeComesAndGoes()
    {
        m_program->start();
        m_program->controller.onAddItem(nullptr);
        const auto &recording = windows().recordingOutlets();
        QVERIFY(QTest::qWaitForWindowExposed(recording.newNoteWindow));
        const auto places = [&recording] {
            return QList<QRect>{recording.newNoteWindow->rect(), recording.txtView->geometry(),
                                recording.btnStopRecord->geometry(),
                                recording.btnStopRecord->parentWidget()->geometry()};
        };
        const QList<QRect> idle = places();

        recording.btnStartRecord->click();
        QCoreApplication::processEvents();
        QCOMPARE(places(), idle);
        recording.btnPauseResumeRecording->click();
        m_program->clock.advance(std::chrono::seconds(1));
        QCoreApplication::processEvents();
        QCOMPARE(places(), idle);
        recording.btnStopRecord->click();
        QCoreApplication::processEvents();
        QCOMPARE(places(), idle);
        recording.btnStopRecord->click();
        QCoreApplication::processEvents();
        QCOMPARE(places(), idle);
    }

    void aWarningMovesNothingInTheNewLectureWindow()
    {
        beginTake();
        const auto before = places();
        QVERIFY(windows().recordingOutlets().lblRecordingWarning->isHidden());

        m_program->clock.advance(std::chrono::seconds(10));

        QVERIFY(windows().recordingOutlets().lblRecordingWarning->isVisible());
        QCOMPARE(places(), before);
    }

    void twoWarningsMoveNothingEither()
    {
        beginTake();
        const auto before = places();
        QLabel &warnings = *windows().recordingOutlets().lblRecordingWarning;

        warnings.setText(text("RECORDING_LITTLE_ROOM").arg(29) + u'\n' +
                         text("RECORDING_NOTHING_HEARD"));
        warnings.show();

        QCOMPARE(places(), before);
    }

private:
    void beginTake()
    {
        m_program->start();
        m_program->controller.onAddItem(nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(windows().recordingOutlets().newNoteWindow));
        windows().recordingOutlets().btnStartRecord->click();
        // Until the length of the take is there.
        m_program->clock.advance(std::chrono::seconds(1));
    }

    QMap<QString, QRect> places() const
    {
        QCoreApplication::processEvents();
        const QWidget &window = *windows().recordingOutlets().newNoteWindow;
        QMap<QString, QRect> now{{u"window"_s, window.rect()}};
        for (const QWidget *view : window.findChildren<QWidget *>())
            if (!view->objectName().isEmpty() && view->objectName() != u"announcement")
                now.insert(view->objectName(), view->geometry());
        return now;
    }
};

QTEST_MAIN(NewLectureWindowTest)
#include "NewLectureWindowTest.moc"
