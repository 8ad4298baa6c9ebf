#include "platform/Images.h"

#include "platform/HighContrast.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QHash>
#include <QIODevice>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QPointF>
#include <QSize>
#include <QSvgRenderer>
#include <QTransform>
#include <QtMath>

#include <array>
#include <utility>

namespace tarvelo::platform {

namespace {

// The colours of the drawings, and what they are where the desktop asks for high contrast.
constexpr std::array StrongColours{
    std::pair{"#605c66", "#000000"},
    std::pair{"#3f3c44", "#000000"},
    std::pair{"#8c8a92", "#000000"},
    std::pair{"#d3d0d8", "#000000"},
    std::pair{"#d61626", "#b00014"},
    // The ground of a small button, which has no outline otherwise; a darker one on a row.
    std::pair{"fill=\"#efedf1\"", "fill=\"#ffffff\" stroke=\"#000000\" stroke-width=\"2\""},
    std::pair{"fill=\"#dad7df\"", "fill=\"#ffffff\" stroke=\"#000000\" stroke-width=\"2\""},
    // The row under the mouse: a line inside of the ring that it has for the keyboard.
    std::pair{"x=\"4\" y=\"2\" width=\"373\" height=\"59\" rx=\"8\" "
              "fill=\"#8b8791\" fill-opacity=\"0.11\"",
              "x=\"5.5\" y=\"4.5\" width=\"370\" height=\"53\" rx=\"7\" "
              "fill=\"none\" stroke=\"#000000\""},
};

QSize pixelsOf(const QSizeF &size, double ratio)
{
    return {qCeil(size.width() * ratio - 0.01), qCeil(size.height() * ratio - 0.01)};
}

// The ground of a drawing comes first.
bool beginsWithACircle(const QByteArray &drawing)
{
    const qsizetype root = drawing.indexOf("<svg");
    return QByteArrayView(drawing).sliced(drawing.indexOf('<', root + 1)).startsWith("<circle");
}

QByteArray withStrongColours(QByteArray drawing)
{
    for (const auto &[usual, strong] : StrongColours)
        drawing.replace(usual, strong);
    return drawing;
}

} // namespace

QSizeF Image::size() const
{
    return m_renderer ? QSizeF(m_renderer->defaultSize()) : QSizeF();
}

QPixmap Image::rendered(const QSize &pixels) const
{
    const QString key = QStringLiteral("tarvelo/%1/%2x%3")
                            .arg(quintptr(m_renderer.get()))
                            .arg(pixels.width())
                            .arg(pixels.height());
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

// Drawn once for each size in device pixels, and put down on whole ones of the window: as sharp as
// drawing anew, which would cost the calendar more than all its questions to the store.
void Image::paint(QPainter &painter, const QRectF &target) const
{
    if (!m_renderer || target.isEmpty())
        return;
    // Also right where a view is drawn into a picture finer than its screen.
    const QTransform device = painter.deviceTransform();
    const QPixmap pixmap = rendered(pixelsOf(target.size(), device.m11()));
    const QPointF corner = device.inverted().map(QPointF(device.map(target.topLeft()).toPoint()));
    painter.drawPixmap(QRectF(corner, QSizeF(pixmap.size()) / device.m11()), pixmap,
                       QRectF(pixmap.rect()));
}

QPixmap Image::pixmap(const QSizeF &size, double ratio) const
{
    if (!m_renderer || size.isEmpty())
        return {};
    QPixmap pixmap = rendered(pixelsOf(size, ratio));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
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
    static QHash<std::pair<QString, bool>, Image> known;
    if (name.isEmpty())
        return {};
    const bool isStrong = isContrastHigh();
    const auto found = known.constFind({name, isStrong});
    if (found != known.cend())
        return *found;

    Image image;
    QFile file(QStringLiteral(":/images/%1.svg").arg(name));
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray drawing = file.readAll();
        auto renderer =
            std::make_shared<QSvgRenderer>(isStrong ? withStrongColours(drawing) : drawing);
        if (renderer->isValid()) {
            image.m_name = name;
            image.m_renderer = std::move(renderer);
            image.m_isRound = beginsWithACircle(drawing);
        }
    }
    known.insert({name, isStrong}, image);
    return image;
}

} // namespace tarvelo::platform
