#pragma once

#include "app/Activation.h"
#include "app/AppMenus.h"
#include "app/BringBackSheet.h"
#include "app/DayPopover.h"
#include "app/DockIcon.h"
#include "app/Help.h"
#include "app/LeftLectureSheet.h"
#include "app/LoginItem.h"
#include "app/Preferences.h"
#include "app/Request.h"
#include "app/StatusItem.h"
#include "calendar/CalendarDelegate.h"
#include "lectures/LectureApplication.h"
#include "lectures/LectureRowHost.h"
#include "platform/DelayedCall.h"
#include "platform/DetachedCommand.h"
#include "store/Sqlite.h"
#include "widgets/ImageButton.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <chrono>
#include <functional>

class QAbstractButton;
class QButtonGroup;
class QWidget;

namespace tarvelo::calendar {
class CKCalendarView;
}
namespace tarvelo::lectures {
class LectureWindows;
class MediaLinksArrayController;
} // namespace tarvelo::lectures
namespace tarvelo::platform {
class Alerts;
class Dates;
class UserDefaults;
} // namespace tarvelo::platform
namespace tarvelo::store {
class LectureDatabase;
} // namespace tarvelo::store
namespace tarvelo::widgets {
class SlidingWindow;
}

namespace tarvelo::app {

// What happens once in a process, whatever comes and goes in it.
struct ProcessFlags
{
    bool windowSetUp = false;
    bool firstActivationSeen = false;
    bool controllerIsAwake = false;
    // The row that the confirmation of a deletion is about, -1 until the first.
    int pendingRow = -1;

