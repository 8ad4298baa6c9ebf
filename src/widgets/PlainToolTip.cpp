#include "widgets/PlainToolTip.h"

#include <QTextDocument>

namespace tarvelo::widgets {

QString plainToolTip(const QString &words)
{
    // The tag makes sure that it is taken for markup then.
    return Qt::mightBeRichText(words) ? QStringLiteral("<qt>%1</qt>").arg(words.toHtmlEscaped())
                                      : words;
}

} // namespace tarvelo::widgets
