#include "app/Preferences.h"

#include "app/WindowHints.h"
#include "platform/Texts.h"
#include "platform/UserDefaults.h"
#include "platform/WindowLevel.h"
#include "support/FileContent.h"
#include "support/TestCase.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>

using namespace tarvelo::app;
using tarvelo::platform::UserDefaults;
using tarvelo::platform::windowLevel;

namespace {

// One run of the program over settings that outlive it.
struct Run
{
    explicit Run(const QTemporaryDir &config)
        : folder(config.path())
        , defaults(folder + QStringLiteral("/Tarvelo.conf"))
        , preferences(defaults, window, LoginItem(folder + QStringLiteral("/autostart"), program))
    {
        preferences.setLabels();
        preferences.setUp();
    }

    template <typename Control>
    Control *control(const char *name)
    {
        return preferences.preferrenceWindow()->findChild<Control *>(QLatin1String(name));
    }
    QCheckBox *box(const char *name) { return control<QCheckBox>(name); }
    QRadioButton *row(int number)
    {
        auto *matrix = control<QButtonGroup>("matrixFileFormat");
        return qobject_cast<QRadioButton *>(matrix->button(number));
    }
    // What was written out. The settings share what they know within a process, so that only the
    // file itself tells.
    QByteArray file() const
    {
        return tarvelo::tests::contentOf(folder + QStringLiteral("/Tarvelo.conf"));
    }

    QString folder;
    QString program = QStringLiteral("/usr/bin/Tarvelo");
    UserDefaults defaults;
    QWidget window;
    Preferences preferences;
};

void storeBeforeTheRun(const QTemporaryDir &config, const char *key, const QVariant &value)
{
    UserDefaults defaults(config.filePath(QStringLiteral("Tarvelo.conf")));
    defaults.setValue(QLatin1String(key), value);
    defaults.synchronize();
}

} // namespace

class PreferencesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tarvelo::platform::installTexts(); }

    void aFirstRunShowsTheWindowRecordsM4aAndLeavesTheLevelAlone()
    {
        const QTemporaryDir config;
        Run run(config);

        QVERIFY(run.box("btnShowMainWindowOnStart")->isChecked());
        QVERIFY(run.box("windowOnTop")->isChecked());
        QVERIFY(!run.row(0)->isChecked());
        QVERIFY(run.row(1)->isChecked());
        QCOMPARE(windowLevel(run.window), 0);
        QCOMPARE(run.preferences.integer(Preference::FileFormat), 1);
    }

    void registeredDefaultsAreNeverWritten()
    {
        const QTemporaryDir config;
        Run run(config);

        QCOMPARE(run.file(), QByteArray());
        QCOMPARE(run.preferences.integer(Preference::ShowWindowAtLogin), 1);
        QCOMPARE(run.preferences.integer(Preference::StatusBar), 0);
        QVERIFY(!run.defaults.value(QStringLiteral("StatusBar")).isValid());
        QVERIFY(!run.defaults.value(QStringLiteral("DockIcon")).isValid());
    }

    void aStoredZeroOfWindowOnTopRaisesTheWindowAtTheStart()
    {
        const QTemporaryDir config;
        storeBeforeTheRun(config, "windowOnTop", 0);

        Run run(config);

        QCOMPARE(windowLevel(run.window), 1);
        QVERIFY(!run.box("windowOnTop")->isChecked());
    }

    void theCheckboxOfWindowOnTopRaisesForOnAndLowersForOff()
    {
        const QTemporaryDir config;
        storeBeforeTheRun(config, "windowOnTop", 0);
        Run run(config);

        run.box("windowOnTop")->click();
        QCOMPARE(windowLevel(run.window), 1);
        QVERIFY(run.file().contains("windowOnTop=1"));

        run.box("windowOnTop")->click();
        QCOMPARE(windowLevel(run.window), 0);
        QVERIFY(run.file().contains("windowOnTop=0"));
    }

    void anyOtherValueThanOneLeavesTheShowWindowCheckboxOff()
    {
        const QTemporaryDir config;
        storeBeforeTheRun(config, "showWindowAtLogin", 2);

        Run run(config);

        QVERIFY(!run.box("btnShowMainWindowOnStart")->isChecked());
    }

    void theShowWindowCheckboxStoresItsState()
    {
        const QTemporaryDir config;
        Run run(config);

        run.box("btnShowMainWindowOnStart")->click();
        QVERIFY(run.file().contains("showWindowAtLogin=0"));

        run.box("btnShowMainWindowOnStart")->click();
        QVERIFY(run.file().contains("showWindowAtLogin=1"));
    }

    void choosingAFormatStoresItsRowBeforeItIsTold()
    {
        const QTemporaryDir config;
        Run run(config);
        QByteArray fileWhenTold;
        connect(&run.preferences, &Preferences::formatChosen, this,
                [&] { fileWhenTold = run.file(); });

        run.row(0)->click();
        QVERIFY(fileWhenTold.contains("fileFormat=0"));

        run.row(1)->click();
        QVERIFY(fileWhenTold.contains("fileFormat=1"));
    }

    void aStoredFormatIsShown_data()
    {
        QTest::addColumn<int>("stored");
        QTest::addColumn<bool>("isAac");
        QTest::newRow("aac") << 0 << true;
        QTest::newRow("m4a") << 1 << false;
        QTest::newRow("any other value") << 7 << false;
    }

    void aStoredFormatIsShown()
    {
        QFETCH(int, stored);
        QFETCH(bool, isAac);
        const QTemporaryDir config;
        storeBeforeTheRun(config, "fileFormat", stored);

        Run run(config);

        QCOMPARE(run.row(0)->isChecked(), isAac);
        QCOMPARE(run.row(1)->isChecked(), !isAac);
    }

    void theDockIconCheckboxStoresABoolean()
    {
        const QTemporaryDir config;
        Run run(config);
        QVERIFY(run.box("dockIconCheckbox")->isChecked());

        run.box("dockIconCheckbox")->click();
        QVERIFY(run.file().contains("DockIcon=false"));
        QVERIFY(!run.preferences.wantsDockIcon());

        run.box("dockIconCheckbox")->click();
        QVERIFY(run.file().contains("DockIcon=true"));
        QVERIFY(run.preferences.wantsDockIcon());
    }

    void whatWasStoredIsShownAgain()
    {
        const QTemporaryDir config;
        storeBeforeTheRun(config, "StatusBar", 1);
        storeBeforeTheRun(config, "DockIcon", false);

        Run run(config);

        QVERIFY(run.box("BtnStatusBar")->isChecked());
        QVERIFY(!run.box("dockIconCheckbox")->isChecked());
    }

    void theStatusBarCheckboxIsHandedOn()
    {
        const QTemporaryDir config;
        Run run(config);
        QAbstractButton *chosen = nullptr;
        connect(&run.preferences, &Preferences::statusBarChosen, this,
                [&](QAbstractButton *sender) { chosen = sender; });

        run.box("BtnStatusBar")->click();

        QCOMPARE(chosen, run.box("BtnStatusBar"));
    }

    void openAtLoginWritesAndRemovesItsEntry()
    {
        const QTemporaryDir config;
        Run run(config);
        const QString entry =
            config.filePath(QStringLiteral("autostart/org.tarvelo.Tarvelo.desktop"));

        run.box("btnOpenAtLogin")->click();
        QVERIFY(QFile::exists(entry));

        run.box("btnOpenAtLogin")->click();
        QVERIFY(!QFile::exists(entry));
    }

    void openAtLoginStaysOffWhenItsEntryCannotBeWritten()
    {
        const QTemporaryDir config;
        QFile inTheWay(config.filePath(QStringLiteral("autostart")));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        Run run(config);

        run.box("btnOpenAtLogin")->click();

        QVERIFY(!run.box("btnOpenAtLogin")->isChecked());
    }

    void theSheetShowsWhatTheDesktopDidToTheLoginEntry()
    {
        const QTemporaryDir config;
        Run run(config);
        LoginItem(config.filePath(QStringLiteral("autostart")), run.program).setEnabled(true);

        run.preferences.onShowPreferences();

        QVERIFY(run.box("btnOpenAtLogin")->isChecked());
    }

    void openedFromTheMainWindowItSwitchesTheMinimiseButtonOff()
    {
        const QTemporaryDir config;
        Run run(config);
        run.window.show();

        run.preferences.onShowPreferences();
        QVERIFY(run.preferences.isShowing());
        QCOMPARE(run.preferences.preferrenceWindow()->windowModality(), Qt::WindowModal);
        QVERIFY(!isMinimiseButtonEnabled(run.window));

        run.preferences.onClosePreferences();
        QVERIFY(!run.preferences.isShowing());
        QVERIFY(isMinimiseButtonEnabled(run.window));
    }

    void openedFromTheStatusMenuItLeavesTheMinimiseButtonAlone()
    {
        const QTemporaryDir config;
        Run run(config);

        run.preferences.openSettingPanel();

        QVERIFY(run.window.isVisible());
        QVERIFY(run.preferences.isShowing());
        QVERIFY(isMinimiseButtonEnabled(run.window));

        run.preferences.onCloseSettingPanel();
        QVERIFY(!run.preferences.isShowing());
    }

    void escapeClosesTheSheetAsItsButtonDoes()
    {
        const QTemporaryDir config;
        Run run(config);
        run.window.show();
        run.preferences.onShowPreferences();

        QTest::keyClick(run.preferences.preferrenceWindow(), Qt::Key_Escape);

        QVERIFY(!run.preferences.isShowing());
        QVERIFY(isMinimiseButtonEnabled(run.window));
    }

    void theButtonOfTheSheetClosesIt()
    {
        const QTemporaryDir config;
        Run run(config);
        run.preferences.onShowPreferences();

        run.control<QPushButton>("btnClosePreferences")->click();

        QVERIFY(!run.preferences.isShowing());
        QVERIFY(isMinimiseButtonEnabled(run.window));
    }

    void theEndOfTheSheetOrdersItOut()
    {
        const QTemporaryDir config;
        Run run(config);
        QDialog *sheet = run.preferences.preferrenceWindow();
        sheet->open();

        run.preferences.sheetDidEndReturnCodeContextInfo(sheet, 0, nullptr);

        QVERIFY(!sheet->isVisible());
    }

    void theLabelsCarryTheTextsOfTheirKeys()
    {
        const QTemporaryDir config;
        Run run(config);

        const auto textOf = [&run](const char *label) {
            return run.control<QLabel>(label)->text();
        };
        QCOMPARE(textOf("lblOpenAppAutomatically"), QStringLiteral("Start and appearance"));
        QCOMPARE(textOf("lblOpenAtLogin"), QStringLiteral("Open at login"));
        QCOMPARE(textOf("lblShowWindowAtLogin"), QStringLiteral("Show the window at start"));
        QCOMPARE(textOf("lblOpenInDock"), QStringLiteral("Show in the task bar"));
        QCOMPARE(textOf("lblOpenInStatusbar"), QStringLiteral("Show in the status bar"));
        QCOMPARE(textOf("lblWindowOnTop"), QStringLiteral("Keep the window on top"));
        QCOMPARE(textOf("lblFileFormat"), QStringLiteral("Format of new recordings"));
        QCOMPARE(run.row(0)->text(), QStringLiteral("AAC (.aac)"));
        QCOMPARE(run.row(1)->text(), QStringLiteral("MPEG-4 audio (.m4a)"));
        QCOMPARE(run.preferences.preferrenceWindow()->windowTitle(), QStringLiteral("Preferences"));
    }

    void everyCheckboxIsNamedByTheLabelBesideIt()
    {
        const QTemporaryDir config;
        Run run(config);

        const auto nameOf = [&run](const char *box) { return run.box(box)->accessibleName(); };
        QCOMPARE(nameOf("btnOpenAtLogin"), QStringLiteral("Open at login"));
        QCOMPARE(nameOf("btnShowMainWindowOnStart"), QStringLiteral("Show the window at start"));
        QCOMPARE(nameOf("dockIconCheckbox"), QStringLiteral("Show in the task bar"));
        QCOMPARE(nameOf("BtnStatusBar"), QStringLiteral("Show in the status bar"));
        QCOMPARE(nameOf("windowOnTop"), QStringLiteral("Keep the window on top"));
    }

    void everyControlHasANameAndIsReachedByKeyboard()
    {
        const QTemporaryDir config;
        Run run(config);

        for (auto *button :
             run.preferences.preferrenceWindow()->findChildren<QAbstractButton *>()) {
            const QString name =
                button->accessibleName().isEmpty() ? button->text() : button->accessibleName();
            QVERIFY2(!name.isEmpty(), qPrintable(button->objectName()));
            QVERIFY2(button->focusPolicy() & Qt::TabFocus, qPrintable(button->objectName()));
        }
    }

    void pressingALabelPressesItsCheckbox()
    {
        const QTemporaryDir config;
        Run run(config);
        run.window.show();
        run.preferences.onShowPreferences();
        auto *label = run.control<QLabel>("lblShowWindowAtLogin");

        QTest::mouseClick(label, Qt::LeftButton);

        QVERIFY(!run.box("btnShowMainWindowOnStart")->isChecked());
        QVERIFY(run.file().contains("showWindowAtLogin=0"));
    }
};

QTEST_MAIN(PreferencesTest)
#include "PreferencesTest.moc"
