#include "lectures/LectureWindows.h"

#include "audio/PlaySpeeds.h"
#include "calendar/CKCalendarView.h"
#include "lectures/LectureHeading.h"
#include "lectures/LectureTable.h"
#include "lectures/LectureTableAccess.h"
#include "lectures/LectureViewMargins.h"
#include "lectures/PlayingTitle.h"
#include "lectures/WindowWidths.h"
#include "platform/Dates.h"
#include "platform/Fonts.h"
#include "platform/Frames.h"
#include "platform/HighContrast.h"
#include "platform/Texts.h"
#include "widgets/Accessibility.h"
#include "widgets/Colours.h"
#include "widgets/CustomWindow.h"
#include "widgets/FieldFormatter.h"
#include "widgets/FocusRing.h"
#include "widgets/ImageButton.h"
#include "widgets/LayerView.h"
#include "widgets/LevelIndicator.h"
#include "widgets/LightPalette.h"
#include "widgets/PopOver.h"
#include "widgets/SegmentedControl.h"
#include "widgets/SlidingWindow.h"

#include "ui_EditLectureWindow.h"
#include "ui_LectureView.h"
#include "ui_MainWindow.h"
#include "ui_NewLectureWindow.h"
#include "ui_PlayAudioWindow.h"

#include <QHBoxLayout>

