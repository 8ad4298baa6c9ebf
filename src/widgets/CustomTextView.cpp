#include "widgets/CustomTextView.h"

#include "widgets/WholeText.h"

#include <QMimeData>

#include <algorithm>

namespace tarvelo::widgets {

CustomTextView::CustomTextView(QWidget *parent)
    : QTextEdit(parent)
{
    setAcceptRichText(false);
}

QStringList CustomTextView::readablePasteboardTypes() const
{
    return {QString::fromLatin1(NSStringPboardType)};
}

// By format, not by QMimeData::hasText(), which is true for files that come without a text too.
bool CustomTextView::canInsertFromMimeData(const QMimeData *source) const
{
    const QStringList types = readablePasteboardTypes();
    return std::any_of(types.begin(), types.end(),
                       [source](const QString &type) { return source->hasFormat(type); });
}

void CustomTextView::insertFromMimeData(const QMimeData *source)
{
    if (!canInsertFromMimeData(source))
        return;
    QMimeData plain;
    plain.setText(source->text());
    QTextEdit::insertFromMimeData(&plain);
}

QMimeData *CustomTextView::createMimeDataFromSelection() const
{
    auto *plain = new QMimeData;
    plain->setText(withLineFeeds(textCursor().selectedText()));
    return plain;
}

} // namespace tarvelo::widgets
