#pragma once

#include "platform/Images.h"

#include <QWidget>

namespace tarvelo::widgets {

// A view that shows an image over all of its bounds, stretching both axes as needed.
class ImageView final : public QWidget
{
    Q_OBJECT

public:
    explicit ImageView(QWidget *parent = nullptr);

    const platform::Image &image() const { return m_image; }
    void setImage(const platform::Image &image);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    platform::Image m_image;
};

} // namespace tarvelo::widgets
