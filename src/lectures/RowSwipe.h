#pragma once

#include "lectures/RowAction.h"

#include <QAbstractButton>
#include <QObject>
#include <QSize>
#include <QVariantAnimation>

#include <functional>

class QWheelEvent;
class QWidget;

namespace tarvelo::lectures {

// The button that a swipe uncovers at the end of a row.
class RowActionButton final : public QAbstractButton
{
    Q_OBJECT

public:
    explicit RowActionButton(QWidget *parent);

    const RowAction &action() const { return m_action; }
    void setAction(const RowAction &action);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    RowAction m_action;
};

// Moves a row aside by swiping with two fingers, or with the wheel, and uncovers its first trailing
// action. It follows the fingers and then goes on by itself, to the half that it is in. A click
// elsewhere and Escape cover the action again.
class RowSwipe final : public QObject
{
    Q_OBJECT

public:
    // The button stands in `viewport`.
    explicit RowSwipe(QWidget &viewport);

    // The row that is aside, -1 for none.
    int row() const { return m_row; }
    // By how many points it is aside, whichever the writing direction.
    int offset() const { return m_offset; }
    // There is one from the first swipe on.
    RowActionButton *button() const { return m_button; }

    // What the wheel or two fingers do across `row`, which is -1 where none lies under them. Its
    // actions are asked for when they go across; false, and nothing happens, when they do not.
    bool swipe(const QWheelEvent &event, int row, const std::function<QList<RowAction>()> &actions);
    // Uncovers `action` of `row` by so many points more, less when negative, as fingers do.
    void moveBy(int row, const RowAction &action, int points);
    // Uncovers or covers it whole, as a wheel with notches does.
    void moveToEnd(int row, const RowAction &action, bool open);
    // The fingers have left.
    void settle();
    void cover();
    void coverAtOnce();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void moved();

private:
    int fullOffset() const;
    bool isHalfOpen() const;
    void turnTo(int row, const RowAction &action);
    void setOffset(int offset);
    void animate(int to, double restPart);
    void run();

    QWidget &m_viewport;
    RowActionButton *m_button = nullptr;
    QVariantAnimation m_animation;
    int m_row = -1;
    int m_offset = 0;
};

} // namespace tarvelo::lectures
