#include "lectures/TextActivity.h"

#include "lectures/TextDelegate.h"

#include <QEvent>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTextDocument>
#include <QTextEdit>
#include <QWidget>

namespace tarvelo::lectures {

namespace {

// What is typed can be undone, unlike a text that the program sets or empties.
bool canUndoOrRedo(const QTextDocument &document)
{
    return document.isUndoAvailable() || document.isRedoAvailable();
}

// The program moves the keyboard without a reason, since it ends nothing of the student's.
bool isTheStudentsMove(Qt::FocusReason reason)
{
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
           reason != Qt::MenuBarFocusReason && reason != Qt::NoFocusReason;
}

} // namespace

TextActivity::TextActivity(TextDelegate &delegate)
    : m_delegate(delegate)
{
}

void TextActivity::watch(QLineEdit &field)
{
    connect(&field, &QLineEdit::textEdited, this, [this, &field] { changed(field); });
    field.installEventFilter(this);
}

void TextActivity::watch(QTextEdit &view)
{
    connect(&view, &QTextEdit::textChanged, this, [this, &view] {
        if (canUndoOrRedo(*view.document()))
            changed(view);
    });
    view.installEventFilter(this);
}

void TextActivity::changed(QWidget &view)
{
    if (!m_begun.contains(&view)) {
        m_begun.insert(&view);
        m_delegate.textDidBeginEditing(&view);
    }
    m_delegate.textDidChange(&view);
}

void TextActivity::ended(QWidget &view)
{
    m_begun.remove(&view);
    if (const auto *text = qobject_cast<QTextEdit *>(&view)) {
        if (!text->isReadOnly())
            m_delegate.textDidEndEditing(&view);
        return;
    }
    m_delegate.controlTextDidEndEditing(&view);
}

bool TextActivity::eventFilter(QObject *watched, QEvent *event)
{
    auto *view = qobject_cast<QWidget *>(watched);
    if (view && event->type() == QEvent::FocusOut &&
        isTheStudentsMove(static_cast<QFocusEvent *>(event)->reason()))
        ended(*view);
    return QObject::eventFilter(watched, event);
}

} // namespace tarvelo::lectures
