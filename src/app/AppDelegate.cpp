#include "app/AppDelegate.h"

#include "app/DateHeader.h"
#include "app/PreferenceKeys.h"
#include "app/WindowHints.h"
#include "calendar/CKCalendarView.h"
#include "lectures/LectureWindows.h"
#include "lectures/MediaLinksArrayController.h"
#include "lectures/OwedLectures.h"
#include "lectures/WindowWidths.h"
#include "platform/Alerts.h"
#include "platform/Dates.h"
#include "platform/Images.h"
#include "platform/Texts.h"
#include "platform/WindowLevel.h"
#include "store/Sqlite.h"
#include "widgets/ImageButton.h"
#include "widgets/SlidingWindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QGuiApplication>
#include <QLabel>
#include <QWidget>

#include <vector>

namespace tarvelo::app {

using platform::Dates;
using platform::imageNamed;
using platform::makeKeyAndOrderFront;
using platform::text;

namespace {
const QString StatusImage = QStringLiteral("icon.icns");

std::vector<QWidget *> windowsOf(const lectures::LectureWindows &windows)
{
    return {&windows.mainWindow(), windows.newLectureOutlets().newNoteWindow,
            windows.editLectureOutlets().windowEditLecture,
            windows.playAudioOutlets().playAudioWindow};
}

} // namespace

ProcessFlags &ProcessFlags::ofProcess()
{
    static ProcessFlags flags;
    return flags;
}

AppDelegate::AppDelegate(const AppServices &services)
    : m_services(services)
    , m_mediaLinksArrayController(services.mediaLinksArrayController)
    , m_window(services.windows.mainWindow())
    , m_calendarView(*services.windows.mainOutlets().calendarView)
    , m_preferences(services.defaults, m_window, services.loginItem)
    , m_bringBack(services.database, services.dates,
                  {[this] { return m_mediaLinksArrayController.getAudioFolderPath(); },
                   [this] { return m_mediaLinksArrayController.owedLectures().recordings(); }},
                  m_window)
    , m_leftLectures(services.mediaLinksArrayController.leftLectures(), services.dates,
                     services.mediaLinksArrayController.audioEngine(), m_window)
    , m_menus(
          m_window, [this](Command command) { run(command); },
          [this](QAction *entry) { showHelp(entry); })
    , m_myStatusItem(m_menus.statusMenu(), text("TXT_TARVELO"))
    , m_dockIcon(windowsOf(services.windows), services.alerts,
                 {[] { activateIgnoringOtherApps(); }, [this] { onCloseSettingPanel(nullptr); },
                  [this] { terminate(nullptr); }, services.launch})
    , m_activation(services.dates.clock())
    , m_showFirstWindow(services.dates.clock(), [this] { makeKeyAndOrderFront(m_window); })
    , m_foldupList(services.dates.clock(), [this] { foldupList(); })
    , m_offerLeftLectures(services.dates.clock(), [this] { m_leftLectures.offer(); })
{
    m_mediaLinksArrayController.setApplication(this);
    m_mediaLinksArrayController.setRowHost(this);
    const lectures::MainWindowOutlets &main = services.windows.mainOutlets();
    main.btnMainMenu->setMenu(&m_menus.mainMenu());
    m_menus.openWithF10(*main.btnMainMenu);
    main.btnFoldUpList->setAction(
        {"onFoldUpList", [this](QWidget *sender) { onFoldUpList(sender); }});
    services.windows.newLectureOutlets().newNoteWindow->addAction(m_menus.action(Command::Quit));

    connect(&m_preferences, &Preferences::statusBarChosen, this, &AppDelegate::setStatusBar);
    connect(&m_preferences, &Preferences::dockIconChosen, this,
            [this](bool shows) { m_dockIcon.setShowsDockIcon(shows); });
    connect(&m_preferences, &Preferences::formatChosen, this,
            [this] { m_mediaLinksArrayController.setTempAudioSavePathWithFormat(); });
    connect(&m_bringBack, &BringBackSheet::lecturesCameBack, this,
            [this](const store::LecturesBack &back) {
                m_mediaLinksArrayController.lecturesCameBack(back);
                m_mediaLinksArrayController.showStoredLectures();
            });
    connect(&m_leftLectures, &LeftLectureSheet::lectureKept, this, [this] {
        m_mediaLinksArrayController.showStoredLectures();
        m_mediaLinksArrayController.owedLectures().storeSoon();
    });
    connect(&m_myStatusItem, &StatusItem::pressed, this, [this] { openAtFront(&m_myStatusItem); });
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, &m_activation,
            &Activation::stateChanged);
    connect(&m_activation, &Activation::becameActive, this,
            [this] { applicationWillBecomeActive(qGuiApp); });
}

AppDelegate::~AppDelegate()
{
    m_calendarView.setDelegate(nullptr);
    m_mediaLinksArrayController.setRowHost(nullptr);
    m_mediaLinksArrayController.setApplication(nullptr);
    m_services.windows.mainOutlets().btnMainMenu->setMenu(nullptr);
    m_services.windows.mainOutlets().btnFoldUpList->setAction({});
}

