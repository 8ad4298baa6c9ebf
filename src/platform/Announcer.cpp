#include "platform/Announcer.h"

#include <QAccessible>
#include <QAccessibleEvent>
#include <QAccessibleWidget>
#include <QApplication>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace tarvelo::platform {

namespace {

// Has no size: it is there for the ear alone.
class Announcement final : public QWidget
{
public:
    explicit Announcement(QWidget *window)
        : QWidget(window)
    {
        setObjectName(QStringLiteral("announcement"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFixedSize(0, 0);
        show();
    }
};

QAccessibleInterface *notification(const QString &, QObject *object)
{
    auto *announcement = dynamic_cast<Announcement *>(object);
    return announcement ? new QAccessibleWidget(announcement, QAccessible::Notification) : nullptr;
}

void tell(QWidget &announcement, QAccessible::Event what)
{
    QAccessibleEvent event(&announcement, what);
    QAccessible::updateAccessibility(&event);
}

Announcement &announcementOf(QWidget &window)
{
    // One is enough, and an old one would be read among the controls of a window.
    static QPointer<Announcement> only;
    if (only && only->parentWidget() != &window)
        delete only;
    if (!only)
        only = new Announcement(&window);
    return *only;
}

} // namespace

// Screen readers say a notification when it comes to the screen. That it has gone before makes the
// same words be said again.
void announce(QWidget &near, const QString &words)
{
    static const bool installed = [] {
        QAccessible::installFactory(notification);
        return true;
    }();
    Q_UNUSED(installed);
    QWidget *const active = QApplication::activeWindow();
    Announcement &announcement = announcementOf(active ? *active : *near.window());
    tell(announcement, QAccessible::ObjectHide);
    announcement.setAccessibleName(words);
    tell(announcement, QAccessible::ObjectShow);
}

} // namespace tarvelo::platform
