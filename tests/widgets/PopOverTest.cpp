#include "widgets/PopOver.h"

#include "support/TestCase.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>

using tarvelo::widgets::PopOver;

class PopOverTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itStandsUnderItsRectangleWithTheArrowAtTheMiddleOfTheEdge()
    {
        show(Qt::BottomEdge);

        QVERIFY(m_popOver->isVisible());
        QCOMPARE(m_popOver->edge(), Qt::BottomEdge);
        const QPoint middle = m_window->mapToGlobal(QPoint(Anchor.center().x(), 140));
        QCOMPARE(m_popOver->arrowTip(), middle);
        QCOMPARE(m_popOver->geometry().top(), middle.y());
    }

    void itCanStandAtEveryEdge()
    {
        show(Qt::TopEdge);
        QCOMPARE(m_popOver->frameGeometry().bottom() + 1,
                 m_window->mapToGlobal(Anchor.topLeft()).y());

        show(Qt::LeftEdge);
        QCOMPARE(m_popOver->frameGeometry().right() + 1,
                 m_window->mapToGlobal(Anchor.topLeft()).x());

        show(Qt::RightEdge);
        QCOMPARE(m_popOver->frameGeometry().left(),
                 m_window->mapToGlobal(Anchor.topRight()).x() + 1);
    }

    // Otherwise the shape would cut the line off one of them.
    void theArrowHasTwoSidesThatAreAlike()
    {
        show(Qt::BottomEdge);

        const QRegion shape = m_popOver->mask();
        const QPoint tip = m_popOver->mapFromGlobal(m_popOver->arrowTip());
        QVERIFY(shape.contains(tip + QPoint(0, 1)));
        for (int y = 0; y < 10; ++y)
            for (int x = 0; x < 20; ++x)
                QCOMPARE(shape.contains(tip + QPoint(-1 - x, y)),
                         shape.contains(tip + QPoint(x, y)));
    }

    void whereTheScreenHasNoRoomItStandsAtTheOppositeEdge()
    {
        const QRect screen = m_window->screen()->availableGeometry();
        m_window->move(screen.left() + 100, screen.bottom() - 150);

        show(Qt::BottomEdge);

        QCOMPARE(m_popOver->edge(), Qt::TopEdge);
        QVERIFY(screen.contains(m_popOver->geometry()));
    }

    void itStaysOnTheScreenAndTheArrowGoesToTheRectangle()
    {
        const QRect screen = m_window->screen()->availableGeometry();
        m_window->move(screen.left() - 60, screen.top() + 50);

        show(Qt::BottomEdge);

        QCOMPARE(m_popOver->geometry().left(), screen.left());
        QCOMPARE(m_popOver->arrowTip().x(), m_window->mapToGlobal(Anchor.center()).x());
    }

    void theKeyboardGoesToTheFirstControl()
    {
        show(Qt::BottomEdge);

        QTRY_COMPARE(QApplication::focusWidget(), m_first);
        QTest::keyClick(m_first, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), m_second);
    }

    void escapeClosesItAndTheKeyboardGoesBack()
    {
        m_field->setFocus();
        show(Qt::BottomEdge);
        const QSignalSpy closed(m_popOver.get(), &PopOver::closed);

        QTest::keyClick(m_first, Qt::Key_Escape);

        QVERIFY(m_popOver->isHidden());
        QCOMPARE(closed.count(), 1);
        QTRY_COMPARE(QApplication::focusWidget(), m_field);
    }

    void aClickElsewhereClosesItAndArrivesAllTheSame()
    {
        show(Qt::BottomEdge);
        const QSignalSpy clicked(m_field, &QPushButton::clicked);

        QTest::mouseClick(m_field, Qt::LeftButton);

        QVERIFY(m_popOver->isHidden());
        QCOMPARE(clicked.count(), 1);
    }

    void aClickInsideLeavesItOpen()
    {
        show(Qt::BottomEdge);
        const QSignalSpy clicked(m_second, &QPushButton::clicked);

        QTest::mouseClick(m_second, Qt::LeftButton);

        QVERIFY(m_popOver->isVisible());
        QCOMPARE(clicked.count(), 1);
    }

    void theWheelElsewhereClosesIt()
    {
        show(Qt::BottomEdge);

        QWheelEvent wheel({10, 10}, m_window->mapToGlobal(QPointF(10, 10)), {}, {0, -120},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_window.get(), &wheel);

        QVERIFY(m_popOver->isHidden());
    }

    void itFollowsItsWindowAndGoesWithIt()
    {
        show(Qt::BottomEdge);
        const QPoint distance = m_popOver->pos() - m_window->pos();

        m_window->move(m_window->pos() + QPoint(30, 20));
        QTRY_COMPARE(m_popOver->pos() - m_window->pos(), distance);

        m_window->hide();
        QVERIFY(m_popOver->isHidden());
    }

    void itGoesWhenItsWindowIsMinimised()
    {
        show(Qt::BottomEdge);

        m_window->setWindowState(Qt::WindowMinimized);

        QTRY_VERIFY(m_popOver->isHidden());
    }

    void aWindowThatIsGoneTakesNothingWithIt()
    {
        show(Qt::BottomEdge);

        m_window.reset();
        m_popOver->close();

        QVERIFY(m_popOver->isHidden());
    }

    void itGrabsNoMouse()
    {
        show(Qt::BottomEdge);

        QVERIFY(!QWidget::mouseGrabber());
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(m_popOver->windowType(), Qt::Tool);
        QVERIFY(!m_popOver->isModal());
    }

    void itsOutlineIsRoundWithAnArrow()
    {
        show(Qt::BottomEdge);
        const QRect rect = m_popOver->rect();

        QVERIFY(!m_popOver->mask().contains(rect.topLeft()));
        QVERIFY(!m_popOver->mask().contains(rect.bottomRight()));
        QVERIFY(m_popOver->mask().contains(m_popOver->mapFromGlobal(m_popOver->arrowTip()) +
                                           QPoint(0, 3)));
        QVERIFY(m_popOver->mask().contains(rect.center()));
    }

    void whoDoesNotSeeItHearsWhatItSays()
    {
        show(Qt::BottomEdge);

        QCOMPARE(m_popOver->accessibleName(), QStringLiteral("Really?"));
    }

    void shownAgainItStandsAtItsNewPlace()
    {
        show(Qt::BottomEdge);
        const QSignalSpy closed(m_popOver.get(), &PopOver::closed);

        m_popOver->showRelativeTo({10, 10, 30, 20}, *m_window, Qt::RightEdge);

        QVERIFY(m_popOver->isVisible());
        QCOMPARE(m_popOver->edge(), Qt::RightEdge);
        QCOMPARE(closed.count(), 0);
    }

private:
    void prepare() override
    {
        m_window = std::make_unique<QWidget>();
        m_window->setGeometry(200, 100, 400, 300);
        m_field = new QPushButton(m_window.get());
        m_field->setGeometry(10, 260, 80, 30);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));

        auto content = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(content.get());
        layout->addWidget(new QLabel(QStringLiteral("Really?"), content.get()));
        layout->addWidget(m_first = new QPushButton(content.get()));
        m_first->setMinimumWidth(150);
        layout->addWidget(m_second = new QPushButton(content.get()));
        m_popOver = std::make_unique<PopOver>(std::move(content));
    }
    void finish() override
    {
        m_popOver.reset();
        m_window.reset();
    }

    static constexpr QRect Anchor{80, 120, 30, 20};

    void show(Qt::Edge edge) { m_popOver->showRelativeTo(Anchor, *m_window, edge); }

    std::unique_ptr<QWidget> m_window;
    QPushButton *m_field = nullptr;
    QPushButton *m_first = nullptr;
    QPushButton *m_second = nullptr;
    std::unique_ptr<PopOver> m_popOver;
};

QTEST_MAIN(PopOverTest)
#include "PopOverTest.moc"
