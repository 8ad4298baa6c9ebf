#pragma once

#include <QObject>
#include <QSet>

class QLineEdit;
class QTextEdit;
class QWidget;

namespace tarvelo::lectures {

class TextDelegate;

// Tells a delegate what the student does in the views and fields that it watches; what the program
// sets there is no activity.
//
// An edit begins with the first change, not with the insertion point: a window that opens puts the
// insertion point into a text, and must close again without a warning. In a view of many lines it
// ends when the keyboard goes to another control of the window, whether or not anything was typed;
// a window that loses the keyboard, or a menu that opens, ends no edit, since the student comes
// back to the same text. A field of one line only says so through an answer of its own.
class TextActivity final : public QObject
{
    Q_OBJECT

public:
    explicit TextActivity(TextDelegate &delegate);

    void watch(QLineEdit &field);
    void watch(QTextEdit &view);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void changed(QWidget &view);
    void ended(QWidget &view);

    TextDelegate &m_delegate;
    // Whose text changed since the keyboard came to it.
    QSet<const QWidget *> m_begun;
};

} // namespace tarvelo::lectures
