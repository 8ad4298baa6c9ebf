#pragma once

#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QRectF>
#include <QWidget>

#include <memory>

class QPainterPath;

namespace tarvelo::widgets {

// A small window with an arrow to what it is about. It follows the window that it stands over,
// takes the keyboard but never the mouse, and closes on Escape and on a click or a turn of the
// wheel elsewhere, which goes where it was meant to go.
class PopOver final : public QWidget
{
    Q_OBJECT

public:
    explicit PopOver(std::unique_ptr<QWidget> content);

    QWidget &content() const { return *m_content; }
    // The edge of the rectangle at which it stands: the wanted one, or the opposite one where the
    // screen has no room for it.
    Qt::Edge edge() const { return m_edge; }
    // The end of the arrow, on the screen.
    QPoint arrowTip() const { return mapToGlobal(m_tip); }

    // Shows it at an edge of `rect`, which is given in `view`. While it shows it moves there.
    void showRelativeTo(const QRect &rect, QWidget &view, Qt::Edge preferredEdge);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    // It was on the screen and is no longer.
    void closed();

protected:
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect placeAt(const QRect &anchor, Qt::Edge edge) const;
    void place(const QRect &anchor, Qt::Edge preferredEdge);
    QRectF bubble() const;
    QPainterPath outline(const QRectF &bubble, double inset) const;
    void anchorEvent(const QEvent &event);

    QWidget *m_content;
    QPointer<QWidget> m_anchorWindow;
    QPoint m_anchorCorner;
    QPoint m_tip;
    Qt::Edge m_edge = Qt::BottomEdge;
};

} // namespace tarvelo::widgets
