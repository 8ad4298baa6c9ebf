#include "calendar/CalendarInput.h"

#include "calendar/CalendarDelegate.h"
#include "calendar/DateButton.h"

#include <QAbstractButton>
#include <QEvent>
#include <QKeyEvent>
#include <QWidget>

namespace tarvelo::calendar {

namespace {

bool isMouse(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Enter:
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
    case QEvent::Wheel:
    case QEvent::ToolTip:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
        return true;
    default:
        return false;
    }
}

bool isPressing(int key)
{
    return key == Qt::Key_Space || key == Qt::Key_Select || key == Qt::Key_Return ||
           key == Qt::Key_Enter || key == Qt::Key_PageUp || key == Qt::Key_PageDown ||
           key == Qt::Key_Home;
}

int daysFor(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return -1;
    case Qt::Key_Right:
        return 1;
    case Qt::Key_Up:
        return -7;
    case Qt::Key_Down:
        return 7;
    default:
        return 0;
    }
}

} // namespace

bool CalendarInput::refuses() const
{
    return m_delegate && m_delegate->isRecordingNow();
}

void CalendarInput::watch(QWidget &part)
{
    part.installEventFilter(this);
}

void CalendarInput::watchDay(DateButton &cell)
{
    watch(cell);
    m_days.append(&cell);
}

void CalendarInput::setTabStop(DateButton &cell)
{
    if (m_tabStop)
        m_tabStop->setFocusPolicy(Qt::ClickFocus);
    m_tabStop = &cell;
    cell.setFocusPolicy(Qt::StrongFocus);
}

bool CalendarInput::eventFilter(QObject *watched, QEvent *event)
{
    if (isMouse(event->type()))
        return refuse(*event);
    if (event->type() == QEvent::KeyPress)
        return keyPressed(watched, *static_cast<QKeyEvent *>(event));
    if (event->type() == QEvent::FocusIn) {
        if (auto *cell = qobject_cast<DateButton *>(watched))
            setTabStop(*cell);
    }
    return false;
}

// What is refused goes on to what lies behind the calendar, as if no view were here.
bool CalendarInput::refuse(QEvent &event) const
{
    if (!refuses())
        return false;
    event.ignore();
    return true;
}

bool CalendarInput::keyPressed(QObject *watched, const QKeyEvent &key)
{
    if (isPressing(key.key()) && refuses())
        return true;
    if (key.key() == Qt::Key_PageUp)
        Q_EMIT previousMonthWanted();
    else if (key.key() == Qt::Key_PageDown)
        Q_EMIT nextMonthWanted();
    else if (key.key() == Qt::Key_Home)
        Q_EMIT todayWanted();
    else
        return keyPressedOnButton(qobject_cast<QAbstractButton *>(watched), key.key());
    return true;
}

bool CalendarInput::keyPressedOnButton(QAbstractButton *button, int key)
{
    if (button && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        button->click();
        return true;
    }
    auto *cell = qobject_cast<DateButton *>(button);
    return cell && daysFor(key) != 0 && moveFocus(*cell, daysFor(key));
}

// Columns run from left to right in every language, and so do the keys.
bool CalendarInput::moveFocus(DateButton &from, int days)
{
    const qsizetype index = m_days.indexOf(&from) + days;
    if (index >= 0 && index < m_days.size() && !m_days[index]->isHidden())
        m_days[index]->setFocus(Qt::TabFocusReason);
    return true;
}

} // namespace tarvelo::calendar
