#pragma once

#include "widgets/CustomButton.h"

#include <QColor>
#include <QDateTime>
#include <QRectF>

class QPainter;
class QWidget;

namespace tarvelo::platform {
class Dates;
}

namespace tarvelo::calendar {

class CalendarDelegate;

// One day of the month grid: draws its number itself, and a badge when lectures were recorded on
// its day, for which it asks the store anew at every redraw. The calendar says which day it shows,
// where it stands, and whether it is the selected one.
class DateButton final : public widgets::CustomButton
{
    Q_OBJECT

public:
    // `dates` must outlive this object.
    DateButton(const platform::Dates &dates, QWidget *parent);

    const QDateTime &date() const { return m_date; }
    bool isDateToday() const { return m_bIsDateToday; }
    bool isSatOrSun() const { return m_bIsSatOrSun; }
    bool isSelected() const { return m_bIsSelected; }
    bool isMouseHover() const { return m_bIsMouseHover; }
    const QString &getRecordCount() const { return m_strRecordCount; }

    // The day's look: number, today's box, weekend. Any selected look is lost.
    void setDate(const QDateTime &date);
    // The box of today, or else that of a chosen day, whatever the mouse does.
    void showBox(bool ofToday);
    // The look of a day that is not today, as setDate() gives it.
    void postSetDate();
    void setIsSelected(bool selected) { m_bIsSelected = selected; }
    // Kept only: the number of lectures is asked for when drawing, nothing fills this.
    void setRecordCount(const QString &count) { m_strRecordCount = count; }
    // None until the application is there: then no day has lectures.
    void setDelegate(CalendarDelegate *delegate) { m_delegate = delegate; }

protected:
    void mouseEntered() override;
    void mouseExited() override;
    void paintEvent(QPaintEvent *event) override;
    QRectF focusRect() const override;

private:
    qsizetype numberOfLectures() const;
    QColor numberColor(bool hasLectures) const;
    void drawNumber(QPainter &painter, bool hasLectures) const;
    void drawBadge(QPainter &painter) const;
    void tellOfBadge(bool hasLectures);

    const platform::Dates &m_dates;
    CalendarDelegate *m_delegate = nullptr;
    QString m_strRecordCount;
    QDateTime m_date;
    bool m_bIsDateToday = false;
    bool m_bIsSatOrSun = false;
    bool m_bIsSelected = false;
    bool m_bIsMouseHover = false;
};

} // namespace tarvelo::calendar
