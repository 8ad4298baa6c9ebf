#include "lectures/Slides.h"

#include "support/TestCase.h"

#include <QPropertyAnimation>
#include <QWidget>

#include <optional>

using namespace std::chrono_literals;
using tarvelo::lectures::slideTo;

namespace {

constexpr auto Soon = 20ms;
// Longer than a test may last.
constexpr auto Never = 1h;

const QRectF Above(10, 200, 80, 60); // from the bottom of a parent that is 300 high
const QRect AboveOnScreen(10, 40, 80, 60);
const QRectF Below(10, 0, 80, 60);
const QRect BelowOnScreen(10, 240, 80, 60);

} // namespace

class SlidesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aViewComesToItsPlaceCountedFromTheBottom()
    {
        slideTo(view(), Above, Soon);

        QTRY_COMPARE(view().geometry(), AboveOnScreen);
    }

    void aSlideTakesItsTimeAndBeginsWhereTheViewIs()
    {
        const QRect before = view().geometry();

        slideTo(view(), Above, Never);

        QCOMPARE(view().geometry(), before);
        QCOMPARE(slides().size(), 1);
        QCOMPARE(slides().first()->duration(), 3'600'000);
        QCOMPARE(slides().first()->endValue().toRect(), AboveOnScreen);
    }

    void aViewIsOnItsWayInBetween()
    {
        slideTo(view(), Above, Never);

        slides().first()->setCurrentTime(1'800'000);

        QCOMPARE(view().geometry(), QRect(5, 20, 65, 55));
    }

    void aSlideGivesWayToTheNextOne()
    {
        slideTo(view(), Above, Never);
        slides().first()->setCurrentTime(1'800'000);

        slideTo(view(), Below, Soon);

        QCOMPARE(slides().size(), 1);
        QTRY_COMPARE(view().geometry(), BelowOnScreen);
    }

    void aSlideToWhereTheViewIsEndsTheOneUnderWay()
    {
        slideTo(view(), Above, Never);

        slideTo(view(), QRectF(0, 250, 50, 50), Soon);

        QVERIFY(slides().isEmpty());
        QCOMPARE(view().geometry(), QRect(0, 0, 50, 50));
    }

    void whatHasArrivedLeavesNothingBehind()
    {
        slideTo(view(), Above, Soon);

        QTRY_VERIFY(slides().isEmpty());
        QCOMPARE(view().geometry(), AboveOnScreen);
    }

    void otherAnimationsInsideTheViewGoOn()
    {
        QWidget inner(&view());
        slideTo(inner, QRectF(0, 0, 10, 10), Never);

        slideTo(view(), Above, Soon);

        QTRY_COMPARE(view().geometry(), AboveOnScreen);
        QCOMPARE(inner.findChildren<QPropertyAnimation *>().size(), 1);
    }

    void aViewThatGoesEndsItsSlide()
    {
        slideTo(view(), Above, Never);
        const QPointer<QPropertyAnimation> slide(slides().first());

        m_view.reset();

        QVERIFY(!slide);
    }

private:
    void prepare() override
    {
        m_parent.emplace();
        m_parent->resize(200, 300);
        m_view.emplace(&*m_parent);
        m_view->setGeometry(0, 0, 50, 50);
    }
    void finish() override
    {
        m_view.reset();
        m_parent.reset();
    }

    QWidget &view() { return *m_view; }
    QList<QPropertyAnimation *> slides() const
    {
        return m_view->findChildren<QPropertyAnimation *>(Qt::FindDirectChildrenOnly);
    }

    std::optional<QWidget> m_parent;
    std::optional<QWidget> m_view;
};

QTEST_MAIN(SlidesTest)
#include "SlidesTest.moc"
