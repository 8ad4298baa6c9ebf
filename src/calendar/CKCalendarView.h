#pragma once

#include "calendar/CalendarDates.h"
#include "calendar/DateButton.h" // IWYU pragma: keep: a guarded pointer needs the whole class
#include "platform/DelayedCall.h"
#include "platform/Images.h"
#include "widgets/LayerView.h"

#include <QColor>
#include <QDateTime>
#include <QFont>
#include <QPointer>
#include <QRectF>
#include <QStringList>

#include <array>
#include <functional>
#include <memory>
#include <optional>

class QLabel;
class QPoint;
class QWidget;

namespace tarvelo::platform {
class Dates;
}
namespace tarvelo::widgets {
class CustomButton;
class GradientView;
class ImageView;
} // namespace tarvelo::widgets

namespace tarvelo::calendar {

class CalendarDelegate;
class CalendarInput;

// The month calendar: title, arrows, weekday letters, and a cell for every day of one month. Its
// frames have their origin at the bottom left, and it sets its own height. While a recording runs
// it does not answer to the mouse, nor does a key press a day.
//
// Contents: creation - months (CKCalendarView.cpp) - layout (CKCalendarViewLayout.cpp) - looks
// (CKCalendarViewStyle.cpp) - mouse and keys (CalendarInput) - date arithmetic (CalendarDates).
class CKCalendarView final : public widgets::LayerView
{
    Q_OBJECT

public:
    // Six rows of seven and one: no month needs more.
    static constexpr int CellCount = 43;
    using DateButtons = std::array<DateButton *, CellCount>;

    // Begins its week on Sunday. `dates` must outlive the view.
    explicit CKCalendarView(platform::Dates &dates, QWidget *parent = nullptr);
    CKCalendarView(platform::Dates &dates, int startDay, QWidget *parent);
    CKCalendarView(platform::Dates &dates, int startDay, const QRectF &frame, QWidget *parent);
    // The week begins as in the user's locale: the start day stays 0.
    CKCalendarView(platform::Dates &dates, const QRectF &frame, QWidget *parent);
    ~CKCalendarView() override;

    CalendarDelegate *delegate() const { return m_delegate; }
    const QDateTime &monthShowing() const { return m_days.monthShowing(); }
    const QDateTime &selectedDate() const { return m_selectedDate; }
    const DateButtons &dateButtons() const { return m_dateButtons; }
    // Of the whole process, so it may be a cell of another calendar; none at first.
    static DateButton *selectedCell() { return s_selectedCell; }
    double cellWidth() const { return m_cellWidth; }
    qint32 version() const { return m_version; }
    bool justForFixing() const { return m_days.justForFixing(); }

    // Not owned, and to outlive the view or be set to null. Without one nothing is asked, no
    // database is touched, and day presses are told to nobody.
    void setDelegate(CalendarDelegate *delegate);
    // Presses today's cell. Happens by itself half a second after the view was made.
    void postInit();
    // Places everything and gives every cell its day anew, with the marks of its lectures.
    void layoutSubviews();
    // Days of a month are to be asked for from its first on.
    QRectF calculateDayCellFrame(const QDateTime &date);
    // Any moment of the month.
    void setMonthShowing(const QDateTime &date);
    void deselectDateButtons();
    // The view under the point, in this view's own coordinates as Qt counts them (origin top
    // left); none while a recording runs, nor outside.
    QWidget *hitTest(const QPoint &point);
    static std::optional<QColor> getCGColorFromNSColor(const QColor &color);

    void dateButtonPressed(DateButton *cell);
    void moveCalendarToPreviousMonth();
    void moveCalendarToNextMonth();
    void doProceedToCurrentMonth(QWidget *sender);
    void comeBackToCurrentMonth(QWidget *sender);
    // The day to which the keyboard comes; none before the first day was chosen.
    DateButton *tabStop() const;
    // Brings the keyboard to today, in the present month.
    void goToToday();

    // Date arithmetic, see CalendarDates.
    int calendarStartDay() const { return m_days.calendarStartDay(); }
    void setCalendarStartDay(int day) { m_days.setCalendarStartDay(day); }
    QDateTime dateWithOutTime(const QDateTime &date) const { return m_days.dateWithOutTime(date); }
    QDateTime firstDayOfMonthContainingDate(const QDateTime &date) const
    {
        return m_days.firstDayOfMonthContainingDate(date);
    }
    int dayOfWeekForDate(const QDateTime &date) const { return m_days.dayOfWeekForDate(date); }
    int weekNumberInMonthForDate(const QDateTime &date) const
    {
        return m_days.weekNumberInMonthForDate(date);
    }
    int numberOfWeeksInMonthContainingDate(const QDateTime &date) const
    {
        return m_days.numberOfWeeksInMonthContainingDate(date);
    }
    bool dateIsInMonthShowing(const QDateTime &date) const
    {
        return m_days.dateIsInMonthShowing(date);
    }
    bool dateIsToday(const QDateTime &date) const { return m_days.dateIsToday(date); }
    QDateTime nextDay(const QDateTime &date) const { return m_days.nextDay(date); }
    QStringList getDaysOfTheWeek() const { return m_days.getDaysOfTheWeek(); }