namespace tarvelo::lectures {

using platform::imageNamed;
using widgets::ImageButton;

namespace {

// The canvas: the calendar pane from the left edge, then the list, then the lecture view.
constexpr int CanvasHeight = 540;
const QRectF CalendarFrame(-2, 0, 450, 489);
const QRectF PlayWindowContent(0, 0, 440, 190);

const QString Face = QStringLiteral("Helvetica Neue Medium");

void style(QLabel &label, double size, const QColor &colour)
{
    label.setFont(platform::scaledFontNamed(Face, size));
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, colour);
    label.setPalette(palette);
}

void fill(QWidget &view, const QColor &colour)
{
    QPalette palette = view.palette();
    palette.setColor(QPalette::Window, colour);
    view.setPalette(palette);
    view.setAutoFillBackground(true);
}

// Room between the edge and what is typed.
void giveMargins(QLineEdit &field, QTextEdit &notes)
{
    field.setTextMargins(6, 0, 6, 0);
    notes.document()->setDocumentMargin(8);
}

// Longer texts than this one cannot be typed as a subject.
constexpr qint32 LongestSubject = 255;

void limitSubject(QLineEdit &field)
{
    widgets::CustomTextFieldFormatter formatter;
    formatter.setMaximumLength(LongestSubject);
    widgets::setFormatter(field, formatter);
}

// Room between the edge and a title that may be long, or large.
void giveRoomToTitle(ImageButton &button)
{
    const QSize title = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
    button.setMinimumSize(button.minimumSize().expandedTo(title + QSize(28, 8)));
}

// What the lecture view offers for the titles of the buttons under the notes.
constexpr int WidthOfTitles = 340;

// Titles that are too long to stand beside each other get two rows: what slides above what ends.
void breakLongRow(const Ui::LectureView &ui)
{
    const int sliding =
        std::max(ui.btnSlidetoView->minimumWidth(), ui.btnSlideToListView->minimumWidth());
    const int ending =
        ui.btnCloseLectureView->minimumWidth() + ui.btnDoneEditLecture->minimumWidth();
    if (sliding + ending <= WidthOfTitles)
        return;
    auto *above = new QHBoxLayout;
    above->addWidget(ui.btnSlidetoView);
    above->addWidget(ui.btnSlideToListView);
    above->addStretch();
    ui.lectureViewLayout->insertLayout(ui.lectureViewLayout->count() - 1, above);
}

// A hidden control keeps its room, so that nothing moves when it comes back.
void keepRoom(QWidget &view)
{
    QSizePolicy policy = view.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    view.setSizePolicy(policy);
}

// A text over a row of buttons.
std::unique_ptr<widgets::PopOver> makePopover(const char *labelName)
{
    auto content = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(content.get());
    layout->setContentsMargins(18, 16, 18, 14);
    layout->setSpacing(12);
    auto *label = new QLabel(content.get());
    label->setObjectName(QString::fromLatin1(labelName));
    label->setTextFormat(Qt::PlainText);
    layout->addWidget(label);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    layout->addLayout(buttons);
    auto popover = std::make_unique<widgets::PopOver>(std::move(content));
    widgets::setLightPalette(*popover);
    style(*label, 14, widgets::colours().ink);
    return popover;
}

ImageButton *addButton(QWidget &popoverContent, const char *name, const char *textKey)
{
    auto *button = new ImageButton(&popoverContent);
    button->setObjectName(QString::fromLatin1(name));
    button->setText(platform::text(textKey));
    button->setFont(platform::scaledFontNamed(Face, 14));
    // Return presses the button that has the keyboard.
    button->setAutoDefault(true);
    popoverContent.layout()->itemAt(1)->layout()->addWidget(button);
    return button;
}

calendar::CKCalendarView *makeCalendar(platform::Dates &dates, QWidget &window)
{
    auto *view = new calendar::CKCalendarView(dates, CalendarFrame, &window);
    view->setObjectName(QStringLiteral("calendarView"));
    view->setAccessibleName(platform::text("CALENDAR"));
    platform::setFrame(*view, platform::frameOf(*view));
    view->lower();
    return view;
}

// Nothing shows it yet; it waits beside the list.
QWidget *makeNewNoteView(QWidget &list)
{
    auto *view = new QWidget(&list);
    view->setObjectName(QStringLiteral("newNoteView"));
    view->hide();
    return view;
}

audio::RecordingOutlets recordingOutletsOf(QWidget *window, const Ui::NewLectureWindow &ui)
{
    return {window,
            ui.btnStartRecord,
            ui.btnStopRecord,
            ui.btnPauseResumeRecording,
            ui.btnTimeTag,
            ui.btnStartStopRecording,
            ui.audioLevelMeter,
            ui.imgLevelIndicatorBG,
            ui.lblRecordingDuration,
            ui.sliderPlayProgress2,
            ui.lblElapsedTimeTemp,
            ui.lblRemainingTimeTemp,
            ui.txtView,
            ui.lblRecordingWarning};
}

// As they stand before a take.
void dressRecordingControls(const audio::RecordingOutlets &controls)
{
    controls.btnStartRecord->setImage(imageNamed(QStringLiteral("record")));
    controls.btnStartRecord->setAlternateImage(imageNamed(QStringLiteral("recordH")));
    controls.btnPauseResumeRecording->setLook(QStringLiteral("BtnPause"),
                                              QStringLiteral("BtnPauseH"), QStringLiteral("Pause"));
    controls.btnStopRecord->setLook(QStringLiteral("stop"), QStringLiteral("stopH"),
                                    QStringLiteral("Stop"));
    controls.btnTimeTag->setImage(imageNamed(QStringLiteral("timetag")));
    keepRoom(*controls.btnTimeTag);
    controls.btnTimeTag->hide();
    controls.btnPauseResumeRecording->hide();
    controls.sliderPlayProgress2->hide();
    controls.lblElapsedTimeTemp->hide();
    controls.lblRemainingTimeTemp->hide();
}

} // namespace

LectureWindows::LectureWindows(platform::Dates &dates)
{
    platform::readContrast();
    widgets::installAccessibility();
    installTableAccessibility();
    buildMainWindow(dates);
    buildLectureView();
    buildNewLectureWindow();
    buildEditLectureWindow();
    buildPlayAudioWindow();
    buildPopovers();
    for (QWidget *view : std::initializer_list<QWidget *>{
             m_newLecture.txtSubjectForNewNote, m_editLecture.txtSubjectForEdit,
             m_lectureView.tSubjectName, m_newLecture.txtView, m_editLecture.txtViewNotesForEdit,
             m_lectureView.tViewNoteForEdit, m_playAudio.txtSubjectName,
             m_lecturePlayer.sliderPlayProgress, m_editPlayer.sliderEditProgress,
             m_recording.sliderPlayProgress2})
        widgets::showFocusRing(*view);
}

