#include "widgets/CardView.h"

#include "support/TestCase.h"

#include <QLayout>
#include <QVBoxLayout>

using tarvelo::widgets::CardView;

class CardViewTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itsWindowHasRoundCorners()
    {
        QVERIFY(!m_window->mask().contains(QPoint(0, 0)));
        QVERIFY(!m_window->mask().contains(QPoint(199, 99)));
        QVERIFY(m_window->mask().contains(QPoint(100, 0)));
        QVERIFY(m_window->mask().contains(QPoint(0, 50)));
    }

    void allItsCornersAreAlike()
    {
        const QRegion shape = m_window->mask();

        for (int y = 0; y < 14; ++y) {
            for (int x = 0; x < 14; ++x) {
                const bool isIn = shape.contains(QPoint(x, y));
                QCOMPARE(shape.contains(QPoint(199 - x, y)), isIn);
                QCOMPARE(shape.contains(QPoint(x, 99 - y)), isIn);
                QCOMPARE(shape.contains(QPoint(199 - x, 99 - y)), isIn);
            }
        }
    }

    void theShapeGrowsWithTheCard()
    {
        m_window->resize(300, 200);

        QTRY_VERIFY(m_window->mask().contains(QPoint(299, 100)));
        QVERIFY(!m_window->mask().contains(QPoint(299, 199)));
    }

    void aLineGoesAroundIt()
    {
        const QColor line = m_window->palette().color(QPalette::Shadow);

        const QImage image = m_window->grab().toImage();

        QCOMPARE(image.pixelColor(100, 0), line);
        QCOMPARE(image.pixelColor(0, 50), line);
        QCOMPARE(image.pixelColor(199, 50), line);
        QCOMPARE(image.pixelColor(100, 99), line);
        QCOMPARE(image.pixelColor(100, 50), m_window->palette().color(QPalette::Window));
    }

private:
    void prepare() override
    {
        m_window = std::make_unique<QWidget>(nullptr, Qt::FramelessWindowHint);
        QPalette colours;
        colours.setColor(QPalette::Window, Qt::white);
        colours.setColor(QPalette::Shadow, Qt::darkGray);
        m_window->setPalette(colours);
        auto *layout = new QVBoxLayout(m_window.get());
        layout->setContentsMargins({});
        layout->addWidget(new CardView);
        m_window->resize(200, 100);
        m_window->show();
    }
    void finish() override { m_window.reset(); }

    std::unique_ptr<QWidget> m_window;
};

QTEST_MAIN(CardViewTest)
#include "CardViewTest.moc"
