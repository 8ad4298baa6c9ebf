#include "platform/Images.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <QtMath>

#include <array>

namespace tarvelo::platform {

QSizeF Image::size() const
{
    return m_renderer ? QSizeF(m_renderer->defaultSize()) : QSizeF();
}

QPixmap Image::rendered(const QSize &pixels) const
{
    const QString key =
        QStringLiteral("tarvelo/%1/%2x%3").arg(m_name).arg(pixels.width()).arg(pixels.height());
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QPixmap(pixels);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        m_renderer->render(&painter, QRectF(QPointF(), pixels));
        painter.end();
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

// Drawn once for each size in device pixels, and put down on whole ones: as sharp as drawing anew,
// which would cost the calendar more than all its questions to the store.
void Image::paint(QPainter &painter, const QRectF &target) const
{
    if (!m_renderer || target.isEmpty())
        return;
    // Also right where a view is drawn into a picture finer than its screen.
    const double ratio = painter.deviceTransform().m11();
    const QPixmap pixmap = rendered(
        QSize(qCeil(target.width() * ratio - 0.01), qCeil(target.height() * ratio - 0.01)));
    const QPointF corner(qRound(target.x() * ratio) / ratio, qRound(target.y() * ratio) / ratio);
    painter.drawPixmap(QRectF(corner, QSizeF(pixmap.size()) / ratio), pixmap,
                       QRectF(pixmap.rect()));
}

QIcon Image::icon() const
{
    QIcon icon;
    if (isNull())
        return icon;
    for (const int side : std::array{16, 20, 22, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(painter, QRectF(0, 0, side, side));
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

Image imageNamed(const QString &name)
{
    // Parsed once a name: the calendar asks for the same few drawings at every layout.
    static QHash<QString, Image> known;
    if (name.isEmpty())
        return {};
    const auto found = known.constFind(name);
    if (found != known.cend())
        return *found;

    Image image;
    const QString file = QStringLiteral(":/images/%1.svg").arg(name);
    if (QFile::exists(file)) {
        auto renderer = std::make_shared<QSvgRenderer>(file);
        if (renderer->isValid()) {
            image.m_name = name;
            image.m_renderer = std::move(renderer);
        }
    }
    known.insert(name, image);
    return image;
}

} // namespace tarvelo::platform
