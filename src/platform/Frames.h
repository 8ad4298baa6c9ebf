#pragma once

#include <QRect>

class QRectF;
class QWidget;

namespace tarvelo::platform {

// Frames are given with their origin at the bottom-left corner of the parent, y growing upward.
// This is the one place that turns them over: the rectangle in a parent of the given height whose y
// grows downward, its edges rounded to whole points.
QRect flipped(const QRectF &frame, double parentHeight);

// Places `view` at `frame` in its parent.
void setFrame(QWidget &view, const QRectF &frame);

// The frame of `view` in its parent, origin bottom-left.
QRectF frameOf(const QWidget &view);

} // namespace tarvelo::platform
