#pragma once

#include <QImage>
#include <QWidget>

namespace tarvelo::tests {

// What `view` draws by itself and with its children, on white.
inline QImage drawn(QWidget &view, double ratio = 1)
{
    QImage image(view.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    view.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

} // namespace tarvelo::tests
