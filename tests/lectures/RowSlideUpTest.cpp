#include "lectures/RowSlideUp.h"

#include "support/TestCase.h"

#include <QPainter>
#include <QSignalSpy>

using namespace std::chrono_literals;
using tarvelo::lectures::RowSlideUp;

class RowSlideUpTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theRowsFromTheGapOnComeUpFromBelow()
    {
        start(2, 10s);

        QCOMPARE(m_slideUp->gapAbove(1), 0);
        QCOMPARE(m_slideUp->gapAbove(2), 68);
        QCOMPARE(m_slideUp->gapAbove(3), 68);
        QTRY_VERIFY(m_slideUp->gap() < 68);
        QVERIFY(m_slideUp->isRunning());
    }

    void theEndIsToldOnceWhenTheGapIsClosed()
    {
        start(0, 40ms);
        QCOMPARE(m_completions, 0);

        QTRY_COMPARE(m_completions, 1);

        QVERIFY(!m_slideUp->isRunning());
        QCOMPARE(m_slideUp->gap(), 0);
        m_slideUp->finish();
        QCOMPARE(m_completions, 1);
    }

    void whatStillSlidesCanBeEndedAtOnce()
    {
        const QSignalSpy moved(m_slideUp.get(), &RowSlideUp::moved);
        start(0, 10s);

        m_slideUp->finish();

        QCOMPARE(m_completions, 1);
        QCOMPARE(m_slideUp->gapAbove(0), 0);
        QVERIFY(moved.count() > 0);
    }

    void aSecondRowWaitsForNothing()
    {
        start(0, 10s);

        start(3, 10s);

        QCOMPARE(m_completions, 1);
        QCOMPARE(m_slideUp->row(), 3);
        QCOMPARE(m_slideUp->gapAbove(3), 68);
    }

    void theEndMayBeginTheNext()
    {
        m_slideUp->start(0, 68, {}, 10s, [this] { start(1, 10s); });

        m_slideUp->finish();

        QVERIFY(m_slideUp->isRunning());
        QCOMPARE(m_slideUp->row(), 1);
    }

    void nothingIsToldWhenItIsGone()
    {
        start(0, 10s);

        m_slideUp.reset();

        QCOMPARE(m_completions, 0);
    }

    void thePictureIsCutAtTheRowAbove()
    {
        QPixmap picture(20, 68);
        picture.fill(Qt::red);
        m_slideUp->start(0, 68, picture, 10s, nullptr);
        QTRY_VERIFY(m_slideUp->gap() < 60);
        QImage canvas(20, 200, QImage::Format_RGB32);
        canvas.fill(Qt::white);

        QPainter painter(&canvas);
        m_slideUp->paint(painter, 50);
        painter.end();

        QCOMPARE(canvas.pixelColor(5, 49), QColor(Qt::white));
        QCOMPARE(canvas.pixelColor(5, 50), QColor(Qt::red));
        QCOMPARE(canvas.pixelColor(5, 49 + m_slideUp->gap()), QColor(Qt::red));
        QCOMPARE(canvas.pixelColor(5, 50 + m_slideUp->gap()), QColor(Qt::white));
    }

private:
    void prepare() override
    {
        m_slideUp = std::make_unique<RowSlideUp>();
        m_completions = 0;
    }
    void finish() override { m_slideUp.reset(); }

    void start(int row, std::chrono::milliseconds duration)
    {
        m_slideUp->start(row, 68, {}, duration, [this] { ++m_completions; });
    }

    std::unique_ptr<RowSlideUp> m_slideUp;
    int m_completions = 0;
};

QTEST_MAIN(RowSlideUpTest)
#include "RowSlideUpTest.moc"
