#include "lectures/PlayingTitle.h"

#include "widgets/PlainToolTip.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

namespace tarvelo::lectures {

namespace {

// As far in as a field of one line writes.
constexpr int Indent = 2;

// As much of the title as there is room for; the tool tip has it whole.
class Title final : public QLabel
{
public:
    explicit Title(QLineEdit &subject)
        : QLabel(subject.parentWidget())
        , m_subject(subject)
    {
        setObjectName(QStringLiteral("lblPlaying"));
        setTextFormat(Qt::PlainText);
        setFont(subject.font());
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        setFixedHeight(subject.sizeHint().height());
        subject.installEventFilter(this);
        window()->installEventFilter(this);
        follow();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type == QEvent::ShowToParent || type == QEvent::HideToParent ||
            type == QEvent::WindowTitleChange)
            follow();
        return QLabel::eventFilter(watched, event);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QRect place = rect().adjusted(Indent, 0, -Indent, 0);
        painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeading,
                         fontMetrics().elidedText(text(), Qt::ElideRight, place.width()));
    }

private:
    void follow()
    {
        setText(window()->windowTitle());
        setToolTip(widgets::plainToolTip(text()));
        setVisible(m_subject.isHidden());
    }

    const QLineEdit &m_subject;
};

} // namespace

void keepTitleInSight(QLineEdit &subject)
{
    auto *title = new Title(subject);
    for (QHBoxLayout *row : subject.parentWidget()->findChildren<QHBoxLayout *>()) {
        if (const int at = row->indexOf(&subject); at >= 0)
            row->insertWidget(at, title, 1);
    }
}

} // namespace tarvelo::lectures
