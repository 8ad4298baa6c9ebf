#include "widgets/TrackingRects.h"

#include "support/TestCase.h"

#include <QEnterEvent>
#include <QWidget>

using tarvelo::widgets::TrackingRects;

class TrackingRectsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<QWidget> m_view;
    std::unique_ptr<TrackingRects> m_rects;
    int m_entered = 0;
    int m_exited = 0;

    void enterAt(const QPointF &place)
    {
        QEnterEvent event(place, place, place);
        QCoreApplication::sendEvent(m_view.get(), &event);
    }
    void moveTo(const QPointF &place)
    {
        QMouseEvent event(QEvent::MouseMove, place, place, Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(m_view.get(), &event);
    }
    void leave()
    {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(m_view.get(), &event);
    }

protected:
    void prepare() override
    {
        m_entered = 0;
        m_exited = 0;
        m_view = std::make_unique<QWidget>();
        m_view->resize(100, 100);
        m_rects = std::make_unique<TrackingRects>(
            *m_view, TrackingRects::Owner{[this] { ++m_entered; }, [this] { ++m_exited; }});
    }
    void finish() override
    {
        m_rects.reset();
        m_view.reset();
    }

private Q_SLOTS:
    void withoutRectanglesNothingIsHeard()
    {
        enterAt({5, 5});
        leave();

        QCOMPARE(m_entered + m_exited, 0);
    }

    void comingAndGoingIsHeardOnce()
    {
        m_rects->addTrackingRect(m_view->rect());

        enterAt({5, 5});
        moveTo({6, 6});
        QCOMPARE(m_entered, 1);
        leave();
        leave();

        QCOMPARE(m_entered, 1);
        QCOMPARE(m_exited, 1);
    }

    void aPartOfTheViewIsEnteredAndLeftInside()
    {
        m_rects->addTrackingRect({0, 0, 10, 10});

        enterAt({50, 50});
        QCOMPARE(m_entered, 0);
        moveTo({5, 5});
        QCOMPARE(m_entered, 1);
        moveTo({50, 50});

        QCOMPARE(m_exited, 1);
    }

    void aRectangleUnderTheMouseWaitsForTheNextMove()
    {
        enterAt({5, 5});
        m_rects->addTrackingRect(m_view->rect());
        QCOMPARE(m_entered, 0);

        moveTo({6, 6});

        QCOMPARE(m_entered, 1);
    }

    void aRemovedRectangleIsDeaf()
    {
        const int tag = m_rects->addTrackingRect(m_view->rect());
        m_rects->removeTrackingRect(tag);
        m_rects->removeTrackingRect(tag);
        m_rects->removeTrackingRect(0);

        enterAt({5, 5});

        QCOMPARE(m_entered, 0);
        QCOMPARE(m_rects->count(), 0);
    }

    void tagsAreNeverUsedTwice()
    {
        const int first = m_rects->addTrackingRect(m_view->rect());
        m_rects->removeTrackingRect(first);

        QVERIFY(first != 0);
        QVERIFY(m_rects->addTrackingRect(m_view->rect()) != first);
    }
};

QTEST_MAIN(TrackingRectsTest)
#include "TrackingRectsTest.moc"
