#include "lectures/RowSwipe.h"

#include "support/TestCase.h"

#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using tarvelo::lectures::RowAction;
using tarvelo::lectures::RowSwipe;

class RowSwipeTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRowFollowsTheFingersAndUncoversTheAction()
    {
        m_swipe->moveBy(3, action(), 10);
        m_swipe->moveBy(3, action(), 5);

        QCOMPARE(m_swipe->row(), 3);
        QCOMPARE(m_swipe->offset(), 15);
        QVERIFY(m_swipe->button()->isVisible());
        QCOMPARE(m_swipe->button()->text(), u"Delete"_s);
        QCOMPARE(m_swipe->button()->accessibleName(), u"Delete"_s);
    }

    void noRowMovesFurtherThanItsActionIsWide()
    {
        m_swipe->moveBy(3, action(), 5000);

        QCOMPARE(m_swipe->offset(), m_swipe->button()->sizeHint().width());
    }

    void fingersThatRestInTheFirstHalfCoverTheActionAgain()
    {
        m_swipe->moveBy(3, action(), 10);

        QTRY_COMPARE(m_swipe->row(), -1);

        QCOMPARE(m_swipe->offset(), 0);
        QVERIFY(m_swipe->button()->isHidden());
    }

    void fingersThatRestInTheSecondHalfUncoverItWhole()
    {
        m_swipe->moveBy(3, action(), 1);
        const int full = m_swipe->button()->sizeHint().width();

        m_swipe->moveBy(3, action(), full - 15);

        QTRY_COMPARE(m_swipe->offset(), full);
        QCOMPARE(m_swipe->row(), 3);
    }

    void fingersThatLeaveAreNotWaitedFor()
    {
        m_swipe->moveBy(3, action(), 5000);
        m_swipe->moveBy(3, action(), -5);

        m_swipe->settle();

        QTRY_COMPARE(m_swipe->offset(), m_swipe->button()->sizeHint().width());
    }

    void aRowInItsPlaceMovesTowardsTheTrailingEdgeOnly()
    {
        m_swipe->moveBy(3, action(), -10);
        m_swipe->moveToEnd(3, action(), false);

        QCOMPARE(m_swipe->row(), -1);
        QVERIFY(!m_swipe->button());
    }

    void fingersThatGoBackPutTheRowInItsPlace()
    {
        m_swipe->moveBy(3, action(), 30);

        m_swipe->moveBy(3, action(), -40);

        QCOMPARE(m_swipe->row(), -1);
        QCOMPARE(m_swipe->offset(), 0);
    }

    void aWheelUncoversTheActionWithOneNotchAndCoversItWithOne()
    {
        m_swipe->moveToEnd(3, action(), true);
        QTRY_COMPARE(m_swipe->offset(), m_swipe->button()->sizeHint().width());

        m_swipe->moveToEnd(3, action(), false);
        QTRY_COMPARE(m_swipe->row(), -1);
    }

    void onlyOneRowIsAside()
    {
        m_swipe->moveBy(3, action(), 30);

        m_swipe->moveBy(4, action(), 10);

        QCOMPARE(m_swipe->row(), 4);
        QCOMPARE(m_swipe->offset(), 10);
    }

    void theActionGetsItsRowAndIsCoveredAfterwards()
    {
        m_swipe->moveToEnd(3, action(), true);

        m_swipe->button()->click();

        QCOMPARE(m_chosen, QList<int>{3});
        QTRY_COMPARE(m_swipe->row(), -1);
    }

    void theActionMayPutTheRowBackItself()
    {
        m_swipe->moveToEnd(
            3, {RowAction::Style::Regular, u"Move"_s, [this](int) { m_swipe->coverAtOnce(); }},
            true);

        m_swipe->button()->click();

        QCOMPARE(m_swipe->row(), -1);
        QVERIFY(m_swipe->button()->isHidden());
    }

    void aClickElsewhereCoversTheActionAndArrivesAllTheSame()
    {
        m_swipe->moveToEnd(3, action(), true);
        QTRY_COMPARE(m_swipe->offset(), m_swipe->button()->sizeHint().width());
        const QSignalSpy clicked(m_other, &QPushButton::clicked);

        QTest::mouseClick(m_other, Qt::LeftButton);

        QCOMPARE(clicked.count(), 1);
        QTRY_COMPARE(m_swipe->row(), -1);
        QVERIFY(m_chosen.isEmpty());
    }

    void escapeCoversTheAction()
    {
        m_swipe->moveToEnd(3, action(), true);

        QTest::keyClick(m_other, Qt::Key_Escape);

        QTRY_COMPARE(m_swipe->row(), -1);
    }

    void aPressOnTheActionItselfDoesNotCoverIt()
    {
        m_swipe->moveToEnd(3, action(), true);
        QTRY_COMPARE(m_swipe->offset(), m_swipe->button()->sizeHint().width());
        m_swipe->button()->setGeometry(200, 0, 80, 60);

        QTest::mouseClick(m_swipe->button(), Qt::LeftButton);

        QCOMPARE(m_chosen, QList<int>{3});
    }

    void aDestructiveActionLooksUnlikeAnOrdinaryOne()
    {
        m_swipe->moveBy(3, action(), 5000);
        m_swipe->button()->setGeometry(200, 0, 80, 60);
        const QColor destructive = m_swipe->button()->grab().toImage().pixelColor(2, 2);

        m_swipe->moveBy(4, {RowAction::Style::Regular, u"Delete"_s, {}}, 5000);

        QVERIFY(m_swipe->button()->grab().toImage().pixelColor(2, 2) != destructive);
        QVERIFY(destructive.red() > 200 && destructive.green() < 100);
    }

private:
    void prepare() override
    {
        m_chosen.clear();
        m_viewport = std::make_unique<QWidget>();
        m_viewport->resize(381, 400);
        m_other = new QPushButton(m_viewport.get());
        m_swipe = new RowSwipe(*m_viewport);
        m_viewport->show();
        QVERIFY(QTest::qWaitForWindowActive(m_viewport.get()));
    }
    void finish() override { m_viewport.reset(); }

    RowAction action()
    {
        return {RowAction::Style::Destructive, u"Delete"_s,
                [this](int row) { m_chosen.append(row); }};
    }

    std::unique_ptr<QWidget> m_viewport;
    QPushButton *m_other = nullptr;
    RowSwipe *m_swipe = nullptr;
    QList<int> m_chosen;
};

QTEST_MAIN(RowSwipeTest)
#include "RowSwipeTest.moc"
