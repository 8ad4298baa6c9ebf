#pragma once

#include <QLineEdit>

class QWidget;

namespace tarvelo::widgets {

class MouseDownTextField;

// Hears of a click on a field that looks like a heading, and decides whether it is to be edited.
class MouseDownTextFieldDelegate
{
public:
    virtual ~MouseDownTextFieldDelegate() = default;

    virtual void mouseDownTextFieldClicked(MouseDownTextField &field) = 0;
};

// A text that is a heading until someone clicks it: a press of the mouse only tells the delegate,
// and so does a key that shows that whoever came by keyboard wants to type here. It comes as a
// field like any other; who wants a heading takes border, background and editing away.
class MouseDownTextField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit MouseDownTextField(QWidget *parent = nullptr);

    // None is allowed, and then a press does nothing.
    MouseDownTextFieldDelegate *delegate() const { return m_delegate; }
    bool isEditable() const { return !isReadOnly(); }
    bool isBordered() const { return hasFrame(); }
    bool drawsBackground() const { return m_drawsBackground; }

    void setDelegate(MouseDownTextFieldDelegate *delegate) { m_delegate = delegate; }
    void setEditable(bool editable);
    void setBordered(bool bordered);
    void setDrawsBackground(bool draws);

    // What a press of the mouse does.
    void mouseDown(QMouseEvent *event);

Q_SIGNALS:
    void borderChanged();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool isBeingEdited() const { return isEditable() && hasFocus(); }

    MouseDownTextFieldDelegate *m_delegate = nullptr;
    bool m_drawsBackground = true;
    bool m_pressIsForTheText = false;
};

} // namespace tarvelo::widgets
