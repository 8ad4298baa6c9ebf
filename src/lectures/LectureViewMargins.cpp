#include "lectures/LectureViewMargins.h"

#include "lectures/WindowWidths.h"

#include <QEvent>
#include <QLayout>
#include <QMargins>
#include <QObject>
#include <QWidget>

#include <algorithm>

namespace tarvelo::lectures {

namespace {

class Margins final : public QObject
{
public:
    explicit Margins(QWidget &view)
        : QObject(&view)
        , m_margins(view.layout()->contentsMargins())
    {
        view.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *view = qobject_cast<QWidget *>(watched);
        if (view && event->type() == QEvent::Resize) {
            const int outOfSight = std::max(0, view->width() - SingleViewWidth);
            view->layout()->setContentsMargins(m_margins + QMargins(0, 0, outOfSight, 0));
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QMargins m_margins;
};

} // namespace

void keepContentInSight(QWidget &lectureView)
{
    new Margins(lectureView);
}

} // namespace tarvelo::lectures
