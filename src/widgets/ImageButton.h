#pragma once

#include "platform/Images.h"

#include <QByteArray>
#include <QKeySequence>
#include <QPushButton>
#include <QRectF>
#include <QSize>

#include <functional>
#include <utility>

class QImage;
class QPainter;
class QWidget;

namespace tarvelo::widgets {

// What a button does when it is pressed: the operation's name, so that it can be asked for, and the
// operation, which gets the pressed button (or whoever pressed it in its place) as its sender.
struct Action
{
    QByteArray name;
    std::function<void(QWidget *sender)> run;
};

// A push button that shows an image of the application, another one while it is pressed or switched
// on, and sends one action that can be exchanged while the program runs. Without an image it looks
// like any other push button.
class ImageButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ImageButton(QWidget *parent = nullptr);

    const platform::Image &image() const { return m_image; }
    const platform::Image &alternateImage() const { return m_alternateImage; }
    QByteArray actionName() const { return m_action.name; }
    int tag() const { return m_tag; }
    // 1 while switched on, else 0. Only a toggle button can be on.
    int state() const { return isChecked() ? 1 : 0; }

    void setImage(const platform::Image &image);
    void setAlternateImage(const platform::Image &image);
    // Both images by name and the tool tip, which is the button's accessible name too, in one go.
    void setLook(const QString &image, const QString &alternate, const QString &toolTip);
    // The keys that press the button, by whoever listens to them: the tool tip shows them, and
    // screen readers say them. A shortcut of the button itself would take the keyboard from a text.
    void setKeys(const QKeySequence &keys);
    void setAction(Action action) { m_action = std::move(action); }
    void setTag(int tag) { m_tag = tag; }
    void setState(int state) { setChecked(state != 0); }

    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    // Where the image goes: as large as the drawing is, in the middle; smaller buttons shrink it.
    virtual QRectF imageRect(const platform::Image &image) const;
    // What the focus ring goes around.
    virtual QRectF focusRect() const { return rect(); }
    // The ground that a drawing without one of its own gets for who turns to it, else nothing.
    virtual QRectF plate() const { return {}; }
    // Whether the mouse is on it, for what that changes of its look.
    virtual bool isTurnedTo() const { return underMouse(); }
    void paintFocus(QPainter &painter) const;

private:
    // The drawing as it shows that one turns to it, or that it cannot be used.
    float shadeOf(const QRectF &drawing) const;
    void paintTile(QPainter &painter) const;
    void paintChanged(QPainter &painter, const platform::Image &image) const;
    void showState(QImage &drawing, const platform::Image &image) const;

    platform::Image m_image;
    platform::Image m_alternateImage;
    Action m_action;
    QKeySequence m_keys;
    int m_tag = 0;
    // The focus is drawn for who came by keyboard: a window that opens, or a click, needs no ring.
    bool m_showsFocus = false;
};

} // namespace tarvelo::widgets
