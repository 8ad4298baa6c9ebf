#include "widgets/Accessibility.h"

#include "widgets/ImageButton.h"
#include "widgets/LevelIndicator.h"
#include "widgets/PopOver.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QAccessibleValueInterface>
#include <QAccessibleWidget>
#include <QApplication>
#include <QFrame>
#include <QMetaObject>
#include <QStringList>
#include <QVariant>
#include <QWidget>

namespace tarvelo::widgets {

namespace {

// A window holds what can be seen of it: a part that waits beside its edge is not there yet. A menu
// that is open over it belongs to it, since menus are windows of which nobody else knows.
class WindowAccess final : public QAccessibleWidget
{
public:
    WindowAccess(QWidget *window, QAccessible::Role role)
        : QAccessibleWidget(window, role)
    {
    }

    int childCount() const override { return static_cast<int>(parts().size()); }
    QAccessibleInterface *child(int index) const override
    {
        QWidget *part = parts().value(index);
        return part ? QAccessible::queryAccessibleInterface(part) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child ? static_cast<int>(parts().indexOf(qobject_cast<QWidget *>(child->object())))
                     : -1;
    }

private:
    QList<QWidget *> parts() const
    {
        QList<QWidget *> parts;
        for (QObject *child : widget()->children()) {
            auto *part = qobject_cast<QWidget *>(child);
            if (part && !part->isWindow() && isInSight(*part))
                parts.append(part);
        }
        QWidget *popup = QApplication::activePopupWidget();
        if (popup && widget()->isActiveWindow() && !popup->parentWidget())
            parts.append(popup);
        return parts;
    }
    // What has no size is there for the ear.
    bool isInSight(const QWidget &part) const
    {
        return part.size().isEmpty() || part.geometry().intersects(widget()->rect());
    }
};

class LevelAccess final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit LevelAccess(LevelIndicator *indicator)
        : QAccessibleWidget(indicator, QAccessible::ProgressBar)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override
    {
        return static_cast<LevelIndicator *>(widget())->floatValue();
    }
    void setCurrentValue(const QVariant &) override {}
    QVariant maximumValue() const override { return 1.0; }
    QVariant minimumValue() const override { return 0.0; }
    QVariant minimumStepSize() const override { return 0.0; }
};

// A button that stays down while something lasts, and says by its name what the next press does: to
// call it a box that is checked would say the opposite.
class ToggleAccess final : public QAccessibleWidget
{
public:
    explicit ToggleAccess(ImageButton *button)
        : QAccessibleWidget(button, QAccessible::Button)
    {
    }

    QStringList actionNames() const override
    {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString &name) override
    {
        if (name == pressAction())
            static_cast<ImageButton *>(widget())->click();
        else
            QAccessibleWidget::doAction(name);
    }
};

bool isOf(const QString &className, const QMetaObject &type)
{
    return className == QLatin1String(type.className());
}

// Asked for every object and each of its classes, from the most special one on.
QAccessibleInterface *interfaceOf(const QString &className, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget)
        return nullptr;
    if (isOf(className, LevelIndicator::staticMetaObject))
        return new LevelAccess(static_cast<LevelIndicator *>(widget));
    if (isOf(className, PopOver::staticMetaObject))
        return new WindowAccess(widget, QAccessible::Dialog);
    if (isOf(className, ImageButton::staticMetaObject) &&
        static_cast<ImageButton *>(widget)->isCheckable())
        return new ToggleAccess(static_cast<ImageButton *>(widget));
    // A frame with nothing in it is a line between others.
    if (isOf(className, QFrame::staticMetaObject))
        return new QAccessibleWidget(widget, widget->layout() ? QAccessible::Grouping
                                                              : QAccessible::Separator);
    if (isOf(className, QWidget::staticMetaObject) && widget->windowType() == Qt::Window)
        return new WindowAccess(widget, QAccessible::Window);
    // What holds others and has a name of its own is more than a place.
    if (isOf(className, QWidget::staticMetaObject) && !widget->accessibleName().isEmpty())
        return new QAccessibleWidget(widget, QAccessible::Grouping);
    return nullptr;
}

} // namespace

void installAccessibility()
{
    // One that is installed already is not installed again.
    QAccessible::installFactory(interfaceOf);
}

} // namespace tarvelo::widgets
