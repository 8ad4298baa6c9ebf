#include "widgets/Lines.h"

#include "support/TestCase.h"
#include "widgets/Drawn.h"

#include <QPainter>

#include <cmath>
#include <functional>

using tarvelo::tests::drawn;
using tarvelo::widgets::drawHairline;
using tarvelo::widgets::lineIn;
using tarvelo::widgets::onPixels;

namespace {

// A view that draws one thing.
class Canvas final : public QWidget
{
public:
    Canvas(QWidget &window, std::function<void(QPainter &, const QRect &)> draw)
        : QWidget(&window)
        , m_draw(std::move(draw))
    {
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        m_draw(painter, rect());
    }

private:
    std::function<void(QPainter &, const QRect &)> m_draw;
};

// The black pixels of a column, or -1 where one is neither black nor white.
int inkedIn(const QImage &image, int column)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        const QColor colour = image.pixelColor(column, y);
        if (colour != QColor(Qt::white) && colour != QColor(Qt::black))
            return -1;
        count += colour == QColor(Qt::black) ? 1 : 0;
    }
    return count;
}

void addRatios()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("thickness");
    QTest::newRow("100 %") << 1.0 << 1;
    QTest::newRow("125 %") << 1.25 << 1;
    QTest::newRow("150 %") << 1.5 << 1;
    QTest::newRow("175 %") << 1.75 << 1;
    QTest::newRow("200 %") << 2.0 << 2;
}

} // namespace

class LinesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anOutlineIsSharpWhereverAViewHasItsPlace_data() { addRatios(); }
    void anOutlineIsSharpWhereverAViewHasItsPlace()
    {
        QFETCH(const double, ratio);
        QFETCH(const int, thickness);
        Canvas canvas(*m_window, [](QPainter &painter, const QRect &rect) {
            painter.setPen(Qt::black);
            painter.drawRoundedRect(lineIn(painter, rect), 3, 3);
        });

        for (int y = 0; y < 4; ++y) {
            for (int height = 20; height < 24; ++height) {
                canvas.setGeometry(7, y, 40, height);
                QCOMPARE(inkedIn(drawn(*m_window, ratio), int(27 * ratio)), 2 * thickness);
            }
        }
    }

    void allHairlinesAreOfOneThickness_data() { addRatios(); }
    void allHairlinesAreOfOneThickness()
    {
        QFETCH(const double, ratio);
        QFETCH(const int, thickness);
        Canvas canvas(*m_window, [](QPainter &painter, const QRect &rect) {
            drawHairline(painter, {0, 1, rect.width(), 1}, Qt::black);
        });

        for (int y = 0; y < 4; ++y) {
            canvas.setGeometry(0, y, 40, 3);
            const QImage image = drawn(*m_window, ratio);
            QCOMPARE(inkedIn(image, 20), thickness);
            // From the pixel nearest to where it begins.
            const int first = int(std::lround((y + 1) * ratio));
            QCOMPARE(image.pixelColor(20, first), QColor(Qt::black));
        }
    }

    void aHairlineThatStandsIsAsThick()
    {
        Canvas canvas(*m_window, [](QPainter &painter, const QRect &rect) {
            drawHairline(painter, rect, Qt::black);
        });
        canvas.setGeometry(5, 0, 1, 60);

        const QImage image = drawn(*m_window, 1.5);

        QCOMPARE(inkedIn(image, 7), 0);
        QCOMPARE(inkedIn(image, 8), image.height());
        QCOMPARE(inkedIn(image, 9), 0);
    }

    void whatLiesFurtherInKeepsOneDistanceFromAllEdges()
    {
        Canvas canvas(*m_window, [](QPainter &painter, const QRect &rect) {
            painter.fillRect(rect, Qt::black);
            painter.fillRect(onPixels(painter, rect, 3), Qt::white);
        });
        canvas.setGeometry(1, 3, 41, 30);

        const QImage image = drawn(*m_window, 1.25);

        // 3.75 pixels, rounded down, at either end.
        QCOMPARE(inkedIn(image, 20), 6);
        QCOMPARE(image.pixelColor(1 + 2, 20), QColor(Qt::black));
        QCOMPARE(image.pixelColor(1 + 3, 20), QColor(Qt::white));
    }

private:
    void prepare() override
    {
        m_window = std::make_unique<QWidget>();
        m_window->resize(60, 60);
    }
    void finish() override { m_window.reset(); }

    std::unique_ptr<QWidget> m_window;
};

QTEST_MAIN(LinesTest)
#include "LinesTest.moc"
