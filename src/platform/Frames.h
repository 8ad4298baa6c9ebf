#pragma once

#include <QPointF>
#include <QRect>
#include <QRectF>

class QScreen;
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

// On the screen, places count from the bottom-left corner of the first screen.
QPointF placeOnScreen(const QPointF &globalPosition);
QRectF frameOnScreen(const QWidget &window);
// What panels and docks leave of the screen.
QRectF visibleFrame(const QScreen &screen);
void setFrameOnScreen(QWidget &window, const QRectF &frame);

} // namespace tarvelo::platform
