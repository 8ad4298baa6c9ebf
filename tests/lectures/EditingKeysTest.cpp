#include "lectures/EditingKeys.h"

#include "audio/RecordingOutlets.h"
#include "support/TestCase.h"
#include "widgets/ImageButton.h"

#include <QLineEdit>
#include <QTextEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace tarvelo::lectures;
using tarvelo::widgets::ImageButton;

class EditingKeysTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void controlReturnPressesDoneFromAnywhereAndWritesNothing()
    {
        for (QWidget *place : QList<QWidget *>{&m_stage->subject, &m_stage->notes}) {
            place->setFocus();
            QTest::keyClick(place, Qt::Key_Return, Qt::ControlModifier);
        }

        QCOMPARE(m_stage->pressed, QStringList({u"done"_s, u"done"_s}));
        QCOMPARE(m_stage->notes.toPlainText(), QString());
    }

    void returnInTheSubjectGoesOnToTheNotes()
    {
        m_stage->subject.setFocus();

        QTest::keyClick(&m_stage->subject, Qt::Key_Return);

        QVERIFY(m_stage->notes.hasFocus());
        QVERIFY(m_stage->pressed.isEmpty());
    }

    void escapeClosesTheWindow()
    {
        m_stage->notes.setFocus();

        QTest::keyClick(&m_stage->notes, Qt::Key_Escape);

        QVERIFY(m_stage->window.isHidden());
    }

    void f8PlaysAndPausesWhileTheStudentWrites()
    {
        m_stage->notes.setFocus();

        QTest::keyClick(&m_stage->notes, Qt::Key_F8);
        QTest::keyClick(&m_stage->notes, Qt::Key_F8);
        QTest::keyClicks(&m_stage->notes, u"Lenses"_s);

        QCOMPARE(m_stage->pressed, QStringList({u"play"_s, u"pause"_s}));
        QVERIFY(m_stage->notes.hasFocus());
        QCOMPARE(m_stage->notes.toPlainText(), u"Lenses"_s);
    }

    void f8DoesNothingWhileNothingCanBePlayed()
    {
        m_stage->play.setEnabled(false);
        m_stage->notes.setFocus();

        QTest::keyClick(&m_stage->notes, Qt::Key_F8);

        QVERIFY(m_stage->pressed.isEmpty());
    }

    void whoPressesPlayByKeyboardIsOnPauseNextAndBack()
    {
        m_stage->play.setFocus();

        QTest::keyClick(&m_stage->play, Qt::Key_Space);
        QVERIFY(m_stage->pause.hasFocus());
        QTest::keyClick(&m_stage->pause, Qt::Key_Space);

        QVERIFY(m_stage->play.hasFocus());
        QCOMPARE(m_stage->pressed, QStringList({u"play"_s, u"pause"_s}));
    }

    void controlRPressesTheButtonOfTheTwoThatShows()
    {
        Recorder recorder;
        recorder.show();

        QTest::keyClick(&recorder.notes, Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(recorder.pressed, QStringList{u"start"_s});
        recorder.start.hide();
        recorder.pause.show();
        QTest::keyClick(&recorder.notes, Qt::Key_R, Qt::ControlModifier);

        QCOMPARE(recorder.pressed, QStringList({u"start"_s, u"pause"_s}));
        QVERIFY(recorder.notes.hasFocus());
    }

    void theTimeTagAndTheStopHaveKeysThatWriteNothing()
    {
        Recorder recorder;
        recorder.show();

        QTest::keyClick(&recorder.notes, Qt::Key_T, Qt::ControlModifier);
        QCOMPARE(recorder.pressed, QStringList{u"tag"_s});
        QTest::keyClick(&recorder.notes, Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);

        QCOMPARE(recorder.pressed, QStringList({u"tag"_s, u"stop"_s}));
        QCOMPARE(recorder.notes.toPlainText(), QString());
    }

    void f8PlaysAFinishedTakeAndNeverStopsOne()
    {
        Recorder recorder;
        recorder.show();

        QTest::keyClick(&recorder.notes, Qt::Key_F8);
        QVERIFY(recorder.pressed.isEmpty());
        recorder.listen(recorder.stop, "playRecordTemp", u"play"_s);
        QTest::keyClick(&recorder.notes, Qt::Key_F8);

        QCOMPARE(recorder.pressed, QStringList{u"play"_s});
    }

private:
    struct Recorder
    {
        Recorder()
        {
            auto *layout = new QVBoxLayout(&window);
            for (QWidget *widget : QList<QWidget *>{&notes, &start, &pause, &stop, &tag})
                layout->addWidget(widget);
            pause.hide();
            listen(start, "startRecording", u"start"_s);
            listen(pause, "pauseResumeRecording", u"pause"_s);
            listen(stop, "stopRecording", u"stop"_s);
            listen(tag, "onSetTimeTag", u"tag"_s);
            tarvelo::audio::RecordingOutlets outlets;
            outlets.newNoteWindow = &window;
            outlets.btnStartRecord = &start;
            outlets.btnPauseResumeRecording = &pause;
            outlets.btnStopRecord = &stop;
            outlets.btnTimeTag = &tag;
            recordWithKeys(outlets);
        }
        void listen(ImageButton &button, const char *name, const QString &what)
        {
            button.setAction({name, [this, what](QWidget *) { pressed.append(what); }});
        }
        void show()
        {
            window.show();
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            notes.setFocus();
        }

        QStringList pressed;
        QWidget window;
        QTextEdit notes;
        ImageButton start;
        ImageButton pause;
        ImageButton stop;
        ImageButton tag;
    };

    // The two buttons enable each other in the order in which the player does it.
    struct Stage
    {
        Stage()
        {
            auto *layout = new QVBoxLayout(&window);
            for (QWidget *widget :
                 QList<QWidget *>{&subject, &play, &pause, &slider, &notes, &done})
                layout->addWidget(widget);
            pause.setEnabled(false);
            done.setAction({"done", [this](QWidget *) { pressed.append(u"done"_s); }});
            play.setAction({"play", [this](QWidget *) { press(u"play"_s, true); }});
            pause.setAction({"pause", [this](QWidget *) { press(u"pause"_s, false); }});
            doneWithControlReturn(window, done);
            returnGoesOnToNotes(subject, notes);
            escapeCloses(window);
            playAndPauseWithF8(window, play, pause);
            window.show();
            window.activateWindow();
        }
        void press(const QString &what, bool plays)
        {
            pressed.append(what);
            pause.setEnabled(plays);
            play.setEnabled(!plays);
        }

        QStringList pressed;
        QWidget window;
        QLineEdit subject;
        ImageButton play;
        ImageButton pause;
        QLineEdit slider;
        QTextEdit notes;
        ImageButton done;
    };

    void prepare() override
    {
        m_stage = std::make_unique<Stage>();
        QVERIFY(QTest::qWaitForWindowActive(&m_stage->window));
    }
    void finish() override { m_stage.reset(); }

    std::unique_ptr<Stage> m_stage;
};

QTEST_MAIN(EditingKeysTest)
#include "EditingKeysTest.moc"
