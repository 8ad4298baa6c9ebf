#include "lectures/Slides.h"

#include "platform/Frames.h"

#include <QAbstractAnimation>
#include <QPropertyAnimation>
#include <QRect>
#include <QWidget>

namespace tarvelo::lectures {

void slideTo(QWidget &view, const QRectF &frame, std::chrono::milliseconds duration)
{
    for (QPropertyAnimation *running :
         view.findChildren<QPropertyAnimation *>(Qt::FindDirectChildrenOnly))
        delete running;
    const QRect target = platform::flipped(frame, view.parentWidget()->height());
    if (view.geometry() == target)
        return;
    auto *slide = new QPropertyAnimation(&view, "geometry", &view);
    slide->setDuration(static_cast<int>(duration.count()));
    slide->setEndValue(target);
    slide->start(QAbstractAnimation::DeleteWhenStopped);
}

} // namespace tarvelo::lectures