LectureWindows::~LectureWindows() = default;

audio::ClockOutlets LectureWindows::clockOutlets() const
{
    return {m_newLecture.textTime, m_editLecture.textEditTime, m_lectureView.tEditTime,
            m_newLecture.textDate, m_editLecture.textEditDate, m_lectureView.tEditDate};
}

void LectureWindows::buildMainWindow(platform::Dates &dates)
{
    m_mainWindow = std::make_unique<widgets::SlidingWindow>();
    widgets::setLightPalette(*m_mainWindow);
    Ui::MainWindow ui;
    ui.setupUi(m_mainWindow.get());
    m_mainWindow->setObjectName(QStringLiteral("mainWindow"));
    m_mainWindow->setFrameSize(ListShownWidth, CanvasHeight);

    auto *calendarView = makeCalendar(dates, *m_mainWindow);
    auto *newNoteView = makeNewNoteView(*ui.tableListView);
    m_main = {m_mainWindow.get(),   calendarView,     ui.tblRecordSubjectList, ui.tableListView,
              ui.scrollTableView,   newNoteView,      ui.editPlayView,         ui.weekDayView,
              ui.topHorizontalLine, ui.lblTarvelo,    ui.lblDateDisplay,       ui.btnMainMenu,
              ui.btnAddItem,        ui.btnDeleteItem, ui.btnAddNewLecture2,    ui.btnShowAllList,
              ui.btnFoldUpList};

    m_mainWindow->setPanes({
        {calendarView, [calendarView] { return calendarView->tabStop(); }},
        {ui.tableListView, [table = ui.tblRecordSubjectList] { return table; }},
        {ui.editPlayView, [this] { return m_lectureView.tSubjectName; }},
    });
    style(*ui.lblTarvelo, 18, widgets::colours().ink);
    style(*ui.lblDateDisplay, 22, widgets::colours().ink);
    // Their neighbours, the ordinal of the date and the calendar, have one size on every desktop.
    ui.lblTarvelo->setFont(platform::fontNamed(Face, 18));
    ui.lblDateDisplay->setFont(platform::fontNamed(Face, 22));
    style(*ui.lblEmptyDayTitle, 17, widgets::colours().ink);
    style(*ui.lblEmptyDayHint, 13, widgets::colours().faint);
    fill(*ui.topHorizontalLine, widgets::colours().hairline);
    fill(*ui.paneLine, widgets::colours().hairline);
    fill(*ui.lectureLine, widgets::colours().hairline);
    fill(*ui.listTopLine, widgets::colours().hairline);
    fill(*ui.listBottomLine, widgets::colours().hairline);
    fill(*ui.editPlayView, Qt::white);
    ui.imgEmptyDay->setPixmap(imageNamed(QStringLiteral("emptyDay")).icon().pixmap(96, 96));
    ui.btnMainMenu->setImage(imageNamed(QStringLiteral("menu")));
    ui.btnAddItem->setImage(imageNamed(QStringLiteral("add")));
    ui.btnShowAllList->setImage(imageNamed(QStringLiteral("list")));
    ui.btnFoldUpList->setImage(imageNamed(QStringLiteral("slide-left")));
    ui.btnDeleteItem->hide();
}

