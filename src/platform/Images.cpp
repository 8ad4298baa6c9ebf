#include "platform/Images.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <array>

namespace tarvelo::platform {

QSizeF Image::size() const
{
    return m_renderer ? QSizeF(m_renderer->defaultSize()) : QSizeF();
}

void Image::paint(QPainter &painter, const QRectF &target) const
{
    if (m_renderer)
        m_renderer->render(&painter, target);
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
