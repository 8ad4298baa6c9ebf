#pragma once

#include <QIcon>
#include <QPixmap>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <memory>

class QPainter;
class QSize;
class QSvgRenderer;

namespace tarvelo::platform {

// A drawing of the application, known by its name. A null image has no name, no size, and draws
// nothing.
class Image final
{
public:
    Image() = default;

    bool isNull() const { return m_renderer == nullptr; }
    const QString &name() const { return m_name; }
    // In points, as the drawing gives it.
    QSizeF size() const;
    // Whether its ground is a disc.
    bool isRound() const { return m_isRound; }

    // Fills `target`, stretching both axes as needed.
    void paint(QPainter &painter, const QRectF &target) const;
    QIcon icon() const;
    // Drawn for a device of `ratio` pixels to a point; `size` is in points.
    QPixmap pixmap(const QSizeF &size, double ratio) const;

private:
    friend Image imageNamed(const QString &name);

    QPixmap rendered(const QSize &pixels) const;

    QString m_name;
    std::shared_ptr<QSvgRenderer> m_renderer;
    bool m_isRound = false;
};

// The image kept under `name`; a null image for an empty or unknown name.
Image imageNamed(const QString &name);

} // namespace tarvelo::platform
