#include "lectures/MainWindow.h"

#include "lectures/ProgramCase.h"
#include "lectures/WindowWidths.h"

#include <QLayout>

using namespace Qt::StringLiterals;

class MainWindowTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tarvelo::platform::installTexts(); }

    void theMainWindowIsAsWideAsCalendarAndList()
    {
        QCOMPARE(windows().mainWindow().size(), QSize(833, 540));
        QCOMPARE(windows().mainWindow().frameWidth(), 833);
    }

    void theListsHeaderStandsAsFarFromBothItsEdgesInEitherDirection()
    {
        const auto &main = windows().mainOutlets();
        const QWidget &header = *main.btnAddItem->parentWidget();
        main.lblDateDisplay->setText(u"5"_s);
        const auto edges = [&](Qt::LayoutDirection direction) {
            windows().mainWindow().setLayoutDirection(direction);
            header.layout()->activate();
            const QRect date = main.lblDateDisplay->geometry();
            const QRect add = main.btnAddItem->geometry();
            const int right = header.width() - 1;
            return direction == Qt::LeftToRight ? QPoint(date.left(), right - add.right())
                                                : QPoint(right - date.right(), add.left());
        };

        QCOMPARE(edges(Qt::LeftToRight), QPoint(16, 12));
        QCOMPARE(edges(Qt::RightToLeft), QPoint(16, 12));
    }

    void theCalendarFillsItsPane()
    {
        const QRect calendar = windows().mainOutlets().calendarView->geometry();

        QCOMPARE(calendar.x(), -2);
        QCOMPARE(calendar.width(), 450);
        QCOMPARE(calendar.y() + calendar.height(), 540);
    }

    void theLineBetweenTwoPanesShowsOnlyWithBoth()
    {
        auto &window = windows().mainWindow();
        const auto isInSight = [&](const char *line) {
            const auto *view = window.findChild<QWidget *>(QLatin1String(line));
            return window.rect().contains(view->geometry());
        };
        QVERIFY(isInSight("paneLine") && !isInSight("lectureLine"));

        window.setFrameWidth(tarvelo::lectures::FoldedWidth, false);
        QVERIFY(!isInSight("paneLine") && !isInSight("lectureLine"));

        window.setFrameWidth(tarvelo::lectures::ExpandedWidth, false);
        QVERIFY(isInSight("paneLine") && isInSight("lectureLine"));
    }
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
