#include "widgets/ImageView.h"

#include <QPainter>

namespace tarvelo::widgets {

ImageView::ImageView(QWidget *parent)
    : QWidget(parent)
{
}

void ImageView::setImage(const platform::Image &image)
{
    m_image = image;
    update();
}

void ImageView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_image.paint(painter, rect());
}

} // namespace tarvelo::widgets
