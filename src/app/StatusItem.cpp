#include "app/StatusItem.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QPointF>
#include <QRectF>

namespace tarvelo::app {

namespace {

// Drawn for the finest screen there is, so that the bar can show it without blur. A null image
// leaves the icon empty.
QIcon iconOf(const platform::Image &image)
{
    const qreal scale = qMax(1.0, qGuiApp->devicePixelRatio());
    QPixmap pixmap(StatusItem::ImageSize * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    image.paint(painter, QRectF(QPointF(), StatusItem::ImageSize));
    painter.end();
    return QIcon(pixmap);
}

} // namespace

StatusItem::StatusItem(QMenu &menu, const QString &toolTip)
    : m_menu(menu)
    , m_toolTip(toolTip)
{
}

// Which kind of bar there is is found out with the first item of a process, and never again: so
// that first item waits for a bar. Later ones of the same kind are found whenever they come.
void StatusItem::create(const platform::Image &image)
{
    m_image = image;
    m_item.reset();
    m_bars = std::make_unique<StatusBars>();
    connect(m_bars.get(), &StatusBars::appeared, this, &StatusItem::show);
    if (m_bars->isKnown())
        show();
}

void StatusItem::remove()
{
    m_bars.reset();
    m_item.reset();
}

void StatusItem::show()
{
    if (m_item)
        return;
    m_item = std::make_unique<QSystemTrayIcon>();
    m_item->setIcon(iconOf(m_image));
    m_item->setToolTip(m_toolTip);
    m_item->setContextMenu(&m_menu);
    connect(m_item.get(), &QSystemTrayIcon::activated, this, [this](auto reason) {
        if (reason == QSystemTrayIcon::Trigger)
            Q_EMIT pressed();
    });
    m_item->show();
}

} // namespace tarvelo::app
