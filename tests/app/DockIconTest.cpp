#include "app/DockIcon.h"

#include "app/Application.h"
#include "app/TaskbarEntry.h"
#include "support/TestCase.h"

#include <QCheckBox>
#include <QDialog>
#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;
using namespace tarvelo::app;
using tarvelo::tests::Application;
using tarvelo::tests::FakeAlerts;

class DockIconTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showingItGivesEveryWindowItsEntryAtOnceAndComesForward()
    {
        Stage stage;
        stage.icon.startWith(false);

        stage.icon.setShowsDockIcon(true);

        QVERIFY(stage.hasEntry());
        QCOMPARE(stage.done, QStringList(u"activate"_s));
        QVERIFY(stage.alerts.questions.isEmpty());
    }

    void showingItTwiceInARowDoesNoHarm()
    {
        Stage stage;
        stage.icon.startWith(false);

        stage.icon.setShowsDockIcon(true);
        stage.icon.setShowsDockIcon(true);

        QVERIFY(stage.hasEntry());
        QCOMPARE(stage.done, QStringList({u"activate"_s, u"activate"_s}));
    }

    void hidingItAsksWhetherToStartAgainNow()
    {
        Stage stage;

        stage.icon.setShowsDockIcon(false);

        QCOMPARE(stage.alerts.questions.size(), 1);
        const FakeAlerts::Question question = stage.alerts.questions.first();
        QCOMPARE(question.message, u"You must now restart DockIconTest"_s);
        QCOMPARE(question.informativeText,
                 u"Your new setting for the Dock icon won't show up until you relaunch this "
                 u"application."_s);
        QCOMPARE(question.buttons, QStringList({u"Relaunch Now"_s, u"Later"_s}));
    }

    void laterLeavesTheIconAndTheProgramAsTheyAre()
    {
        Stage stage;

        stage.icon.setShowsDockIcon(false);

        QVERIFY(stage.hasEntry());
        QCOMPARE(stage.done, QStringList());
    }

    void relaunchNowClosesTheSheetStartsAShellThatWaitsAndEnds()
    {
        Stage stage;
        stage.alerts.answer = 1000;

        stage.icon.setShowsDockIcon(false);

        const QString path = QCoreApplication::applicationFilePath();
        QCOMPARE(stage.done, QStringList({u"close settings"_s,
                                          u"/bin/sh -c sleep 3 ; /usr/bin/env '"_s + path + u"'"_s,
                                          u"terminate"_s}));
    }

    void anAnswerThatTheEndOfTheProgramTookAwayIsNone()
    {
        Stage stage;
        stage.alerts.answer = 0;

        stage.icon.setShowsDockIcon(false);

        QCOMPARE(stage.done, QStringList());
    }

    void theCheckboxOfThePreferencesStoresItsStateBeforeItAsks()
    {
        Application program;
        program.launch();
        QDialog &sheet = *program.delegate.preferences().preferrenceWindow();

        sheet.findChild<QCheckBox *>(u"dockIconCheckbox"_s)->click();

        QCOMPARE(program.alerts.questions.size(), 1);
        QVERIFY(program.settings().contains("DockIcon=false"));
        QVERIFY(program.launched.isEmpty());
    }

    void relaunchNowFromThePreferencesEndsTheProgram()
    {
        Application program;
        program.launch();
        program.alerts.answer = 1000;
        program.delegate.onShowPreferences(nullptr);
        QDialog &sheet = *program.delegate.preferences().preferrenceWindow();
        const QSignalSpy ended(&program.delegate, &AppDelegate::terminationAllowed);

        sheet.findChild<QCheckBox *>(u"dockIconCheckbox"_s)->click();

        QVERIFY(!sheet.isVisible());
        QCOMPARE(program.launched.size(), 1);
        QCOMPARE(ended.size(), 1);
    }

    // The shell then finds a program that runs, and shows its window.
    void aRecordingIsNotEndedByARelaunch()
    {
        Application program;
        program.launch();
        program.alerts.answer = 1000;
        program.startRecording();
        const QSignalSpy ended(&program.delegate, &AppDelegate::terminationAllowed);
        QDialog &sheet = *program.delegate.preferences().preferrenceWindow();

        sheet.findChild<QCheckBox *>(u"dockIconCheckbox"_s)->click();

        QCOMPARE(ended.size(), 0);
        QCOMPARE(program.alerts.sheets.size(), 1);
    }

private:
    struct Stage
    {
        bool hasEntry() const
        {
            return std::ranges::all_of(icon.entries(),
                                       [](const TaskbarEntry *it) { return it->isWanted(); });
        }

        QWidget one;
        QWidget other;
        FakeAlerts alerts;
        QStringList done;
        DockIcon icon{{&one, &other},
                      alerts,
                      {[this] { done << u"activate"_s; }, [this] { done << u"close settings"_s; },
                       [this] { done << u"terminate"_s; },
                       [this](const QString &program, const QStringList &arguments) {
                           done << program + u' ' + arguments.join(u' ');
                       }}};
    };
};

QTEST_MAIN(DockIconTest)
#include "DockIconTest.moc"