void LectureWindows::buildLectureView()
{
    Ui::LectureView ui;
    ui.setupUi(m_main.editPlayView);
    m_main.editPlayView->setObjectName(QStringLiteral("editPlayView"));
    m_lectureView = {ui.tSubjectName,       ui.tViewNoteForEdit,   ui.lblNotesForView,
                     ui.tEditTime,          ui.tEditDate,          ui.btnSlidetoView,
                     ui.btnSlideToListView, ui.btnDoneEditLecture, ui.btnCloseLectureView};
    m_editPlayer = {ui.bPlay, ui.bPause, ui.sliderEditProgress, ui.tElapsedTime, ui.tRemainingTime};
    limitSubject(*ui.tSubjectName);
    giveMargins(*ui.tSubjectName, *ui.tViewNoteForEdit);
    for (QLabel *label :
         {ui.lblNotesForView, ui.tEditTime, ui.tEditDate, ui.tElapsedTime, ui.tRemainingTime})
        style(*label, 13, widgets::colours().faint);
    fill(*ui.editPlayerPanel, widgets::colours().panel);
    ui.bPlay->setImage(imageNamed(QStringLiteral("play")));
    ui.bPlay->setAlternateImage(imageNamed(QStringLiteral("playH")));
    ui.bPause->setImage(imageNamed(QStringLiteral("pause")));
    ui.bPause->setAlternateImage(imageNamed(QStringLiteral("pauseH")));
    // A heading until someone wants to change it.
    ui.tSubjectName->setFont(platform::scaledFontNamed(Face, 18));
    ui.tSubjectName->setEditable(false);
    ui.tSubjectName->setBordered(false);
    ui.tSubjectName->setDrawsBackground(false);
    for (ImageButton *button :
         {ui.btnSlidetoView, ui.btnSlideToListView, ui.btnCloseLectureView, ui.btnDoneEditLecture})
        giveRoomToTitle(*button);
    breakLongRow(ui);
    keepContentInSight(*m_main.editPlayView);
    putHeadingOver(*m_main.editPlayView);
}

void LectureWindows::buildNewLectureWindow()
{
    m_newNoteWindow = std::make_unique<QWidget>(nullptr, Qt::Window);
    widgets::setLightPalette(*m_newNoteWindow);
    Ui::NewLectureWindow ui;
    ui.setupUi(m_newNoteWindow.get());
    for (ImageButton *button :
         {ui.BtnDoneOrClose, ui.btnCloseNewLecture, ui.BtnCancelAddNewLecture})
        giveRoomToTitle(*button);
    m_newLecture = {m_newNoteWindow.get(),
                    ui.txtSubjectForNewNote,
                    ui.txtView,
                    ui.lblNotesForAdd,
                    ui.textTime,
                    ui.textDate,
                    ui.BtnDoneOrClose,
                    ui.btnCloseNewLecture,
                    ui.BtnCancelAddNewLecture,
                    ui.recordAnimationView};
    m_recording = recordingOutletsOf(m_newNoteWindow.get(), ui);

    for (QLabel *label : {ui.textDate, ui.textTime, ui.lblNotesForAdd, ui.lblElapsedTimeTemp,
                          ui.lblRemainingTimeTemp})
        style(*label, 13, widgets::colours().faint);
    style(*ui.lblRecordingDuration, 24, widgets::colours().ink);
    ui.lblRecordingDuration->setFont(platform::fontNamed(Face, 24));
    style(*ui.lblRecordingWarning, 13, widgets::colours().warning);
    keepRoom(*ui.lblRecordingWarning);
    ui.lblRecordingWarning->hide();
    ui.txtSubjectForNewNote->setFont(platform::scaledFontNamed(Face, 16));
    limitSubject(*ui.txtSubjectForNewNote);
    giveMargins(*ui.txtSubjectForNewNote, *ui.txtView);
    fill(*ui.recordingPanel, widgets::colours().panel);
    ui.imgLevelIndicatorBG->setImage(imageNamed(QStringLiteral("levelBackground")));
    dressRecordingControls(m_recording);
    ui.BtnDoneOrClose->setTag(NewLectureOutlets::TagDone);
    ui.btnCloseNewLecture->setTag(NewLectureOutlets::TagClose);
}

void LectureWindows::buildEditLectureWindow()
{
    m_windowEditLecture = std::make_unique<QWidget>(nullptr, Qt::Window);
    widgets::setLightPalette(*m_windowEditLecture);
    Ui::EditLectureWindow ui;
    ui.setupUi(m_windowEditLecture.get());
    limitSubject(*ui.txtSubjectForEdit);
    giveMargins(*ui.txtSubjectForEdit, *ui.txtViewNotesForEdit);
    m_editLecture = {m_windowEditLecture.get(), ui.txtSubjectForEdit, ui.txtViewNotesForEdit,
                     ui.textEditTime,           ui.textEditDate,      ui.btnDoneEdit,
                     ui.btnCancelEdit};
    ui.txtSubjectForEdit->setFont(platform::scaledFontNamed(Face, 16));
    for (QLabel *label : {ui.textEditTime, ui.textEditDate, ui.lblNotesForEdit})
        style(*label, 13, widgets::colours().faint);
}