    // Looks.
    void setDefaultStyle();
    QFont titleFont() const;
    void setTitleFont(const QFont &font);
    QColor titleColor() const;
    void setTitleColor(const QColor &color);
    // The arrows' images are set anew; the colour changes nothing, which is wanted.
    void setButtonColor(const QColor &color);
    static platform::Image imageNamedWithColor(const QString &name, const QColor &color);
    void setInnerBorderColor(const QColor &color);
    // Absent when there are no weekday letters.
    std::optional<QFont> dayOfWeekFont() const;
    void setDayOfWeekFont(const QFont &font);
    QColor dayOfWeekTextColor() const;
    void setDayOfWeekTextColor(const QColor &color);
    void setDayOfWeekBottomColorTopColor(const QColor &bottomColor, const QColor &topColor);
    QFont dateFont() const;
    void setDateFont(const QFont &font);
    // The colours of the cells are the cells' own: these three setters do nothing, on purpose, and
    // their getters always answer the same.
    void setDateTextColor(const QColor &) {}
    void setDateBackgroundColor(const QColor &) {}
    void setDateBorderColor(const QColor &) {}
    QColor dateTextColor() const;
    QColor dateBackgroundColor() const;
    QColor dateBorderColor() const;
    // Kept only.
    QColor selectedDateTextColor() const { return m_selectedDateTextColor; }
    void setSelectedDateTextColor(const QColor &color) { m_selectedDateTextColor = color; }
    QColor selectedDateBackgroundColor() const { return m_selectedDateBackgroundColor; }
    void setSelectedDateBackgroundColor(const QColor &color)
    {
        m_selectedDateBackgroundColor = color;
    }
    QColor currentDateTextColor() const { return m_currentDateTextColor; }
    void setCurrentDateTextColor(const QColor &color) { m_currentDateTextColor = color; }
    QColor currentDateBackgroundColor() const { return m_currentDateBackgroundColor; }
    void setCurrentDateBackgroundColor(const QColor &color)
    {
        m_currentDateBackgroundColor = color;
    }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void build();
    void connectInput();
    QLabel *makeTextField(const QString &name, QWidget *parent);
    widgets::CustomButton *makeNavigationButton(const char *name, const char *image,
                                                const QString &accessibleName);
    void buildArrows();
    void buildCurrentMonthButtons();
    std::function<void(QWidget *)> unlessRefused(std::function<void(QWidget *)> press) const;
    void buildDayCells();
    void buildWeekdayLetters();
    void layoutNavigation(double height);
    void layoutCurrentMonthButtons();
    void layoutWeekdayLetters();
    void removeDayCells();
    void placeDayCells();
    void addDayCell(int index, const QDateTime &day);
    void hideRemovedDayCells();
    bool isTarveloViewShowing() const;
    void showCurrentMonth(QWidget *sender);
    DateButton *todaysCell() const;
    void pressTodaysCell();

    inline static QPointer<DateButton> s_selectedCell;

    platform::Dates &m_dates;
    CalendarDates m_days;
    std::unique_ptr<CalendarInput> m_input;
    platform::DelayedCall m_postInit;
    CalendarDelegate *m_delegate = nullptr;

    widgets::ImageView *m_imgWeekDaysBG = nullptr;
    // Never made: its place in the layout is kept for a background that may come.
    widgets::ImageView *m_imgMonthBG = nullptr;
    widgets::ImageView *m_dateButtonsBG = nullptr;
    widgets::LayerView *m_highlight = nullptr;
    QLabel *m_titleLabel = nullptr;
    widgets::CustomButton *m_prevButton = nullptr;
    widgets::CustomButton *m_nextButton = nullptr;
    widgets::CustomButton *m_proceedToCurrentMonthButton = nullptr;
    widgets::CustomButton *m_backToCurrentMonthButton = nullptr;
    widgets::LayerView *m_calendarContainer = nullptr;
    QList<QLabel *> m_dayOfWeekLabels;
    DateButtons m_dateButtons{};
    widgets::GradientView *m_daysHeader = nullptr;

    QRectF m_weekDaysBGFrame;
    int m_cellsInView = 0;
    int m_laidOutWidth = 0;
    double m_cellWidth = 0;
    QColor m_selectedDateTextColor;
    QColor m_selectedDateBackgroundColor;
    QColor m_currentDateTextColor;
    QColor m_currentDateBackgroundColor;
    qint32 m_version = 0;
    QDateTime m_selectedDate;
};

} // namespace tarvelo::calendar
