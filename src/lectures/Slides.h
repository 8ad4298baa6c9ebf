#pragma once

#include <QRectF>

#include <chrono>

class QWidget;

namespace tarvelo::lectures {

// Lets `view` slide from where it is to `frame` in its parent, origin bottom-left. A slide of it
// that is under way gives way to the new one.
void slideTo(QWidget &view, const QRectF &frame, std::chrono::milliseconds duration);

} // namespace tarvelo::lectures
