#pragma once

#include <QList>
#include <QObject>

class QAbstractButton;
class QKeyEvent;
class QWidget;

namespace tarvelo::calendar {

class CalendarDelegate;
class DateButton;

// The calendar's mouse and keys: while a recording runs the mouse passes through every part of it
// and no key presses anything; otherwise the arrow keys go from day to day, the page keys from
// month to month, and Home to today. One day at a time is in the Tab order. What a key wants of the
// months it tells; it does not know the calendar itself.
class CalendarInput final : public QObject
{
    Q_OBJECT

public:
    // Whether the calendar is deaf to the user now.
    bool refuses() const;

    // Not owned; without one nothing is refused.
    void setDelegate(const CalendarDelegate *delegate) { m_delegate = delegate; }
    void watch(QWidget &part);
    // The days, in their order.
    void watchDay(DateButton &cell);
    // Tab leads to this day until another one gets the focus.
    void setTabStop(DateButton &cell);
    // None before the first day was chosen.
    DateButton *tabStop() const { return m_tabStop; }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void previousMonthWanted();
    void nextMonthWanted();
    void todayWanted();

private:
    bool refuse(QEvent &event) const;
    bool keyPressed(QObject *watched, const QKeyEvent &key);
    bool keyPressedOnButton(QAbstractButton *button, int key);
    bool moveFocus(DateButton &from, int days);

    const CalendarDelegate *m_delegate = nullptr;
    QList<DateButton *> m_days;
    DateButton *m_tabStop = nullptr;
};

} // namespace tarvelo::calendar
