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

QString withLineFeeds(QString rawText)
{
    std::replace_if(rawText.begin(), rawText.end(), endsLine, QChar(u'\n'));
    return rawText;
}

QString wholeText(const QTextEdit &view)
{
    return withLineFeeds(view.document()->toRawText());
}

bool showsText(const QTextEdit &view, QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    return wholeText(view) == withLineFeeds(text);
}

} // namespace tarvelo::widgets
