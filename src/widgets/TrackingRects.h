#pragma once

#include <QObject>
#include <QRect>

#include <functional>
#include <vector>

class QPoint;
class QWidget;

namespace tarvelo::widgets {

// Rectangles of a view in which it hears the mouse come and go, each known by its tag. A rectangle
// is not assumed to hold the mouse when it is added: the next move inside counts as coming in. A
// view without rectangles hears nothing.
class TrackingRects final : public QObject
{
    Q_OBJECT

public:
    struct Owner
    {
        std::function<void()> mouseEntered;
        std::function<void()> mouseExited;
    };

    // `view` must outlive this object, which may be a member of it.
    TrackingRects(QWidget &view, Owner owner);

    int count() const { return static_cast<int>(m_rects.size()); }

    // In the view's own coordinates. Tags are never 0 and never used twice.
    int addTrackingRect(const QRect &rect);
    // A tag that is not in use, such as 0, is ignored.
    void removeTrackingRect(int tag);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Tracked
    {
        int tag;
        QRect rect;
        bool isInside;
    };

    void mouseAt(const QPoint &position);
    void mouseGone();

    Owner m_owner;
    int m_lastTag = 0;
    std::vector<Tracked> m_rects;
};

} // namespace tarvelo::widgets