void LectureWindows::buildPlayAudioWindow()
{
    using widgets::CustomWindow;
    m_playAudioWindow = std::make_unique<CustomWindow>(PlayWindowContent, CustomWindow::Borderless,
                                                       CustomWindow::Buffered, false);
    widgets::setLightPalette(*m_playAudioWindow);
    Ui::PlayAudioWindow ui;
    ui.setupUi(m_playAudioWindow.get());
    m_playAudio = {m_playAudioWindow.get(), ui.txtSubjectName, ui.txtCourseName,
                   ui.txtFieldForAudio, ui.btnClosePlayAudio};
    m_lecturePlayer = {m_playAudioWindow.get(), ui.txtSubjectName,     ui.btnPlayLecture,
                       ui.btnPauseLecture,      ui.sliderPlayProgress, ui.txtElapsedTime,
                       ui.txtRemainingTime,     ui.segPlaySpeed};

    ui.txtSubjectName->setFont(platform::scaledFontNamed(Face, 18));
    ui.txtSubjectName->setMaxLength(std::numeric_limits<int>::max());
    keepTitleInSight(*ui.txtSubjectName);
    ui.btnClosePlayAudio->setImage(imageNamed(QStringLiteral("close")));
    ui.btnClosePlayAudio->setToolTip(QStringLiteral("%1 (%2)").arg(
        platform::text("BUTTON_CLOSE"),
        QKeySequence(Qt::Key_Escape).toString(QKeySequence::NativeText)));
    for (QLabel *label : {ui.txtElapsedTime, ui.txtRemainingTime, ui.lblSpeed})
        style(*label, 13, widgets::colours().faint);
    ui.btnPlayLecture->setImage(imageNamed(QStringLiteral("play")));
    ui.btnPlayLecture->setAlternateImage(imageNamed(QStringLiteral("playH")));
    ui.btnPlayLecture->setTag(audio::LecturePlayerOutlets::TagPlay);
    ui.btnPauseLecture->setImage(imageNamed(QStringLiteral("pause")));
    ui.btnPauseLecture->setAlternateImage(imageNamed(QStringLiteral("pauseH")));
    ui.btnPauseLecture->setTag(audio::LecturePlayerOutlets::TagPause);
    for (const audio::PlaySpeed &speed : audio::PlaySpeeds)
        ui.segPlaySpeed->addSegment(QString::fromUtf8(speed.label), platform::text(speed.nameKey));
    ui.segPlaySpeed->setSelectedSegment(audio::RecordedSpeed);
    // The speeds came into being last, and are not what comes last.
    QWidget::setTabOrder(ui.segPlaySpeed->findChildren<QAbstractButton *>().constLast(),
                         ui.btnClosePlayAudio);
}

void LectureWindows::buildPopovers()
{
    m_popoverConfirmRecordDelete = makePopover("lblRecordDeleteConfirmation");
    m_popoverAudioConfirmClose = makePopover("lblPopoverNoAudio");
    QWidget &confirmation = m_popoverConfirmRecordDelete->content();
    QWidget &noAudio = m_popoverAudioConfirmClose->content();
    m_popovers = {m_popoverAudioConfirmClose.get(),
                  m_popoverConfirmRecordDelete.get(),
                  confirmation.findChild<QLabel *>(),
                  noAudio.findChild<QLabel *>(),
                  addButton(confirmation, "btnConfirmNo", "BUTTON_NO"),
                  addButton(confirmation, "btnConfirmYes", "BUTTON_YES"),
                  addButton(noAudio, "btnClosePopover", "BUTTON_CLOSE")};
}

} // namespace tarvelo::lectures