void AppDelegate::awakeFromNib()
{
    if (m_services.flags.windowSetUp)
        return;
    m_services.flags.windowSetUp = true;

    setFullSizeContent(m_window);
    setLabels();
    m_preferences.setUp();
    m_window.setFrameWidth(lectures::ListShownWidth, false);
    showDateHeader(m_services.dates.now());
    m_calendarView.setDelegate(this);

    showStatusItem(m_preferences.integer(Preference::StatusBar) == 1);
    m_dockIcon.startWith(m_preferences.wantsDockIcon());
}

void AppDelegate::setLabels()
{
    m_services.windows.mainOutlets().lblTarvelo->setText(text("TXT_TARVELO"));
    m_dayPopover.btnViewFromPopover()->setText(text("CAPTION_VIEW"));
    m_dayPopover.btnRecordFromPopover()->setText(text("CAPTION_RECORD"));
    m_preferences.setLabels();
}

void AppDelegate::showDateHeader(const QDateTime &moment)
{
    DateHeader::of(moment, m_services.dates).show(*m_services.windows.mainOutlets().lblDateDisplay);
}

void AppDelegate::applicationDidFinishLaunching(QObject *)
{
    if (m_preferences.integer(Preference::ShowWindowAtLogin) == 1)
        m_showFirstWindow.schedule(FirstWindowDelay);
    m_offerLeftLectures.schedule(LeftLecturesDelay);
}

void AppDelegate::applicationWillBecomeActive(QObject *)
{
    // The first time is the launch itself, which leaves a window hidden that is to stay so.
    if (!m_services.flags.firstActivationSeen) {
        m_services.flags.firstActivationSeen = true;
        return;
    }
    if (!isOnScreen(m_window))
        makeKeyAndOrderFront(m_window);
}

bool AppDelegate::applicationShouldHandleReopenHasVisibleWindows(QObject *application, bool)
{
    if (!isOnScreen(m_window)) {
        openAtFront(application);
        makeKeyAndOrderFront(m_window);
    }
    return false;
}

TerminateReply AppDelegate::applicationShouldTerminate(QObject *)
{
    if (!isRecordingNow())
        return TerminateReply::Now;
    m_services.alerts.beginSheet({QStringLiteral("Recording is on process!"), QStringLiteral("Ok"),
                                  QStringLiteral("Please click Done to save or Cancel to exit.")},
                                 m_window, [this](int returnCode) {
                                     alerDeletedDidEndReturnCodeContextInfo(nullptr, returnCode,
                                                                            nullptr);
                                 });
    return TerminateReply::Cancel;
}

void AppDelegate::alerDeletedDidEndReturnCodeContextInfo(QWidget *alertWindow, int returnCode,
                                                         void *)
{
    // Quitting is not tried again: the lecture is finished first.
    if (alertWindow && returnCode == platform::Alerts::DefaultReturn)
        alertWindow->hide();
}

void AppDelegate::calendarDidSelectDate(calendar::CKCalendarView *, const QDateTime &date)
{
    // A cell that never had a date counts as today; a lecture filed under no day would be lost.
    m_dateOfButtonClicked = date.isValid() ? date : m_services.dates.now();
    showDateHeader(m_dateOfButtonClicked);
    m_mediaLinksArrayController.prepareViewForDate(m_dateOfButtonClicked);
    m_window.setFrameWidth(lectures::ListShownWidth, true);
}

void AppDelegate::setRecordingStateForButton(bool recording)
{
    showDateHeader(m_dateOfButtonClicked);

    // The same moment on two different days: never true, and so the image of a day cell never
    // changes here. Both tests are wanted as they are.
    const QDateTime now = m_services.dates.now();
    if (now != m_dateOfButtonClicked)
        return;
    const auto dayOf = [this](const QDateTime &moment) {
        return m_services.dates.format(moment, Dates::Style::Short, Dates::Style::None);
    };
    if (dayOf(now) == dayOf(m_dateOfButtonClicked))
        return;
    if (!m_btnDateButtonForRecording)
        m_btnDateButtonForRecording = m_btnDateButtonClickedNow;
    if (!m_btnDateButtonForRecording)
        return;
    m_btnDateButtonForRecording->setImage(
        imageNamed(recording ? QStringLiteral("recordbox") : QStringLiteral("normalbox")));
    if (!recording)
        m_btnDateButtonForRecording = nullptr;
}

bool AppDelegate::isTarveloViewShowing() const
{
    return m_window.frameWidth() == lectures::ListShownWidth;
}

bool AppDelegate::isRecordingNow() const
{
    return m_mediaLinksArrayController.isRecordingNow();
}

bool AppDelegate::isConfirmDeleteShowing() const
{
    return m_mediaLinksArrayController.isConfirmDeleteShowing();
}

bool AppDelegate::isSupportedIniTunes(QWidget *cell) const
{
    return m_mediaLinksArrayController.isSupportedIniTunes(cell);
}

