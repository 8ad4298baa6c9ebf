#include "widgets/FocusRing.h"

#include "support/TestCase.h"
#include "widgets/MouseDownTextField.h"

#include <QSlider>
#include <QTextEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using tarvelo::widgets::MouseDownTextField;
using tarvelo::widgets::showFocusRing;

class FocusRingTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theRingShowsWhileTheKeyboardIsThere()
    {
        m_slider->setFocus(Qt::TabFocusReason);
        QVERIFY(ringOf(*m_slider)->isVisible());
        QCOMPARE(ringOf(*m_slider)->size(), m_slider->size());

        m_text->setFocus(Qt::TabFocusReason);

        QVERIFY(ringOf(*m_slider)->isHidden());
        QVERIFY(ringOf(*m_text)->isVisible());
    }

    void aClickShowsItOnATextAlone()
    {
        m_slider->setFocus(Qt::MouseFocusReason);
        QVERIFY(ringOf(*m_slider)->isHidden());

        m_text->setFocus(Qt::MouseFocusReason);

        QVERIFY(ringOf(*m_text)->isVisible());
    }

    void itGrowsWithItsView()
    {
        m_text->setFocus(Qt::TabFocusReason);

        m_window->resize(500, 400);

        QTRY_COMPARE(m_text->width(), m_window->layout()->contentsRect().width());
        QCOMPARE(ringOf(*m_text)->size(), m_text->size());
    }

    void aHeadingsRingStandsClearOfItsLetters()
    {
        auto *heading = new MouseDownTextField(m_window.get());
        heading->setText(u"Optics"_s);
        heading->setEditable(false);
        heading->setBordered(false);
        m_window->layout()->addWidget(heading);
        heading->show();
        showFocusRing(*heading);
        const auto *ring =
            m_window->findChild<QWidget *>(u"focusRing"_s, Qt::FindDirectChildrenOnly);
        QVERIFY(ring && ring->isHidden());

        heading->setFocus(Qt::TabFocusReason);
        QVERIFY(ring->isVisible());
        // Two points of it are the ring's own line.
        QVERIFY(ring->geometry().adjusted(5, 2, -5, -2).contains(heading->geometry()));

        heading->setBordered(true);
        QCOMPARE(ring->geometry(), heading->geometry());
        m_window->resize(500, 400);
        QTRY_COMPARE(heading->width(), m_window->layout()->contentsRect().width());
        QCOMPARE(ring->geometry(), heading->geometry());
        m_text->setFocus(Qt::TabFocusReason);
        QVERIFY(ring->isHidden());
    }

private:
    static QWidget *ringOf(const QWidget &view)
    {
        return view.findChild<QWidget *>(u"focusRing"_s, Qt::FindDirectChildrenOnly);
    }

    void prepare() override
    {
        m_window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(m_window.get());
        layout->addWidget(m_text = new QTextEdit);
        layout->addWidget(m_slider = new QSlider);
        showFocusRing(*m_text);
        showFocusRing(*m_slider);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    void finish() override { m_window.reset(); }

    std::unique_ptr<QWidget> m_window;
    QTextEdit *m_text = nullptr;
    QSlider *m_slider = nullptr;
};

QTEST_MAIN(FocusRingTest)
#include "FocusRingTest.moc"
