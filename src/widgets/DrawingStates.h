#pragma once

class QColor;
class QImage;
class QRectF;

namespace tarvelo::widgets {

// What becomes of a drawing, on a see-through canvas, that is a button: how it shows that the mouse
// is on it, that it is pressed and that it cannot be used. Each needs a canvas in
// `QImage::Format_ARGB32_Premultiplied`.

// Darker by so much of `ink`, from 0 to 1.
void shade(QImage &drawing, const QColor &ink, float strength);
// Black for white and white for black; colours stay what they are, light for dark.
void exchangeBlackAndWhite(QImage &drawing);
// A line of so many points along the inside of the drawing's edge, which lies around `place`.
void frame(QImage &drawing, const QRectF &place, double width, const QColor &ink);
// Nothing in it is darker than `darkest`, and nothing coloured.
void fade(QImage &drawing, const QColor &darkest);

} // namespace tarvelo::widgets
