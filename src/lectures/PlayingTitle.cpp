#include "lectures/PlayingTitle.h"

#include "widgets/CutLabel.h"
#include "widgets/PlainToolTip.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QObject>
#include <QSizePolicy>

namespace tarvelo::lectures {

namespace {

// As far in as a field of one line writes, and as the drawing at the row's other end lies.
constexpr int Indent = 2;

// Follows the title of the window.
class Follower final : public QObject
{
public:
    Follower(QLineEdit &subject, widgets::CutLabel &title)
        : QObject(&title)
        , m_subject(subject)
        , m_title(title)
    {
        subject.installEventFilter(this);
        title.window()->installEventFilter(this);
        follow();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type == QEvent::ShowToParent || type == QEvent::HideToParent ||
            type == QEvent::WindowTitleChange)
            follow();
        return QObject::eventFilter(watched, event);
    }

private:
    void follow()
    {
        m_title.setText(m_title.window()->windowTitle());
        m_title.setToolTip(widgets::plainToolTip(m_title.text()));
        m_title.setVisible(m_subject.isHidden());
    }

    const QLineEdit &m_subject;
    widgets::CutLabel &m_title;
};

widgets::CutLabel *makeTitle(const QLineEdit &subject)
{
    auto *title = new widgets::CutLabel(subject.parentWidget());
    title->setObjectName(QStringLiteral("lblPlaying"));
    title->setTextFormat(Qt::PlainText);
    title->setFont(subject.font());
    title->setContentsMargins(Indent, 0, Indent, 0);
    title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    title->setFixedHeight(subject.sizeHint().height());
    return title;
}

} // namespace

void keepTitleInSight(QLineEdit &subject)
{
    auto *title = makeTitle(subject);
    new Follower(subject, *title);
    for (QHBoxLayout *row : subject.parentWidget()->findChildren<QHBoxLayout *>()) {
        if (const int at = row->indexOf(&subject); at >= 0)
            row->insertWidget(at, title, 1);
    }
}

} // namespace tarvelo::lectures
