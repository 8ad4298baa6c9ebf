#include "widgets/CustomWindow.h"

#include "platform/Frames.h"
#include "support/ScreenWithPanels.h"
#include "support/TestCase.h"

#include <QCloseEvent>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

using namespace Qt::StringLiterals;
using tarvelo::platform::frameOnScreen;
using tarvelo::platform::visibleFrame;
using tarvelo::widgets::CustomWindow;

namespace {

const QRectF Content(200, 150, 300, 120);
// A place of the window at which there is no control.
const QPoint Bare(150, 110);

// Refuses, or looks on, as windows are closed.
class Guard final : public QObject
{
public:
    bool refuses = false;
    QList<QRect> asked;
    QList<QRect> shapes;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto &window = *qobject_cast<QWidget *>(watched);
        if (event->type() == QEvent::Resize)
            shapes.append(window.geometry());
        if (event->type() != QEvent::Close)
            return false;
        asked.append(window.geometry());
        if (refuses)
            event->ignore();
        return refuses;
    }
};

// A drag as a hand makes it: small steps, each of which arrives.
void drag(QWidget &window, QPoint from, const QPoint &by)
{
    constexpr int Steps = 8;
    const QPoint start = window.mapToGlobal(from);
    QTest::mousePress(&window, Qt::LeftButton, Qt::NoModifier, from);
    for (int step = 1; step <= Steps; ++step) {
        const QPoint place = start + by * step / Steps;
        QMouseEvent move(QEvent::MouseMove, window.mapFromGlobal(place), place, Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &move);
    }
    QTest::mouseRelease(&window, Qt::LeftButton, Qt::NoModifier, window.mapFromGlobal(start + by));
}

// The same as it comes from the desktop, which knows windows only: the toolkit says then whether
// the window may hear of it.
void dragByDesktop(const QWidget &widget, const QPoint &from, const QPoint &by)
{
    QWindow *window = widget.windowHandle();
    const QPoint start = widget.mapToGlobal(from);
    const auto there = [&] { return window->mapFromGlobal(start + by); };
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(window, there());
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, there());
}

} // namespace

class CustomWindowTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itIsBorderlessBufferedAndMadeAtOnceWhateverIsAskedFor()
    {
        const CustomWindow window(Content, 15, 0, true);

        QCOMPARE(window.styleMask(), 0);
        QCOMPARE(window.backingType(), 2);
        QVERIFY(!window.isDeferred());
        QVERIFY(window.windowFlags() & Qt::FramelessWindowHint);
        QCOMPARE(window.windowType(), Qt::Window);
    }

    void itsContentStandsAtTheGivenPlace()
    {
        const int screenHeight = QGuiApplication::primaryScreen()->geometry().height();

        QCOMPARE(m_window->geometry(), QRect(200, screenHeight - 150 - 120, 300, 120));
        QCOMPARE(frameOnScreen(*m_window), Content);
    }

    void itCanBeSeenThroughAndFullyShown()
    {
        QCOMPARE(m_window->alphaValue(), 1.0);
        QVERIFY(!m_window->isOpaque());
        QVERIFY(m_window->testAttribute(Qt::WA_TranslucentBackground));
    }

    void itTakesTheKeyboardWithoutATitleBar()
    {
        QVERIFY(m_window->canBecomeKeyWindow());

        m_window->activateWindow();

        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void thePlaceOfThePressIsKeptWithFractions()
    {
        QCOMPARE(CustomWindow(Content, 0, 2, false).initialLocation(), QPointF());

        m_window->setInitialLocation({1.25, -2.5});

        QCOMPARE(m_window->initialLocation(), QPointF(1.25, -2.5));
    }

    void aPressKeepsItsPlaceFromTheLowerLeftCorner()
    {
        QTest::mousePress(m_window.get(), Qt::LeftButton, Qt::NoModifier, {150, 110});

        QCOMPARE(m_window->initialLocation(), QPointF(150, 10));
    }

    void aDragTakesTheWindowAlong()
    {
        const QPoint corner = m_window->pos();

        drag(*m_window, Bare, {64, -40});

        QCOMPARE(m_window->pos(), corner + QPoint(64, -40));
        QCOMPARE(m_window->size(), QSize(300, 120));
    }

    void aDragStopsBelowThePanelAtTheTopOfTheScreen()
    {
        drag(*m_window, Bare, {40, -2000});

        QCOMPARE(m_window->y(), m_window->screen()->geometry().y() + tarvelo::tests::Panels.top());
        QCOMPARE(m_window->x(), 240);
    }

    void aDragBackFromTheTopTakesTheWindowAlongAtOnce()
    {
        drag(*m_window, Bare, {0, -2000});
        const QPoint corner = m_window->pos();

        drag(*m_window, Bare, {0, 32});

        QCOMPARE(m_window->pos(), corner + QPoint(0, 32));
    }

    void noOtherEdgeStopsADrag_data()
    {
        QTest::addColumn<QPoint>("by");
        QTest::newRow("down") << QPoint(0, 2000);
        QTest::newRow("left") << QPoint(-2000, 0);
        QTest::newRow("right") << QPoint(2000, 0);
    }
    void noOtherEdgeStopsADrag()
    {
        QFETCH(QPoint, by);
        const QPoint corner = m_window->pos();

        drag(*m_window, Bare, by);

        QCOMPARE(m_window->pos(), corner + by);
    }

    void aDragIsReckonedFromWhereThePressWasSetTo()
    {
        const QPoint corner = m_window->pos();
        QMouseEvent move(QEvent::MouseMove, Bare, m_window->mapToGlobal(Bare), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        m_window->setInitialLocation({140, 15});

        m_window->mouseDragged(&move);

        QCOMPARE(m_window->pos(), corner + QPoint(10, 5));
    }

    void aSheetStaysWhereItIs()
    {
        QWidget owner;
        owner.show();
        m_window->setParent(&owner, m_window->windowFlags());
        m_window->setWindowModality(Qt::WindowModal);
        m_window->show();
        const QPoint corner = m_window->pos();
        QVERIFY(m_window->isSheet());

        drag(*m_window, Bare, {64, 40});

        QCOMPARE(m_window->pos(), corner);
        m_window->setParent(nullptr);
    }

    void aWindowWithASheetOnItStaysToo()
    {
        QDialog sheet(m_window.get());
        sheet.open();
        QVERIFY(QTest::qWaitForWindowExposed(&sheet));
        const QPoint corner = m_window->pos();

        dragByDesktop(*m_window, Bare, {64, -40});
        QCOMPARE(m_window->pos(), corner);

        sheet.close();
        dragByDesktop(*m_window, Bare, {64, -40});
        QCOMPARE(m_window->pos(), corner + QPoint(64, -40));
    }

    void anotherButtonOfTheMouseTakesNothingAlong()
    {
        const QPoint corner = m_window->pos();
        const QPoint place = m_window->mapToGlobal(Bare) + QPoint(64, 40);
        QTest::mousePress(m_window.get(), Qt::RightButton, Qt::NoModifier, Bare);

        QMouseEvent move(QEvent::MouseMove, m_window->mapFromGlobal(place), place, Qt::NoButton,
                         Qt::RightButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &move);

        QCOMPARE(m_window->pos(), corner);
    }

    void aControlKeepsItsPresses()
    {
        const QPoint corner = m_window->pos();
        const QSignalSpy clicked(m_button, &QPushButton::clicked);

        QTest::mouseClick(m_button, Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
        for (QWidget *control : QList<QWidget *>{m_button, m_slider, m_field})
            drag(*control, {20, 15}, {40, 0});

        QVERIFY(m_slider->value() > 0);
        QVERIFY(m_field->hasSelectedText());
        QCOMPARE(m_window->pos(), corner);
    }

    void aControlThatHasNothingToDoTakesNothingAlong()
    {
        const QPoint corner = m_window->pos();
        m_button->setEnabled(false);
        m_slider->setRange(0, 0);

        for (QWidget *control : QList<QWidget *>{m_button, m_slider})
            drag(*control, {20, 15}, {40, 0});

        QCOMPARE(m_window->pos(), corner);
    }

    void aLabelIsAPlaceToDragItBy()
    {
        const QPoint corner = m_window->pos();
        QLabel label(QStringLiteral("Speed"), m_window.get());
        label.setGeometry(10, 95, 100, 20);
        label.show();

        drag(label, {20, 10}, {40, 8});

        QCOMPARE(m_window->pos(), corner + QPoint(40, 8));
    }

    void closingShrinksItToAPointAtItsMiddle()
    {
        Guard guard;
        m_window->installEventFilter(&guard);
        const QRect before = m_window->geometry();

        QVERIFY(m_window->close());

        QVERIFY(m_window->isHidden());
        QVERIFY(guard.shapes.size() > 1);
        const QPoint middle(before.x() + 150, before.y() + 60);
        QVERIFY2(guard.shapes.contains(QRect(middle - QPoint(0, 1), QSize(1, 1))),
                 "the last shape is one point at the middle");
    }

    void aWindowWithALayoutOfFixedSizeShrinksToo()
    {
        CustomWindow window(Content, 0, 2, false);
        auto *layout = new QVBoxLayout(&window);
        layout->setSizeConstraint(QLayout::SetFixedSize);
        auto *panel = new QWidget;
        panel->setMinimumSize(200, 80);
        layout->addWidget(panel);
        window.show();
        Guard guard;
        window.installEventFilter(&guard);
        const QSize size = window.size();

        QVERIFY(window.close());
        QCOMPARE(smallest(guard.shapes), QSize(1, 1));
        window.show();

        QTRY_COMPARE(window.size(), size);
        QCOMPARE(window.minimumSize(), size);
        QCOMPARE(window.maximumSize(), size);
    }

    void shownAgainItIsAsItWas()
    {
        const QRect before = m_window->geometry();
        m_window->setMinimumSize(250, 100);
        m_window->setMask(QRegion(0, 0, 300, 110));
        m_window->close();

        m_window->show();

        QCOMPARE(m_window->geometry(), before);
        QCOMPARE(m_window->minimumSize(), QSize(250, 100));
        QCOMPARE(m_window->mask(), QRegion(0, 0, 300, 110));
        QVERIFY(m_button->isVisible());
        QCOMPARE(m_window->childAt(m_button->geometry().center()), m_button);
    }

    void whoeverGuardsItSeesItWholeAndOnce()
    {
        Guard guard;
        m_window->installEventFilter(&guard);
        const QRect before = m_window->geometry();

        m_window->close();

        QCOMPARE(guard.asked, QList<QRect>{before});
    }

    void aRefusedCloseChangesNothing()
    {
        Guard guard;
        guard.refuses = true;
        m_window->installEventFilter(&guard);
        const QRect before = m_window->geometry();

        QVERIFY(!m_window->close());

        QVERIFY(m_window->isVisible());
        QCOMPARE(m_window->geometry(), before);
        QVERIFY(guard.shapes.isEmpty());
    }

    void aWindowThatIsHiddenWhileItShrinksIsAsItWas()
    {
        const QRect before = m_window->geometry();
        QTimer::singleShot(20, m_window.get(), &QWidget::hide);

        m_window->close();

        QVERIFY(m_window->isHidden());
        QCOMPARE(m_window->geometry(), before);
    }

    void closingAHiddenWindowIsQuiet()
    {
        m_window->hide();
        Guard guard;
        m_window->installEventFilter(&guard);

        QVERIFY(m_window->close());

        QVERIFY(guard.shapes.isEmpty());
    }

    void theProgramEndsWithTheWindowOpen()
    {
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);

        QCOMPARE(QCoreApplication::exec(), 0);

        QVERIFY(m_window->isHidden());
    }

private:
    void prepare() override
    {
        m_window = std::make_unique<CustomWindow>(Content, 0, 2, false);
        m_button = new QPushButton(m_window.get());
        m_button->setGeometry(10, 10, 80, 30);
        m_slider = new QSlider(Qt::Horizontal, m_window.get());
        m_slider->setGeometry(100, 10, 180, 30);
        m_field = new QLineEdit(u"Geometric Optics"_s, m_window.get());
        m_field->setReadOnly(true);
        m_field->setGeometry(10, 60, 280, 30);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    void finish() override { m_window.reset(); }

    static QSize smallest(const QList<QRect> &shapes)
    {
        QSize size(1000, 1000);
        for (const QRect &shape : shapes)
            size = size.boundedTo(shape.size());
        return size;
    }

    std::unique_ptr<CustomWindow> m_window;
    QPushButton *m_button = nullptr;
    QSlider *m_slider = nullptr;
    QLineEdit *m_field = nullptr;
};

QTEST_MAIN(CustomWindowTest)
#include "CustomWindowTest.moc"