store::Sqlite *AppDelegate::getTheDB()
{
    return m_mediaLinksArrayController.openDb();
}

void AppDelegate::foldupList()
{
    m_window.setFrameWidth(lectures::FoldedWidth, true);
}

void AppDelegate::delayFoldupList()
{
    m_foldupList.schedule(FoldDelay);
}

void AppDelegate::cancelPreviousFoldingAction()
{
    m_foldupList.cancel();
}

void AppDelegate::onFoldUpList(QObject *)
{
    m_calendarView.deselectDateButtons();
    foldupList();
}

void AppDelegate::onSlideWindow(QObject *)
{
    m_window.setFrameWidth(m_window.frameWidth() - SlideBy, true);
}

void AppDelegate::openAtFront(QObject *)
{
    activateIgnoringOtherApps();
    makeKeyAndOrderFront(m_window);
}

void AppDelegate::onOpenWindow(QObject *)
{
    makeKeyAndOrderFront(m_window);
}

void AppDelegate::perform(Request request)
{
    // Opening a program that runs brings its windows forward before the program is asked.
    activateIgnoringOtherApps();
    applicationShouldHandleReopenHasVisibleWindows(qGuiApp, isOnScreen(m_window));
    if (request == Request::NewLecture)
        run(Command::NewLectureFromOutside);
    else if (request == Request::ShowPreferences)
        run(Command::PreferencesFromOutside);
}

void AppDelegate::terminate(QObject *sender)
{
    if (applicationShouldTerminate(sender) == TerminateReply::Now)
        Q_EMIT terminationAllowed();
}

void AppDelegate::setStatusBar(QAbstractButton *sender)
{
    const int state = sender->isChecked() ? 1 : 0;
    showStatusItem(state == 1);
    m_preferences.store(Preference::StatusBar, state);
}

void AppDelegate::showStatusItem(bool shown)
{
    if (shown)
        m_myStatusItem.create(imageNamed(StatusImage));
    else
        m_myStatusItem.remove();
}

void AppDelegate::addLecture()
{
    // A past day gets no new lectures. Whoever asks for one from a menu while such a day shows, or
    // one that has passed since it was chosen, wants to record now: today comes up first.
    // A lecture that is open keeps its day, also past midnight.
    if (!isRecordingNow() && !m_mediaLinksArrayController.bIsOnRecordingView() &&
        !m_mediaLinksArrayController.isDayOpen()) {
        m_calendarView.setMonthShowing(m_services.dates.now());
        m_calendarView.postInit();
    }
    m_mediaLinksArrayController.onAddItem(nullptr);
}

void AppDelegate::run(Command command)
{
    switch (command) {
    case Command::NewLecture:
        addLecture();
        break;
    case Command::AllList:
        m_mediaLinksArrayController.showList(nullptr);
        break;
    case Command::FoldList:
        onFoldUpList(nullptr);
        break;
    case Command::ShowFolder:
        m_mediaLinksArrayController.browseRecordingFolder(nullptr);
        break;
    case Command::BringLecturesBack:
        m_bringBack.show();
        break;
    case Command::ShowPreferences:
        onShowPreferences(nullptr);
        break;
    case Command::CloseWindow:
        m_window.close();
        break;
    case Command::Open:
        openAtFront(nullptr);
        break;
    case Command::NewLectureFromOutside:
        activateIgnoringOtherApps();
        addLecture();
        break;
    case Command::PreferencesFromOutside:
        openSettingPanel(nullptr);
        break;
    case Command::Quit:
    case Command::QuitFromStatusItem:
        terminate(nullptr);
        break;
    case Command::Count:
        break;
    }
}

void AppDelegate::showHelp(QObject *sender)
{
    m_services.help.show(sender);
}

void AppDelegate::onShowPreferences(QObject *)
{
    m_preferences.onShowPreferences();
}

void AppDelegate::onClosePreferences(QObject *)
{
    m_preferences.onClosePreferences();
}

void AppDelegate::onCloseSettingPanel(QObject *)
{
    m_preferences.onCloseSettingPanel();
}

void AppDelegate::openSettingPanel(QObject *)
{
    m_preferences.openSettingPanel();
}

void AppDelegate::sheetDidEndReturnCodeContextInfo(QWidget *sheet, int returnCode,
                                                   void *contextInfo)
{
    m_preferences.sheetDidEndReturnCodeContextInfo(sheet, returnCode, contextInfo);
}

void AppDelegate::setStatusForHideMainWindowOnStart(QAbstractButton *sender)
{
    m_preferences.setStatusForHideMainWindowOnStart(sender);
}

void AppDelegate::setWindowOnTop(QAbstractButton *sender)
{
    m_preferences.setWindowOnTop(sender);
}

void AppDelegate::onChangeFormatChoice(QButtonGroup *sender)
{
    m_preferences.onChangeFormatChoice(sender);
}

void AppDelegate::setLogoAtMenubarOrDockPanel(QAbstractButton *sender)
{
    m_preferences.setLogoAtMenubarOrDockPanel(sender);
}

} // namespace tarvelo::app
