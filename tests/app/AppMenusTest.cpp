#include "app/Application.h"
#include "app/WindowHints.h"
#include "platform/Texts.h"
#include "support/TestCase.h"

#include <QAction>
#include <QSignalSpy>

using namespace tarvelo;
using namespace std::chrono_literals;
using app::Command;
using tests::Application;
using tests::noonOf;

class AppMenusTest final : public tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { platform::installTexts(); }

    void theMainMenuHangsOnItsButton()
    {
        Application program;

        QCOMPARE(program.windows.mainOutlets().btnMainMenu->menu(),
                 &program.delegate.menus().mainMenu());
    }

    void theMenusOfTheWindowsAreAsLightAsTheWindows()
    {
        const QPalette usual = QGuiApplication::palette();
        QGuiApplication::setPalette(QPalette(QColor(40, 40, 40)));
        {
            Application program;
            app::AppMenus &menus = program.delegate.menus();

            for (const QMenu *menu : {&menus.mainMenu(), &menus.helpMenu()})
                QCOMPARE(menu->palette().color(QPalette::Base), QColor(Qt::white));
        }
        QGuiApplication::setPalette(usual);
    }

    void theMenuOfTheBarIsWrittenAsTheOthersUnlessTheDesktopIsDark()
    {
        const auto inks = [] {
            Application program;
            app::AppMenus &menus = program.delegate.menus();
            return std::pair(menus.statusMenu().palette().color(QPalette::Text),
                             menus.mainMenu().palette().color(QPalette::Text));
        };
        const QPalette usual = QGuiApplication::palette();

        const auto [onLight, mainOnLight] = inks();
        QGuiApplication::setPalette(QPalette(QColor(40, 40, 40)));
        const auto [onDark, mainOnDark] = inks();
        QGuiApplication::setPalette(usual);

        QCOMPARE(onLight, mainOnLight);
        QCOMPARE(mainOnDark, mainOnLight);
        QVERIFY(onDark.lightness() > 200);
    }

    void theCommandsHaveTheirShortcuts_data()
    {
        QTest::addColumn<Command>("command");
        QTest::addColumn<QString>("shortcut");
        QTest::newRow("New Lecture") << Command::NewLecture << QStringLiteral("Ctrl+N");
        QTest::newRow("Preferences") << Command::ShowPreferences << QStringLiteral("Ctrl+,");
        QTest::newRow("All List") << Command::AllList << QStringLiteral("Ctrl+L");
        QTest::newRow("Fold List") << Command::FoldList << QStringLiteral("F9");
        QTest::newRow("Show Folder") << Command::ShowFolder << QStringLiteral("Ctrl+O");
        QTest::newRow("Close Window") << Command::CloseWindow << QStringLiteral("Ctrl+W");
        QTest::newRow("Quit") << Command::Quit << QStringLiteral("Ctrl+Q");
    }

    void theCommandsHaveTheirShortcuts()
    {
        QFETCH(Command, command);
        Application program;

        const QAction *action = program.delegate.menus().action(command);

        QTEST(action->shortcut().toString(), "shortcut");
        QVERIFY(program.window().actions().contains(const_cast<QAction *>(action)));
    }

    void f10OpensTheMainMenuAtItsFirstCommand()
    {
        Application program;
        program.window().show();
        program.window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&program.window()));

        QTest::keyClick(&program.window(), Qt::Key_F10);

        QMenu &menu = program.delegate.menus().mainMenu();
        QVERIFY(menu.isVisible());
        QCOMPARE(menu.activeAction(), program.delegate.menus().action(Command::NewLecture));
        menu.close();
    }

    void theHelpMenuLeadsToTheGuideAndOutside()
    {
        Application program;
        QStringList titles;

        for (const QAction *action : program.delegate.menus().helpMenu().actions())
            titles << (action->isSeparator() ? QStringLiteral("-") : action->text());

        QCOMPARE(titles.join(u'|'),
                 QStringLiteral("Guide|-|Tarvelo on the Web|Tarvelo in the Software Store|"
                                "More Programs|-|About Tarvelo"));
    }

    void anEntryOfTheHelpMenuOpensWhatItsTagMeans()
    {
        Application program;
        const QList<int> outside{app::Help::WebPage, app::Help::StorePage, app::Help::MorePrograms,
                                 app::Help::AboutPage};
        QList<QUrl> wanted;
        for (const int tag : outside)
            wanted << QUrl(app::Help::addressFor(tag));

        for (QAction *action : program.delegate.menus().helpMenu().actions()) {
            if (!action->isSeparator() && outside.contains(app::Help::tagOf(action)))
                action->trigger();
        }

        QCOMPARE(program.workspace.addresses, wanted);
    }

    void f1OpensTheGuide()
    {
        Application program;
        const QString resources = program.home.places().resources;
        QVERIFY(QDir().mkpath(resources));
        QVERIFY(QFile(resources + QStringLiteral("/Guide.pdf")).open(QIODevice::WriteOnly));
        program.window().show();
        program.window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&program.window()));

        QTest::keyClick(&program.window(), Qt::Key_F1);

        QCOMPARE(program.workspace.documents,
                 QStringList{resources + QStringLiteral("/Guide.pdf")});
    }

    void everyCommandHasATitle()
    {
        Application program;

        for (int i = 0; i < static_cast<int>(Command::Count); ++i)
            QVERIFY(!program.delegate.menus().action(static_cast<Command>(i))->text().isEmpty());
    }

    void theStatusMenuOpensMakesConfiguresAndQuits()
    {
        Application program;
        QStringList titles;

        for (const QAction *action : program.delegate.menus().statusMenu().actions()) {
            if (!action->isSeparator())
                titles << action->text();
        }

        QCOMPARE(titles, (QStringList{QStringLiteral("Open Tarvelo"), QStringLiteral("New Lecture"),
                                      QStringLiteral("Preferences…"), QStringLiteral("Quit")}));
    }

    void aNewLectureIsMadeOnAnOpenDay()
    {
        Application program;
        program.launch();
        program.delegate.calendarDidSelectDate(nullptr, noonOf(2024, 3, 22));

        choose(program, Command::NewLecture);

        QVERIFY(program.delegate.isRecordingNow());
    }

    void aNewLectureFromAMenuOnAPastDayGoesToTodayFirst()
    {
        Application program;
        program.launch();
        program.delegate.calendarDidSelectDate(nullptr, noonOf(2024, 3, 1));

        choose(program, Command::NewLecture);

        QVERIFY(program.delegate.isRecordingNow());
        QCOMPARE(program.delegate.getSelectedDate().date(), program.clock.now().date());
    }

    void anOpenLectureKeepsItsDayWhenAnotherIsAskedForPastMidnight()
    {
        Application program;
        program.launch();
        program.delegate.calendarDidSelectDate(nullptr, noonOf(2024, 3, 22));
        choose(program, Command::NewLecture);
        program.clock.set(noonOf(2024, 3, 23));

        choose(program, Command::NewLecture);

        QCOMPARE(program.delegate.getSelectedDate(), noonOf(2024, 3, 22));
    }

    void aNewLectureFromAMenuOnADayThatPassedSinceItWasChosenGoesToTodayFirst()
    {
        Application program;
        program.launch();
        program.delegate.calendarDidSelectDate(nullptr, noonOf(2024, 3, 22));
        program.clock.set(noonOf(2024, 4, 2));

        choose(program, Command::NewLectureFromOutside);

        QVERIFY(program.delegate.isRecordingNow());
        QCOMPARE(program.delegate.getSelectedDate().date(), program.clock.now().date());
    }

    void allListShowsItsTitleAtTheListsWidth()
    {
        Application program;
        program.launch();
        program.clock.advance(1s);

        choose(program, Command::FoldList);
        QCOMPARE(program.window().frameWidth(), 452);

        choose(program, Command::AllList);
        QCOMPARE(program.window().frameWidth(), 833);
        QCOMPARE(program.windows.mainOutlets().lblDateDisplay->text(), QStringLiteral("All List"));
    }

    void theRecordingsFolderIsRevealed()
    {
        Application program;
        program.launch();

        choose(program, Command::ShowFolder);

        QCOMPARE(program.workspace.shown.value(0),
                 QList<QUrl>{QUrl::fromLocalFile(program.controller.getAudioFolderPath())});
    }

    void closeWindowHidesTheMainWindow()
    {
        Application program;
        program.window().show();

        choose(program, Command::CloseWindow);

        QVERIFY(!program.window().isVisible());
    }

    void bothQuitCommandsQuit()
    {
        Application program;
        QSignalSpy ends(&program.delegate, &app::AppDelegate::terminationAllowed);

        choose(program, Command::Quit);
        choose(program, Command::QuitFromStatusItem);

        QCOMPARE(ends.size(), 2);
    }

    void bothPreferencesCommandsOpenTheSheet()
    {
        Application program;
        program.launch();

        choose(program, Command::PreferencesFromOutside);
        QVERIFY(program.delegate.preferences().isShowing());
        QVERIFY(app::isMinimiseButtonEnabled(program.window()));
        program.delegate.onClosePreferences(nullptr);

        choose(program, Command::ShowPreferences);
        QVERIFY(program.delegate.preferences().isShowing());
        QVERIFY(!app::isMinimiseButtonEnabled(program.window()));
    }

    void openBringsTheWindowToTheFront()
    {
        Application program;

        choose(program, Command::Open);

        QVERIFY(program.window().isVisible());
    }

private:
    static void choose(Application &program, Command command)
    {
        program.delegate.menus().action(command)->trigger();
    }
};

QTEST_MAIN(AppMenusTest)
#include "AppMenusTest.moc"
