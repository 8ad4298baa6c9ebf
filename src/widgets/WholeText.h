#pragma once

#include <QString>

class QTextEdit;

namespace tarvelo::widgets {

// A text as documents keep it, with line feeds for its ends of lines.
QString withLineFeeds(QString rawText);

// All of what stands in the view, character by character; its lines end with line feeds. Unlike the
// toolkit's own plain text it keeps the blanks at which no line breaks, such as those between a
// number and its unit.
QString wholeText(const QTextEdit &view);

// Whether the view stands as it was when `text` was put into it, whatever the ends of lines were.
bool showsText(const QTextEdit &view, QString text);

} // namespace tarvelo::widgets
