#include "lectures/MainWindow.h"

#include "calendar/CKCalendarView.h"
#include "lectures/Dressing.h"
#include "lectures/WindowWidths.h"
#include "platform/Frames.h"
#include "platform/Images.h"
#include "platform/Texts.h"
#include "widgets/Colours.h"
#include "widgets/Faces.h"
#include "widgets/Hairline.h"
#include "widgets/ImageButton.h"
#include "widgets/LightPalette.h"
#include "widgets/SlidingWindow.h"

#include "ui_MainWindow.h"

#include <QRectF>
#include <QWidget>

namespace tarvelo::lectures {

using platform::imageNamed;

namespace {

// The canvas: the calendar pane from the left edge, then the list, then the lecture view.
constexpr int CanvasHeight = 540;
const QRectF CalendarFrame(-2, 0, 450, 489);

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

void dressTexts(const Ui::MainWindow &ui)
{
    style(*ui.lblTarvelo, 18, widgets::colours().ink);
    style(*ui.lblDateDisplay, 22, widgets::colours().ink);
    // Their neighbours, the ordinal of the date and the calendar, have one size on every desktop.
    ui.lblTarvelo->setFont(widgets::fixedFace(18));
    ui.lblDateDisplay->setFont(widgets::fixedFace(22));
    style(*ui.lblEmptyDayTitle, 17, widgets::colours().ink);
    style(*ui.lblEmptyDayHint, 13, widgets::colours().faint);
}

void dressImages(const Ui::MainWindow &ui)
{
    ui.imgEmptyDay->setPixmap(imageNamed(QStringLiteral("emptyDay"))
                                  .pixmap({96, 96}, ui.imgEmptyDay->devicePixelRatioF()));
    ui.btnMainMenu->setImage(imageNamed(QStringLiteral("menu")));
    ui.btnAddItem->setImage(imageNamed(QStringLiteral("add")));
    ui.btnShowAllList->setImage(imageNamed(QStringLiteral("list")));
    ui.btnFoldUpList->setImage(imageNamed(QStringLiteral("slide-left")));
}

} // namespace

MainWindow buildMainWindow(platform::Dates &dates)
{
    MainWindow built;
    built.window = std::make_unique<widgets::SlidingWindow>();
    widgets::setLightPalette(*built.window);
    Ui::MainWindow ui;
    ui.setupUi(built.window.get());
    built.window->setObjectName(QStringLiteral("mainWindow"));
    built.window->setFrameSize(ListShownWidth, CanvasHeight);

    auto *calendarView = makeCalendar(dates, *built.window);
    auto *newNoteView = makeNewNoteView(*ui.tableListView);
    built.outlets = {built.window.get(), calendarView,       ui.tblRecordSubjectList,
                     ui.tableListView,   ui.scrollTableView, newNoteView,
                     ui.editPlayView,    ui.weekDayView,     ui.topHorizontalLine,
                     ui.lblTarvelo,      ui.lblDateDisplay,  ui.btnMainMenu,
                     ui.btnAddItem,      ui.btnDeleteItem,   ui.btnAddNewLecture2,
                     ui.btnShowAllList,  ui.btnFoldUpList};

    dressTexts(ui);
    fill(*ui.editPlayView, Qt::white);
    dressImages(ui);
    ui.btnDeleteItem->hide();
    return built;
}

} // namespace tarvelo::lectures
