#include "lectures/LectureTableAccess.h"

#include "lectures/CustomTableCellView.h"
#include "lectures/LectureTable.h"
#include "lectures/RowSwipe.h"
#include "widgets/ImageView.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QAccessibleWidget>
#include <QMenu>
#include <QObject>
#include <QWidget>

namespace tarvelo::lectures {

namespace {

// Parts that are not simply all child widgets, in the order in which they are read.
class PartsAccess : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    int childCount() const final { return static_cast<int>(parts().size()); }
    QAccessibleInterface *child(int index) const final
    {
        QWidget *part = parts().value(index);
        return part ? QAccessible::queryAccessibleInterface(part) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const final
    {
        return child ? static_cast<int>(parts().indexOf(qobject_cast<QWidget *>(child->object())))
                     : -1;
    }

protected:
    virtual QList<QWidget *> parts() const = 0;
};

// The rows that show, from above to below, and the action that a swipe uncovers.
class TableAccess final : public PartsAccess
{
public:
    explicit TableAccess(LectureTable *table)
        : PartsAccess(table, QAccessible::List)
    {
    }

    QAccessibleInterface *focusChild() const override
    {
        if (CustomTableCellView *row = table().keyboardRow())
            return QAccessible::queryAccessibleInterface(row);
        return PartsAccess::focusChild();
    }

    // The keyboard is on the row, where there is one.
    QAccessible::State state() const override
    {
        QAccessible::State state = PartsAccess::state();
        state.focused = state.focused && !table().keyboardRow();
        return state;
    }

protected:
    QList<QWidget *> parts() const override
    {
        QList<QWidget *> parts;
        for (CustomTableCellView *row : table().shownRows())
            parts.append(row);
        if (auto *button = table().viewport()->findChild<RowActionButton *>();
            button && button->isVisible())
            parts.append(button);
        return parts;
    }

private:
    LectureTable &table() const { return *static_cast<LectureTable *>(widget()); }
};

// The texts and the buttons of a row, and its menu while that is open.
class RowAccess final : public PartsAccess
{
public:
    explicit RowAccess(CustomTableCellView *row)
        : PartsAccess(row, QAccessible::ListItem)
    {
    }

    QAccessibleInterface *parent() const override
    {
        if (LectureTable *table = this->table())
            return QAccessible::queryAccessibleInterface(table);
        return PartsAccess::parent();
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = PartsAccess::state();
        const LectureTable *table = this->table();
        state.focusable = true;
        state.selectable = true;
        state.selected = table && table->isSelected(*widget());
        state.focused = table && table->keyboardRow() == widget() && table->hasFocus();
        return state;
    }

protected:
    QList<QWidget *> parts() const override
    {
        QList<QWidget *> parts;
        for (QObject *child : widget()->children()) {
            auto *part = qobject_cast<QWidget *>(child);
            const bool isMenu = qobject_cast<QMenu *>(child) && part->isVisible();
            if (isMenu || (part && !part->isWindow() && !qobject_cast<widgets::ImageView *>(part)))
                parts.append(part);
        }
        return parts;
    }

private:
    LectureTable *table() const
    {
        QWidget *viewport = widget()->parentWidget();
        return viewport ? qobject_cast<LectureTable *>(viewport->parentWidget()) : nullptr;
    }
};

QAccessibleInterface *interfaceOf(const QString &className, QObject *object)
{
    if (className == QLatin1String(LectureTable::staticMetaObject.className()))
        return new TableAccess(static_cast<LectureTable *>(object));
    if (className == QLatin1String(CustomTableCellView::staticMetaObject.className()))
        return new RowAccess(static_cast<CustomTableCellView *>(object));
    return nullptr;
}

} // namespace

void installTableAccessibility()
{
    QAccessible::installFactory(interfaceOf);
}

} // namespace tarvelo::lectures
