#include "widgets/MouseDownTextField.h"

#include <QKeyEvent>
#include <QPalette>
#include <QStyle>
#include <QWidget>

namespace tarvelo::widgets {

namespace {

constexpr int BorderedMargin = 8;
// What a field of one line always leaves free.
constexpr int OwnMargin = 2;

// Keys that open a heading for typing. What is typed goes into it at once.
bool wantsToType(const QKeyEvent &key)
{
    const bool isPlain = !(key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    return key.key() == Qt::Key_F2 || (isPlain && !key.text().isEmpty() && key.text()[0].isPrint());
}

} // namespace

MouseDownTextField::MouseDownTextField(QWidget *parent)
    : QLineEdit(parent)
{
}

// The mouse gives the keyboard to a text only; Tab reaches a heading too. A heading stands where
// its window begins, whatever language its words are of; where someone types, those decide.
void MouseDownTextField::setEditable(bool editable)
{
    setReadOnly(!editable);
    const Qt::Alignment start = Qt::AlignLeading;
    setAlignment((editable ? start : QStyle::visualAlignment(layoutDirection(), start)) |
                 Qt::AlignVCenter);
    setFocusPolicy(editable ? Qt::StrongFocus : Qt::TabFocus);
}

// A heading begins where the texts around it do; what is typed stands clear of the border.
void MouseDownTextField::setBordered(bool bordered)
{
    setFrame(bordered);
    const int margin = bordered ? BorderedMargin : -OwnMargin;
    setTextMargins(margin, 0, margin, 0);
    Q_EMIT borderChanged();
}

void MouseDownTextField::setDrawsBackground(bool draws)
{
    m_drawsBackground = draws;
    const QPalette around = parentWidget() ? parentWidget()->palette() : QPalette();
    QPalette colours = palette();
    colours.setBrush(QPalette::Base, draws ? around.brush(QPalette::Base) : Qt::transparent);
    setPalette(colours);
}

void MouseDownTextField::mouseDown(QMouseEvent *)
{
    if (m_delegate)
        m_delegate->mouseDownTextFieldClicked(*this);
}

// The press that opens the field is no press in its text. Once someone writes there, a press places
// the insertion point, as everywhere.
void MouseDownTextField::mousePressEvent(QMouseEvent *event)
{
    m_pressIsForTheText = isBeingEdited();
    mouseDown(event);
    if (m_pressIsForTheText)
        QLineEdit::mousePressEvent(event);
}

void MouseDownTextField::mouseMoveEvent(QMouseEvent *event)
{
    if (m_pressIsForTheText)
        QLineEdit::mouseMoveEvent(event);
}

void MouseDownTextField::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_pressIsForTheText)
        QLineEdit::mouseReleaseEvent(event);
}

void MouseDownTextField::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (m_pressIsForTheText)
        QLineEdit::mouseDoubleClickEvent(event);
}

void MouseDownTextField::keyPressEvent(QKeyEvent *event)
{
    if (isEditable() || !wantsToType(*event)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    if (m_delegate)
        m_delegate->mouseDownTextFieldClicked(*this);
    if (isEditable() && event->key() != Qt::Key_F2)
        QLineEdit::keyPressEvent(event);
}

} // namespace tarvelo::widgets
