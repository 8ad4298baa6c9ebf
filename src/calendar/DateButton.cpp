#include "calendar/DateButton.h"

#include "calendar/CalendarDelegate.h"
#include "platform/Alerts.h"
#include "platform/Dates.h"
#include "platform/Images.h"
#include "platform/Texts.h"
#include "store/Sqlite.h"
#include "store/Statements.h"

#include <QPainter>
#include <QPointF>
#include <QSizeF>

#include <algorithm>

namespace tarvelo::calendar {

using platform::Dates;
using platform::Image;
using platform::imageNamed;

namespace {

constexpr QColor NumberWithLectures(96, 90, 102);
constexpr QColor NumberWithoutLectures(96, 92, 102);
constexpr QColor WeekendNumber(153, 153, 153);

QString todaysImage()
{
    return QStringLiteral("recordbox");
}

QString hoveredImage()
{
    return QStringLiteral("selDateImg");
}

} // namespace

DateButton::DateButton(const Dates &dates, QWidget *parent)
    : CustomButton(parent)
    , m_dates(dates)
{
}

void DateButton::setDate(const QDateTime &date)
{
    m_date = date;
    setText(m_dates.format(date, QStringLiteral("d")));
    setAccessibleName(m_dates.format(date, Dates::Style::Full, Dates::Style::None));
    const bool isToday = m_dates.isSameDay(date, m_dates.now());
    if (isToday) {
        // The weekend mark stays as the day shown before left it, so that today's number can be
        // grey: wanted, leave it.
        showBox(true);
    } else {
        // By the name in the user's language, on purpose: where no weekday's name begins like
        // this, no day is a weekend day.
        const QString weekday = m_dates.format(date, QStringLiteral("EEEE")).toLower();
        m_bIsSatOrSun = weekday.startsWith(u"sat") || weekday.startsWith(u"sun");
        setImage(imageNamed(QString()));
        setNormalImage(QString());
        setHoverImage(hoveredImage());
        postSetDate();
    }
    m_bIsDateToday = isToday;
}

void DateButton::showBox(bool ofToday)
{
    const QString box = ofToday ? todaysImage() : hoveredImage();
    setImage(imageNamed(box));
    setNormalImage(box);
    setHoverImage(box);
}

void DateButton::postSetDate()
{
    // Asked for here as well as when drawing, and not kept: wanted, the drawing decides alone.
    if (const qsizetype count = numberOfLectures(); count > 0)
        static_cast<void>(QString::number(count));
    setNormalImage(image().name());
    setHoverImage(hoveredImage());
}

qsizetype DateButton::numberOfLectures() const
{
    store::Sqlite *database = m_delegate ? m_delegate->getTheDB() : nullptr;
    if (!database)
        return 0;
    const QString day = m_dates.askedDay(m_date);
    const auto rows = database->executeQueryArguments(store::statements::DayQuery, {day});
    return rows ? rows->size() : 0;
}

void DateButton::mouseEntered()
{
    const bool hovers = isEnabled() && !platform::hasAttachedSheet(*window());
    setImage(imageNamed(hovers ? hoverImage() : normalImage()));
    m_bIsMouseHover = true;
    repaint();
}

void DateButton::mouseExited()
{
    setImage(imageNamed(normalImage()));
    m_bIsMouseHover = false;
    repaint();
}

void DateButton::paintEvent(QPaintEvent *)
{
    // The button's own look without its title: the number is drawn by hand.
    QPainter painter(this);
    image().paint(painter, imageRect(image()));
    paintFocus(painter);
    if (text().isNull())
        return;
    const bool hasLectures = numberOfLectures() > 0;
    tellOfBadge(hasLectures);
    drawNumber(painter, hasLectures);
    if (hasLectures)
        drawBadge(painter);
}

// The box that "recordbox" and "selDateImg" show, in their canvas of 51 by 51.
QRectF DateButton::focusRect() const
{
    const double side = std::min({width(), height(), 51});
    const double scale = side / 51;
    const QPointF corner((width() - side) / 2, (height() - side) / 2);
    return {corner + QPointF(4.5 * scale, 0), QSizeF(41 * scale, 41 * scale)};
}

// The later rule wins: a weekend day is grey, also when it is today.
QColor DateButton::numberColor(bool hasLectures) const
{
    if (m_bIsSatOrSun)
        return WeekendNumber;
    if (m_bIsDateToday)
        return Qt::white;
    return hasLectures ? NumberWithLectures : NumberWithoutLectures;
}

// Button coordinates run downward here: the number stands a little above the middle, where the
// boxes "recordbox" and "selDateImg" have their centre.
void DateButton::drawNumber(QPainter &painter, bool hasLectures) const
{
    const double toTheLeft = text().size() > 1 ? 18 : 12;
    const QRectF place(width() * 0.5 - toTheLeft + 8, height() * 0.5 - 14, width(), height());
    painter.setFont(font());
    painter.setPen(numberColor(hasLectures));
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, text());
}

// Who does not see the badge hears of it.
void DateButton::tellOfBadge(bool hasLectures)
{
    const QString told = hasLectures ? platform::text("DAY_HAS_LECTURES") : QString();
    if (accessibleDescription() != told)
        setAccessibleDescription(told);
}

// Its lower edge lies 8 points below the upper edge of the cell.
void DateButton::drawBadge(QPainter &painter) const
{
    const Image badge = imageNamed(m_bIsDateToday ? QStringLiteral("notificationW")
                                                  : QStringLiteral("notification"));
    const double fromTheRight = text().size() < 2 ? -21 : -22;
    const QSizeF size = badge.size();
    badge.paint(painter, QRectF({width() - size.width() + fromTheRight, 8 - size.height()}, size));
}

} // namespace tarvelo::calendar
