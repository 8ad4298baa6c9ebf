#pragma once

class QColor;
class QLineEdit;
class QTextEdit;

namespace tarvelo::widgets {

// The colour of the blinking line at which typing goes on, apart from the colour of the text.
// Invalid for a field whose colour was never set.
QColor insertionPointColor(const QLineEdit &field);
QColor insertionPointColor(const QTextEdit &view);

void setInsertionPointColor(QLineEdit &field, const QColor &color);
void setInsertionPointColor(QTextEdit &view, const QColor &color);

} // namespace tarvelo::widgets
