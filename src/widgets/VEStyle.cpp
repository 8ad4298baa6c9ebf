#include "widgets/VEStyle.h"

#include "platform/Frames.h"

#include <QPainter>
#include <QPalette>
#include <QResizeEvent>

namespace tarvelo::widgets {

namespace {

QPalette appearance(bool dark)
{
    return dark ? QPalette(QColor(40, 40, 43, 217)) : QPalette(QColor(246, 246, 248, 217));
}

} // namespace

VEStyle::VEStyle(QWidget *parent)
    : QWidget(parent)
{
}

void VEStyle::setBg(const QColor &color)
{
    m_bg = color;
    update();
}

void VEStyle::awakeFromNib()
{
    m_effectView = new QWidget(this);
    m_sizeOfEffect = size();
    m_effectView->setObjectName(QStringLiteral("effectView"));
    platform::setFrame(*m_effectView, platform::frameOf(*this));
    m_effectView->setPalette(appearance(m_isDark));
    m_effectView->setAutoFillBackground(true);
    // A background: what the view holds stands in front of it and gets the mouse.
    m_effectView->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_effectView->lower();
    m_effectView->show();
}

void VEStyle::resizeEvent(QResizeEvent *event)
{
    if (!m_effectView)
        return;
    // Not by the event's old size: what happened before the view showed is told at once, without.
    m_effectView->resize(m_effectView->size() + event->size() - m_sizeOfEffect);
    m_sizeOfEffect = event->size();
}

void VEStyle::paintEvent(QPaintEvent *)
{
    if (!m_bg.isValid())
        return;
    QPainter painter(this);
    painter.fillRect(rect(), m_bg);
}

} // namespace tarvelo::widgets
