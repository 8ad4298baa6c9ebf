#include "widgets/CutLabel.h"

#include "support/TestCase.h"

#include <QHelpEvent>
#include <QToolTip>

using namespace Qt::StringLiterals;
using tarvelo::widgets::CutLabel;

class CutLabelTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTextThatFitsNeedsNoToolTip()
    {
        m_label->setFixedWidth(m_label->sizeHint().width());
        m_label->show();

        QVERIFY(!m_label->isCut());
        QVERIFY(!asksForToolTip());
        QVERIFY(!QToolTip::isVisible());
        // Screen readers have it all the same.
        QCOMPARE(m_label->toolTip(), u"Geometric Optics"_s);
    }

    void aTextThatIsCutShowsItsToolTip()
    {
        m_label->setFixedWidth(m_label->sizeHint().width() - 1);
        m_label->show();

        QVERIFY(m_label->isCut());
        QVERIFY(asksForToolTip());
        QCOMPARE(QToolTip::text(), u"Geometric Optics"_s);
    }

    void theMarginsAreNoRoomForTheText()
    {
        const int width = m_label->sizeHint().width();
        m_label->setContentsMargins(2, 0, 2, 0);
        m_label->setFixedWidth(width);
        QVERIFY(m_label->isCut());

        m_label->setFixedWidth(width + 4);
        QVERIFY(!m_label->isCut());
    }

private:
    void prepare() override
    {
        m_label = std::make_unique<CutLabel>(u"Geometric Optics"_s);
        m_label->setToolTip(m_label->text());
    }
    void finish() override
    {
        QToolTip::hideText();
        m_label.reset();
    }

    // As the mouse does that stays on it. False when it is left to what lies below.
    bool asksForToolTip() const
    {
        const QPoint place(3, 3);
        QHelpEvent event(QEvent::ToolTip, place, m_label->mapToGlobal(place));
        QCoreApplication::sendEvent(m_label.get(), &event);
        return event.isAccepted();
    }

    std::unique_ptr<CutLabel> m_label;
};

QTEST_MAIN(CutLabelTest)
#include "CutLabelTest.moc"
