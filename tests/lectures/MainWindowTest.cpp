#include "lectures/MainWindow.h"

#include "support/LectureProgram.h"
#include "support/TestCase.h"

#include <QLayout>

using namespace Qt::StringLiterals;
using tarvelo::tests::LectureProgram;

class MainWindowTest final : public tarvelo::tests::TestCase
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

private:
    void prepare() override { m_program = std::make_unique<LectureProgram>(); }
    void finish() override { m_program.reset(); }

    const tarvelo::lectures::LectureWindows &windows() const { return m_program->windows; }

    std::unique_ptr<LectureProgram> m_program;
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
