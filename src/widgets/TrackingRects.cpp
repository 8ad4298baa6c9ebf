#include "widgets/TrackingRects.h"

#include <QEnterEvent>
#include <QEvent>
#include <QMouseEvent>
#include <QWidget>

#include <utility>

namespace tarvelo::widgets {

TrackingRects::TrackingRects(QWidget &view, Owner owner)
    : m_owner(std::move(owner))
{
    view.setMouseTracking(true);
    view.installEventFilter(this);
}

int TrackingRects::addTrackingRect(const QRect &rect)
{
    m_rects.push_back({++m_lastTag, rect, false});
    return m_lastTag;
}

void TrackingRects::removeTrackingRect(int tag)
{
    std::erase_if(m_rects, [tag](const Tracked &tracked) { return tracked.tag == tag; });
}

bool TrackingRects::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Enter)
        mouseAt(static_cast<QEnterEvent *>(event)->position().toPoint());
    else if (event->type() == QEvent::MouseMove)
        mouseAt(static_cast<QMouseEvent *>(event)->position().toPoint());
    else if (event->type() == QEvent::Leave)
        mouseGone();
    return false;
}

void TrackingRects::mouseAt(const QPoint &position)
{
    int entered = 0;
    int exited = 0;
    // Counted first and told afterwards, since the owner may exchange its rectangles when told.
    for (Tracked &tracked : m_rects) {
        const bool isInside = tracked.rect.contains(position);
        entered += isInside && !tracked.isInside ? 1 : 0;
        exited += !isInside && tracked.isInside ? 1 : 0;
        tracked.isInside = isInside;
    }
    for (; exited > 0; --exited)
        m_owner.mouseExited();
    for (; entered > 0; --entered)
        m_owner.mouseEntered();
}

void TrackingRects::mouseGone()
{
    int exited = 0;
    for (Tracked &tracked : m_rects)
        exited += std::exchange(tracked.isInside, false) ? 1 : 0;
    for (; exited > 0; --exited)
        m_owner.mouseExited();
}

} // namespace tarvelo::widgets
