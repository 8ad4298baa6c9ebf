#include "calendar/CKCalendarView.h"

#include "calendar/CalendarDelegate.h"
#include "calendar/CalendarInput.h"
#include "calendar/DateButton.h"
#include "platform/Dates.h"
#include "platform/Frames.h"
#include "platform/Texts.h"
#include "widgets/CustomButton.h"
#include "widgets/GradientView.h"
#include "widgets/ImageView.h"

#include <QLabel>
#include <QTextBoundaryFinder>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <utility>

namespace tarvelo::calendar {

using platform::imageNamed;
using widgets::CustomButton;
using widgets::GradientView;
using widgets::ImageView;
using widgets::LayerView;

namespace {

constexpr int Sunday = 1;
constexpr QRectF StandardFrame(0, 0, 320, 320);
constexpr std::chrono::milliseconds FirstSelectionDelay{500};
// What the mouse lights up around the drawing "settocurrent".
constexpr QRectF CurrentMonthPlate(6, 5, 22, 22);

template <typename View>
View *named(View *view, const char *name)
{
    view->setObjectName(QLatin1String(name));
    return view;
}

// One letter as a reader sees it, which can be more than one code unit.
QString firstLetter(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    const qsizetype end = finder.toNextBoundary();
    return end < 0 ? text : text.left(end);
}

} // namespace

CKCalendarView::CKCalendarView(platform::Dates &dates, QWidget *parent)
    : CKCalendarView(dates, Sunday, parent)
{
}

CKCalendarView::CKCalendarView(platform::Dates &dates, int startDay, QWidget *parent)
    : CKCalendarView(dates, startDay, StandardFrame, parent)
{
}

CKCalendarView::CKCalendarView(platform::Dates &dates, const QRectF &frame, QWidget *parent)
    : CKCalendarView(dates, 0, frame, parent)
{
}

CKCalendarView::CKCalendarView(platform::Dates &dates, int startDay, const QRectF &frame,
                               QWidget *parent)
    : LayerView(parent)
    , m_dates(dates)
    , m_days(dates, startDay)
    , m_input(std::make_unique<CalendarInput>())
    , m_postInit(dates.clock(), [this] { postInit(); })
{
    platform::setFrame(*this, frame);
    m_cellWidth = 40;
    build();
    m_postInit.schedule(FirstSelectionDelay);
}

CKCalendarView::~CKCalendarView() = default;

// In the order in which the parts lie on one another.
void CKCalendarView::build()
{
    setLayer({6, 1, Qt::black, {2, 2}, 2, 0.4});
    connectInput();
    m_highlight = named(new LayerView(this), "highlight");
    m_highlight->setLayer({.cornerRadius = 6});
    m_dateButtonsBG = named(new ImageView(this), "dateButtonsBG");
    m_dateButtonsBG->setGeometry(0, 0, 0, 0);
    m_titleLabel = makeTextField(QStringLiteral("titleLabel"), this);
    buildArrows();
    buildCurrentMonthButtons();
    m_calendarContainer = named(new LayerView(this), "calendarContainer");
    m_calendarContainer->setLayer({.cornerRadius = 4, .borderWidth = 1, .borderColor = Qt::gray});
    m_input->watch(*m_calendarContainer);
    m_daysHeader = named(new GradientView(m_calendarContainer), "daysHeader");
    m_input->watch(*m_daysHeader);
    buildDayCells();
    m_imgWeekDaysBG = named(new ImageView(m_calendarContainer), "imgWeekDaysBG");
    // As high as the header, which has no height before the first layout.
    m_weekDaysBGFrame = {0, 347, 7 * m_cellWidth, 0};
    m_imgWeekDaysBG->setImage(imageNamed(QStringLiteral("weekHeader")));
    buildWeekdayLetters();
    setMonthShowing(m_dates.now());
    setDefaultStyle();
    layoutSubviews();
}

void CKCalendarView::connectInput()
{
    m_input->watch(*this);
    connect(m_input.get(), &CalendarInput::previousMonthWanted, this,
            &CKCalendarView::moveCalendarToPreviousMonth);
    connect(m_input.get(), &CalendarInput::nextMonthWanted, this,
            &CKCalendarView::moveCalendarToNextMonth);
    connect(m_input.get(), &CalendarInput::todayWanted, this, &CKCalendarView::goToToday);
}

void CKCalendarView::buildArrows()
{
    m_prevButton =
        makeNavigationButton("prevButton", "arrowleft", platform::text("PREVIOUS_MONTH"));
    m_prevButton->setAction({"moveCalendarToPreviousMonth",
                             unlessRefused([this](QWidget *) { moveCalendarToPreviousMonth(); })});
    m_prevButton->setImageScaling(CustomButton::ImageScaling::AxesIndependently);

    m_nextButton = makeNavigationButton("nextButton", "arrowright", platform::text("NEXT_MONTH"));
    m_nextButton->setAction({"moveCalendarToNextMonth",
                             unlessRefused([this](QWidget *) { moveCalendarToNextMonth(); })});
    m_nextButton->setImageScaling(CustomButton::ImageScaling::AxesIndependently);
}

void CKCalendarView::buildCurrentMonthButtons()
{
    const QString name = platform::text("CURRENT_MONTH");
    m_proceedToCurrentMonthButton =
        makeNavigationButton("proceedToCurrentMonthButton", "settocurrent", name);
    m_proceedToCurrentMonthButton->setAction(
        {"doProceedToCurrentMonth",
         unlessRefused([this](QWidget *sender) { doProceedToCurrentMonth(sender); })});
    m_proceedToCurrentMonthButton->setToolTip(name);

    m_backToCurrentMonthButton =
        makeNavigationButton("backToCurrentMonthButton", "settocurrent", name);
    m_backToCurrentMonthButton->setAction(
        {"comeBackToCurrentMonth",
         unlessRefused([this](QWidget *sender) { comeBackToCurrentMonth(sender); })});
    m_backToCurrentMonthButton->setToolTip(name);

    m_proceedToCurrentMonthButton->setPlate(CurrentMonthPlate);
    m_backToCurrentMonthButton->setPlate(CurrentMonthPlate);

    // They stand partly on the arrows, which have to be whole for the mouse.
    m_prevButton->raise();
    m_nextButton->raise();
}

QLabel *CKCalendarView::makeTextField(const QString &name, QWidget *parent)
{
    auto *field = new QLabel(parent);
    field->setObjectName(name);
    field->setTextFormat(Qt::PlainText);
    // A field is higher than its text, which stands at its top.
    field->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_input->watch(*field);
    return field;
}

CustomButton *CKCalendarView::makeNavigationButton(const char *name, const char *image,
                                                   const QString &accessibleName)
{
    auto *button = named(new CustomButton(this), name);
    button->setImage(imageNamed(QLatin1String(image)));
    button->setNormalImage(QLatin1String(image));
    button->setAccessibleName(accessibleName);
    m_input->watch(*button);
    return button;
}

// A press can also come without mouse or key, from a screen reader.
std::function<void(QWidget *)>
CKCalendarView::unlessRefused(std::function<void(QWidget *)> press) const
{
    return [this, run = std::move(press)](QWidget *sender) {
        if (!m_input->refuses())
            run(sender);
    };
}

void CKCalendarView::buildDayCells()
{
    for (int index = 0; index < CellCount; ++index) {
        auto *cell = new DateButton(m_dates, m_calendarContainer);
        cell->setObjectName(QStringLiteral("dateButton%1").arg(index));
        cell->setText(QString::number(index));
        cell->setAction({"dateButtonPressed",
                         unlessRefused([this, cell](QWidget *) { dateButtonPressed(cell); })});
        cell->setFocusPolicy(Qt::ClickFocus);
        cell->hide();
        m_input->watchDay(*cell);
        m_dateButtons.at(static_cast<size_t>(index)) = cell;
    }
}

void CKCalendarView::buildWeekdayLetters()
{
    const QStringList names = getDaysOfTheWeek();
    for (const QString &name : names) {
        QLabel *letter = makeTextField(
            QStringLiteral("dayOfWeekLabel%1").arg(m_dayOfWeekLabels.size()), m_calendarContainer);
        letter->setText(firstLetter(name.toUpper()));
        letter->setAccessibleName(name);
        m_dayOfWeekLabels.append(letter);
    }
}

void CKCalendarView::setDelegate(CalendarDelegate *delegate)
{
    m_delegate = delegate;
    m_input->setDelegate(delegate);
    for (DateButton *cell : m_dateButtons)
        cell->setDelegate(delegate);
}

void CKCalendarView::postInit()
{
    pressTodaysCell();
    for (CustomButton *button :
         {m_prevButton, m_nextButton, m_proceedToCurrentMonthButton, m_backToCurrentMonthButton})
        button->setMouseReady();
}

// A cell that never had a date counts as today, since no date is now.
DateButton *CKCalendarView::todaysCell() const
{
    const QDateTime today = dateWithOutTime({});
    const auto found =
        std::find_if(m_dateButtons.begin(), m_dateButtons.end(),
                     [&](DateButton *cell) { return dateWithOutTime(cell->date()) == today; });
    return found == m_dateButtons.end() ? nullptr : *found;
}

void CKCalendarView::pressTodaysCell()
{
    if (DateButton *cell = todaysCell())
        dateButtonPressed(cell);
}

void CKCalendarView::setMonthShowing(const QDateTime &date)
{
    m_days.setMonthShowing(date);
    m_titleLabel->setText(m_days.monthTitle(monthShowing()));
    layoutSubviews();
}

void CKCalendarView::dateButtonPressed(DateButton *cell)
{
    m_selectedDate = cell->date();
    if (m_delegate)
        m_delegate->calendarDidSelectDate(this, m_selectedDate);
    layoutSubviews();
    cell->showBox(dateWithOutTime(cell->date()) == dateWithOutTime({}));
    if (s_selectedCell) {
        s_selectedCell->setIsSelected(false);
        s_selectedCell->repaint();
    }
    cell->setIsSelected(true);
    s_selectedCell = cell;
    m_input->setTabStop(*cell);
}

DateButton *CKCalendarView::tabStop() const
{
    return m_input->tabStop();
}

void CKCalendarView::deselectDateButtons()
{
    if (!s_selectedCell)
        return;
    s_selectedCell->setIsSelected(false);
    s_selectedCell->repaint();
    s_selectedCell.clear();
}

bool CKCalendarView::isTarveloViewShowing() const
{
    return m_delegate && m_delegate->isTarveloViewShowing();
}

void CKCalendarView::moveCalendarToNextMonth()
{
    setMonthShowing(m_days.nextMonth());
    if (isTarveloViewShowing())
        dateButtonPressed(m_dateButtons.front());
}

// The last day by the user's calendar: in a calendar whose months are not the Gregorian ones the
// cell pressed may be another than the last one shown.
void CKCalendarView::moveCalendarToPreviousMonth()
{
    setMonthShowing(m_days.previousMonth());
    const auto days = static_cast<size_t>(m_days.numberOfDaysInMonthShowing());
    if (isTarveloViewShowing())
        dateButtonPressed(m_dateButtons.at(days - 1));
}

void CKCalendarView::doProceedToCurrentMonth(QWidget *sender)
{
    showCurrentMonth(sender);
}

void CKCalendarView::comeBackToCurrentMonth(QWidget *sender)
{
    showCurrentMonth(sender);
}

void CKCalendarView::showCurrentMonth(QWidget *sender)
{
    setMonthShowing(m_days.todayNormalised());
    sender->hide();
    if (isTarveloViewShowing())
        pressTodaysCell();
}

// In another month by the button that leads to this one, which then also chooses the day.
void CKCalendarView::goToToday()
{
    for (CustomButton *button : {m_proceedToCurrentMonthButton, m_backToCurrentMonthButton}) {
        if (button->isVisibleTo(this))
            button->click();
    }
    if (DateButton *cell = todaysCell())
        cell->setFocus(Qt::TabFocusReason);
}

QWidget *CKCalendarView::hitTest(const QPoint &point)
{
    if (m_input->refuses() || !rect().contains(point))
        return nullptr;
    QWidget *child = childAt(point);
    return child ? child : this;
}

} // namespace tarvelo::calendar
