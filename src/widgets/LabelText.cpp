#include "widgets/LabelText.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFontMetricsF>
#include <QLabel>
#include <QLayout>
#include <QList>
#include <QMargins>
#include <QObject>
#include <QPainter>
#include <QRect>
#include <QString>
#include <QTextLayout>
#include <QTextLine>
#include <QTextOption>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace tarvelo::widgets {

namespace {

// As much as there is between two rows that stand close.
constexpr int RoomBelow = 4;

bool isInLayout(QLabel &label)
{
    const QWidget *parent = label.parentWidget();
    QLayout *const layout = parent ? parent->layout() : nullptr;
    if (!layout)
        return false;
    QList<QLayout *> layouts = layout->findChildren<QLayout *>();
    layouts.append(layout);
    return std::any_of(layouts.cbegin(), layouts.cend(),
                       [&](const QLayout *each) { return each->indexOf(&label) >= 0; });
}

double topOf(int flags, double room)
{
    if (flags & Qt::AlignBottom)
        return room;
    return (flags & Qt::AlignVCenter) ? room / 2 : 0;
}

} // namespace

void giveRoomBelow(QLabel &label)
{
    const bool isFreeInHeight =
        label.minimumHeight() == 0 && label.maximumHeight() == QWIDGETSIZE_MAX;
    if (label.contentsMargins().bottom() != 0 || !isFreeInHeight || !isInLayout(label))
        return;
    label.setContentsMargins(label.contentsMargins() + QMargins(0, 0, 0, RoomBelow));
    // Only then a label asks its style again what the layout counts.
    QEvent asked(QEvent::StyleChange);
    QCoreApplication::sendEvent(&label, &asked);
}

int roomBelow(const QWidget *view)
{
    const auto *label = qobject_cast<const QLabel *>(view);
    return label && label->contentsMargins().bottom() == RoomBelow ? RoomBelow : 0;
}

bool isBrokenFromTheRight(const QString &text, int flags)
{
    constexpr int Mnemonics = Qt::TextShowMnemonic | Qt::TextHideMnemonic;
    return (flags & Qt::TextWordWrap) && !(flags & Mnemonics) && text.isRightToLeft();
}

void paintBrokenFromTheRight(QPainter &painter, const QRect &place, int flags, QString text)
{
    QTextOption option(Qt::Alignment(flags & Qt::AlignHorizontal_Mask));
    option.setTextDirection(Qt::RightToLeft);
    QTextLayout layout(text.replace(u'\n', QChar::LineSeparator), painter.font(), painter.device());
    layout.setTextOption(option);
    layout.beginLayout();
    const double leading = QFontMetricsF(painter.font(), painter.device()).leading();
    double bottom = -leading;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(place.width());
        line.setPosition({0, std::ceil(bottom + leading)});
        bottom = line.y() + line.ascent() + line.descent();
    }
    layout.endLayout();
    layout.draw(&painter,
                {0.0 + place.left(), place.top() + topOf(flags, place.height() - bottom)});
}

} // namespace tarvelo::widgets
