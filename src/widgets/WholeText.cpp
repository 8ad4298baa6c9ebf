#include "widgets/WholeText.h"

#include <QTextDocument>
#include <QTextEdit>

#include <algorithm>

namespace tarvelo::widgets {

namespace {

// What a document has for ends of lines, those of its frames among them.
bool endsLine(QChar character)
{
    return character == QChar::ParagraphSeparator || character == QChar::LineSeparator ||
           character == QChar(0xfdd0) || character == QChar(0xfdd1);
}

} // namespace

QString wholeText(const QTextEdit &view)
{
    QString text = view.document()->toRawText();
    std::replace_if(text.begin(), text.end(), endsLine, QChar(u'\n'));
    return text;
}

bool showsText(const QTextEdit &view, QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    std::replace_if(text.begin(), text.end(), endsLine, QChar(u'\n'));
    return wholeText(view) == text;
}

} // namespace tarvelo::widgets