    static ProcessFlags &ofProcess();
};

// What the application delegate works with. All of it outlives the delegate.
struct AppServices
{
    const platform::Dates &dates;
    platform::UserDefaults &defaults;
    store::LectureDatabase &database;
    platform::Alerts &alerts;
    const lectures::LectureWindows &windows;
    lectures::MediaLinksArrayController &mediaLinksArrayController;
    LoginItem loginItem;
    Help help;
    ProcessFlags &flags;
    // Starts a process that outlives this one.
    std::function<void(const QString &program, const QStringList &arguments)> launch =
        platform::runDetached;
};

enum class TerminateReply { Cancel, Now };

// The application around the calendar and the lectures: it sets up the main window, shows the
// selected day in its header, folds and unfolds it, answers when the program is launched,
// activated, opened again and quit, and owns the status item and the preferences. The work on
// lectures is the controller's.
//
//   start-up      awakeFromNib, applicationDidFinishLaunching
//   callbacks     applicationWillBecomeActive, applicationShouldHandleReopen..., ...Terminate
//   the day       calendarDidSelectDate, getSelectedDate, setRecordingStateForButton
//   questions     isTarveloViewShowing, isRecordingNow, getTheDB, rows of the table
//   widths        foldupList, delayFoldupList, cancelPreviousFoldingAction, onSlideWindow
//   windows       openAtFront, onOpenWindow, terminate, setStatusBar
//   help          handed on to Help
//   preferences   handed on to Preferences
class AppDelegate final : public QObject,
                          public calendar::CalendarDelegate,
                          public lectures::LectureApplication,
                          public lectures::LectureRowHost
{
    Q_OBJECT

public:
    static constexpr int SlideBy = 400; // points
    static constexpr std::chrono::milliseconds FirstWindowDelay{400};
    static constexpr std::chrono::seconds FoldDelay{30};
    // The window shows its first list by then.
    static constexpr std::chrono::milliseconds LeftLecturesDelay{1200};

    explicit AppDelegate(const AppServices &services);
    ~AppDelegate() override;

    // -- Start-up and the platform's callbacks. The set-up is done once in a process.
    void awakeFromNib();
    void applicationDidFinishLaunching(QObject *application);
    void applicationWillBecomeActive(QObject *application);
    // False always: there is nothing left for the platform to do.
    bool applicationShouldHandleReopenHasVisibleWindows(QObject *application,
                                                        bool hasVisibleWindows);
    TerminateReply applicationShouldTerminate(QObject *sender);
    void alerDeletedDidEndReturnCodeContextInfo(QWidget *alertWindow, int returnCode,
                                                void *contextInfo);

    // -- The day
    void calendarDidSelectDate(calendar::CKCalendarView *calendarView,
                               const QDateTime &date) override;
    QDateTime getSelectedDate() const { return m_dateOfButtonClicked; }
    QDateTime getCurrentDate() const override { return m_dateOfButtonClicked; }
    void setRecordingStateForButton(bool recording) override;
    widgets::ImageButton *btnDateButtonForRecording() const { return m_btnDateButtonForRecording; }
    // The day cell clicked last. Nothing in the program sets it, so the mark of a recording day is
    // in practice never changed, which is wanted.
    void setBtnDateButtonClickedNow(widgets::ImageButton *cell)
    {
        m_btnDateButtonClickedNow = cell;
    }

    // -- Questions
    bool isTarveloViewShowing() const override;
    bool isRecordingNow() const override;
    bool isConfirmDeleteShowing() const override;
    bool isSupportedIniTunes(QWidget *cell) const override;
    store::Sqlite *getTheDB() override;
    // A table that asks this object, and not the controller, gets ten empty rows.
    int numberOfRowsInTableView() const { return 10; }
    QString tableViewObjectValueForTableColumnRow(int, int) const { return QStringLiteral(""); }
    void tableViewWillDisplayCellForTableColumnRow(QWidget *, int, int) {}

    // -- Widths of the main window
    void foldupList();
    void delayFoldupList();
    void cancelPreviousFoldingAction();
    void onFoldUpList(QObject *sender);
    void onSlideWindow(QObject *sender);

    // -- Windows and the status item
    void openAtFront(QObject *sender);
    void onOpenWindow(QObject *sender);
    // Someone outside asked for the program that runs, and perhaps for something that it offers.
    void perform(Request request);
    // Quits, unless applicationShouldTerminate() is against it.
    void terminate(QObject *sender);
    void setStatusBar(QAbstractButton *sender);
    const StatusItem &myStatusItem() const { return m_myStatusItem; }
    QObject *closemenu() const { return m_closemenu; }
    void setClosemenu(QObject *menu) { m_closemenu = menu; }
    AppMenus &menus() { return m_menus; }
    const DayPopover &dayPopover() const { return m_dayPopover; }

    const DockIcon &dockIcon() const { return m_dockIcon; }

    // -- Help: opens what the tag of the entry means.
    void showHelp(QObject *sender);

    // -- Preferences
    const LeftLectureSheet &leftLectureSheet() const { return m_leftLectures; }
    const BringBackSheet &bringBackSheet() const { return m_bringBack; }
    const Preferences &preferences() const { return m_preferences; }
    void onShowPreferences(QObject *sender);
    void onClosePreferences(QObject *sender);
    void onCloseSettingPanel(QObject *sender);
    void openSettingPanel(QObject *sender);
    void sheetDidEndReturnCodeContextInfo(QWidget *sheet, int returnCode, void *contextInfo);
    void setStatusForHideMainWindowOnStart(QAbstractButton *sender);
    void setWindowOnTop(QAbstractButton *sender);
    void onChangeFormatChoice(QButtonGroup *sender);
    void setLogoAtMenubarOrDockPanel(QAbstractButton *sender);

Q_SIGNALS:
    // The event loop is to be left.
    void terminationAllowed();

private:
    void setLabels();
    void showDateHeader(const QDateTime &moment);
    void showStatusItem(bool shown);
    void run(Command command);
    void addLecture();

    AppServices m_services;
    lectures::MediaLinksArrayController &m_mediaLinksArrayController;
    widgets::SlidingWindow &m_window;
    calendar::CKCalendarView &m_calendarView;
    Preferences m_preferences;
    BringBackSheet m_bringBack;
    LeftLectureSheet m_leftLectures;
    AppMenus m_menus;
    StatusItem m_myStatusItem;
    DayPopover m_dayPopover;
    DockIcon m_dockIcon;
    Activation m_activation;
    platform::DelayedCall m_showFirstWindow;
    platform::DelayedCall m_foldupList;
    platform::DelayedCall m_offerLeftLectures;
    QDateTime m_dateOfButtonClicked;
    QPointer<widgets::ImageButton> m_btnDateButtonForRecording;
    QPointer<widgets::ImageButton> m_btnDateButtonClickedNow;
    QPointer<QObject> m_closemenu;
};

} // namespace tarvelo::app
