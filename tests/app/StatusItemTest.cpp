#include "app/StatusItem.h"

#include "support/TestCase.h"

#include <QMenu>
#include <QPainter>
#include <QSignalSpy>

using tarvelo::app::StatusItem;
using tarvelo::platform::imageNamed;

class StatusItemTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theItemShowsTheApplicationImageAndItsMenu()
    {
        QMenu menu;
        StatusItem item(menu, QStringLiteral("Tarvelo"));
        QVERIFY(!item.exists());

        item.create(imageNamed(QStringLiteral("icon.icns")));

        QVERIFY(item.exists());
        QCOMPARE(item.item()->contextMenu(), &menu);
        QCOMPARE(item.item()->toolTip(), QStringLiteral("Tarvelo"));
        QCOMPARE(item.item()->icon().availableSizes().first(), QSize(20, 20));
        QCOMPARE(shownBy(item), painted(imageNamed(QStringLiteral("icon.icns"))));
        QVERIFY(shownBy(item).pixelColor(10, 10).alpha() > 0);
        QVERIFY(item.item()->isVisible());
    }

    void theItemGoesWhenItIsNotWanted()
    {
        QMenu menu;
        StatusItem item(menu, QString());
        item.create(imageNamed(QStringLiteral("icon.icns")));

        item.remove();

        QVERIFY(!item.exists());
    }

    void removingWhatIsNotThereChangesNothing()
    {
        QMenu menu;
        StatusItem item(menu, QString());

        item.remove();

        QVERIFY(!item.exists());
    }

    void aMissingImageLeavesTheItemWithoutOne()
    {
        QMenu menu;
        StatusItem item(menu, QString());

        item.create(imageNamed(QStringLiteral("nothingHasThisName")));

        QVERIFY(item.exists());
        QCOMPARE(shownBy(item).pixelColor(10, 10).alpha(), 0);
    }

private:
    static QImage shownBy(const StatusItem &item)
    {
        return item.item()->icon().pixmap(20, 20).toImage().convertToFormat(QImage::Format_ARGB32);
    }
    static QImage painted(const tarvelo::platform::Image &image)
    {
        QPixmap pixmap(20, 20);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        image.paint(painter, QRectF(0, 0, 20, 20));
        painter.end();
        return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    }
};

QTEST_MAIN(StatusItemTest)
#include "StatusItemTest.moc"
