#include "widgets/SegmentedControl.h"

#include "widgets/ControlPainting.h"
#include "widgets/Lines.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QFont>
#include <QHBoxLayout>
#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QRectF>
#include <QSize>
#include <QSizePolicy>
#include <QStyle>
#include <QStyleOption>

namespace tarvelo::widgets {

namespace {

constexpr double Radius = 6;
// As against other texts: the figures of a fraction such as "⅕", which are half as high as others,
// can be told apart then.
constexpr double FontScale = 1.25;
// Of what is chosen, from the line around all.
constexpr double Inset = 2;
constexpr QSize Padding(20, 8);

// One choice: filled when it is selected, with a hairline to the one before it.
class Segment final : public QAbstractButton
{
public:
    explicit Segment(QWidget *parent)
        : QAbstractButton(parent)
    {
        QFont larger = font();
        larger.setPointSizeF(larger.pointSizeF() * FontScale);
        setFont(larger);
    }

    QSize sizeHint() const override { return fontMetrics().boundingRect(text()).size() + Padding; }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QStyleOption option;
        option.initFrom(this);
        option.state.setFlag(QStyle::State_On, isChecked());
        option.state.setFlag(QStyle::State_Sunken, isDown());
        paintSegment(painter, option, onPixels(painter, rect(), Inset), Radius - 2);
        const QPalette::ColorRole ink = inkOn(option, isChecked());
        if (hasFocus()) {
            const auto ring = isChecked() ? ink : QPalette::Highlight;
            painter.setPen(QPen(palette().color(ring), 2));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(lineIn(painter, rect(), Inset + 2), Radius - 4, Radius - 4);
        }
        const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
        painter.setPen(palette().color(group, ink));
        // A speed such as "½×" has no letter to tell its direction, and would be turned around in a
        // window that runs from right to left.
        painter.setLayoutDirection(text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        painter.drawText(rect(), Qt::AlignCenter, text());
    }
};

// What the segments lie in.
class Trough final : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(palette().color(QPalette::Shadow));
        painter.setBrush(palette().color(QPalette::Base));
        painter.drawRoundedRect(lineIn(painter, rect()), Radius, Radius);
    }
};

} // namespace

SegmentedControl::SegmentedControl(QWidget *parent)
    : QWidget(parent)
    , m_segments(new QButtonGroup(this))
{
    auto *trough = new Trough(this);
    auto *segments = new QHBoxLayout(trough);
    segments->setContentsMargins(0, 0, 0, 0);
    segments->setSpacing(0);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(trough);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // Tab comes to the choice that counts, and the arrow keys go on from there.
    connect(m_segments, &QButtonGroup::idToggled, this, [this] {
        for (QAbstractButton *segment : m_segments->buttons())
            segment->setFocusPolicy(segment->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    });
    connect(m_segments, &QButtonGroup::idClicked, this, [this](int) {
        if (m_action.run)
            m_action.run(this);
    });
}

int SegmentedControl::segmentCount() const
{
    return static_cast<int>(m_segments->buttons().size());
}

int SegmentedControl::selectedSegment() const
{
    return m_segments->checkedId();
}

void SegmentedControl::addSegment(const QString &label, const QString &accessibleName)
{
    auto *segment = new Segment(this);
    segment->setAttribute(Qt::WA_Hover);
    segment->setCheckable(true);
    // Tells who cannot see it that it is one choice of several.
    segment->setAutoExclusive(true);
    segment->setText(label);
    segment->setAccessibleName(accessibleName);
    segment->setToolTip(accessibleName);
    // Of several that are not chosen the first one is where Tab comes to.
    segment->setFocusPolicy(segmentCount() == 0 ? Qt::StrongFocus : Qt::ClickFocus);
    segment->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_segments->addButton(segment, segmentCount());
    layout()->itemAt(0)->widget()->layout()->addWidget(segment);
}

void SegmentedControl::setSelectedSegment(int segment)
{
    if (QAbstractButton *button = m_segments->button(segment))
        button->setChecked(true);
}

} // namespace tarvelo::widgets
