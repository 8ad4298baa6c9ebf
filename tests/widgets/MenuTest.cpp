#include "widgets/Menu.h"

#include "support/TestCase.h"

#include <QStyleOptionMenuItem>

using tarvelo::widgets::Menu;

class MenuTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

    static QString textIn(Qt::LayoutDirection direction, const QKeySequence &keys)
    {
        Menu menu;
        menu.setLayoutDirection(direction);
        QAction *action = menu.addAction(QStringLiteral("Title"));
        action->setShortcut(keys);
        action->setShortcutVisibleInContextMenu(true);
        QStyleOptionMenuItem option;
        menu.initStyleOption(&option, action);
        return option.text;
    }

private Q_SLOTS:
    void keysAreWrittenFromLeftToRightInAMenuThatRunsTheOtherWay()
    {
        QCOMPARE(textIn(Qt::RightToLeft, Qt::CTRL | Qt::Key_Comma),
                 QStringLiteral("Title\t\u200eCtrl+,\u200e"));
    }

    void elsewhereNothingIsAdded()
    {
        QCOMPARE(textIn(Qt::LeftToRight, Qt::CTRL | Qt::Key_Comma),
                 QStringLiteral("Title\tCtrl+,"));
        QCOMPARE(textIn(Qt::RightToLeft, {}), QStringLiteral("Title"));
    }
};

QTEST_MAIN(MenuTest)
#include "MenuTest.moc"
