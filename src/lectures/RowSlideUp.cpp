#include "lectures/RowSlideUp.h"

#include <QEasingCurve>
#include <QPainter>
#include <QVariant>

#include <utility>

namespace tarvelo::lectures {

RowSlideUp::RowSlideUp(QObject *parent)
    : QObject(parent)
{
    m_animation.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&m_animation, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        if (!isRunning())
            return;
        m_gap = value.toInt();
        Q_EMIT moved();
    });
    connect(&m_animation, &QVariantAnimation::finished, this, &RowSlideUp::end);
}

int RowSlideUp::gapAbove(int row) const
{
    return row >= m_row ? m_gap : 0;
}

void RowSlideUp::start(int row, int height, const QPixmap &picture,
                       std::chrono::milliseconds duration, std::function<void()> completion)
{
    finish();
    m_row = row;
    m_height = height;
    m_picture = picture;
    m_completion = std::move(completion);
    m_gap = height;
    m_animation.setDuration(static_cast<int>(duration.count()));
    m_animation.setStartValue(height);
    m_animation.setEndValue(0);
    m_animation.start();
}

void RowSlideUp::finish()
{
    if (!isRunning())
        return;
    m_animation.stop();
    end();
}

// What hears of the end may remove the next row.
void RowSlideUp::end()
{
    m_gap = 0;
    m_picture = QPixmap();
    const auto completion = std::exchange(m_completion, nullptr);
    Q_EMIT moved();
    if (completion)
        completion();
}

void RowSlideUp::paint(QPainter &painter, int top) const
{
    if (m_gap == 0 || m_picture.isNull())
        return;
    const int width = qRound(m_picture.deviceIndependentSize().width());
    painter.save();
    painter.setClipRect(0, top, width, m_gap);
    painter.drawPixmap(0, top + m_gap - m_height, m_picture);
    painter.restore();
}

} // namespace tarvelo::lectures
