#pragma once

#include <QObject>

class QAbstractButton;
class QKeyEvent;
class QWidget;

namespace tarvelo::calendar {

class CKCalendarView;
class DateButton;

// The calendar's mouse and keys: while a recording runs the mouse passes through every part of it
// and no key presses anything; otherwise the arrow keys go from day to day, the page keys from
// month to month, and Home to today. One day at a time is in the Tab order.
class CalendarInput final : public QObject
{
    Q_OBJECT

public:
    explicit CalendarInput(CKCalendarView &view);

    // Whether the calendar is deaf to the user now.
    bool refuses() const;

    void watch(QWidget &part);
    // Tab leads to this day until another one gets the focus.
    void setTabStop(DateButton &cell);
    // None before the first day was chosen.
    DateButton *tabStop() const { return m_tabStop; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool refuse(QEvent &event) const;
    bool keyPressed(QObject *watched, const QKeyEvent &key);
    bool keyPressedOnButton(QAbstractButton *button, int key);
    bool moveFocus(DateButton &from, int days);

    CKCalendarView &m_view;
    DateButton *m_tabStop = nullptr;
};

} // namespace tarvelo::calendar
