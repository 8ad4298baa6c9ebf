#pragma once

#include <QPointF>
#include <QRectF>
#include <QWidget>

#include <memory>

class QPoint;

namespace tarvelo::widgets {

// A window without a border that the user moves by dragging it anywhere but at a control, and that
// shrinks into its middle when it closes. What is seen of it is what stands in it. Frames and
// places count from the bottom-left corner of the first screen.
class CustomWindow : public QWidget
{
    Q_OBJECT

public:
    // The style of a window without a border, and a backing that is drawn to first.
    static constexpr int Borderless = 0;
    static constexpr int Buffered = 2;

    // `styleMask`, `backing` and `defer` say how windows of other classes are to be made. This one
    // is borderless, buffered and made at once whatever they say, which is wanted.
    CustomWindow(const QRectF &contentRect, int styleMask, int backing, bool defer);
    ~CustomWindow() override;

    int styleMask() const { return Borderless; }
    int backingType() const { return Buffered; }
    bool isDeferred() const { return false; }
    double alphaValue() const { return windowOpacity(); }
    bool isOpaque() const { return !testAttribute(Qt::WA_TranslucentBackground); }
    // It takes the keyboard, although it has no title bar.
    bool canBecomeKeyWindow() const { return true; }
    // It hangs on another window, which waits for it.
    bool isSheet() const;
    // Where in the window the mouse was pressed.
    QPointF initialLocation() const { return m_initialLocation; }
    void setInitialLocation(const QPointF &location) { m_initialLocation = location; }

    // A drag begins, and goes on. Its top edge stops below what lies at the top of the screen; all
    // other edges may leave the screen, which is wanted.
    void mouseDown(QMouseEvent *event);
    void mouseDragged(QMouseEvent *event);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    // The end of every way to close it, which whoever guards it has allowed by then.
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    struct Shape;

    QPointF locationInWindow(const QMouseEvent &event) const;
    bool isOnControl(const QPoint &place) const;
    void shrink();
    void showPictureInsteadOfContent();
    void fitPicture();

    QPointF m_initialLocation;
    bool m_isDragged = false;
    // What it was before it shrank; only until it is hidden.
    std::unique_ptr<Shape> m_shape;
};

} // namespace tarvelo::widgets
