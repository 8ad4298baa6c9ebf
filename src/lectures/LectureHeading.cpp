#include "lectures/LectureHeading.h"

#include "lectures/WindowWidths.h"
#include "platform/Texts.h"
#include "widgets/Colours.h"
#include "widgets/Faces.h"
#include "widgets/Lines.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace tarvelo::lectures {

namespace {

constexpr int Indent = 16;
// As high as the titles of the other panes.
constexpr int BandHeight = 50;
constexpr double Size = 18;

class Heading final : public QLabel
{
public:
    explicit Heading(QWidget &view)
        : QLabel(view.parentWidget())
    {
        setObjectName(QStringLiteral("lectureHeading"));
        setText(platform::text("TITLE_PLAY_LECTURE"));
        setTextFormat(Qt::PlainText);
        setFont(widgets::fixedFace(Size));
        setIndent(Indent);
        setAutoFillBackground(true);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        view.installEventFilter(this);
        follow(view);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *view = qobject_cast<QWidget *>(watched);
        const QEvent::Type type = event->type();
        if (view && (type == QEvent::Move || type == QEvent::Resize ||
                     type == QEvent::ShowToParent || type == QEvent::HideToParent))
            follow(*view);
        return QLabel::eventFilter(watched, event);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QLabel::paintEvent(event);
        QPainter painter(this);
        widgets::drawHairline(painter, {0, BandHeight, width(), 1}, widgets::colours().hairline);
    }

private:
    // Its line goes on from that of the list, and lies on the view's first points where the view
    // begins there.
    void follow(const QWidget &view)
    {
        setContentsMargins(0, 0, 0, std::max(0, view.y() + 1 - BandHeight));
        // Beside the list a line stands at the view's edge.
        const int line = view.x() > 0 ? 1 : 0;
        setGeometry(view.x() + line, 0, std::min(view.width() - line, SingleViewWidth),
                    view.y() + 1);
        setVisible(!view.isHidden() && view.y() > 0);
    }
};

} // namespace

void putHeadingOver(QWidget &lectureView)
{
    new Heading(lectureView);
}

} // namespace tarvelo::lectures
