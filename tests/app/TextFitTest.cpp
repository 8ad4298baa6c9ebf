#include "support/TextFit.h"

#include "support/TestCase.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using tarvelo::tests::textFaultsIn;

namespace {

constexpr QRect Place(10, 10, 80, 28);
const QString Long = u"A title that is far longer than its place"_s;

} // namespace

// The eye of the test of languages sees what it is there to see.
class TextFitTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

    std::unique_ptr<QWidget> m_window;

    template <typename Control>
    Control *add(const QString &name, const QRect &place = Place)
    {
        auto *control = new Control(m_window.get());
        control->setObjectName(name);
        control->setGeometry(place);
        return control;
    }
    QString faults()
    {
        m_window->show();
        return textFaultsIn(*m_window).join(u'\n');
    }

protected:
    void prepare() override
    {
        m_window = std::make_unique<QWidget>();
        m_window->resize(300, 100);
    }

private Q_SLOTS:
    void shortTextsAreFine()
    {
        add<QPushButton>(u"button"_s)->setText(u"Done"_s);
        add<QLabel>(u"label"_s, {10, 50, 80, 28})->setText(u"Notes"_s);

        QCOMPARE(faults(), QString());
    }

    void aTitleThatIsTooLongIsFound()
    {
        add<QPushButton>(u"button"_s)->setText(Long);

        QVERIFY(faults().startsWith(u"button needs "));
    }

    void aLabelThatIsTooLongIsFound()
    {
        add<QLabel>(u"label"_s)->setText(Long);

        QVERIFY(faults().startsWith(u"label needs "));
    }

    void aLabelThatBreaksIntoMoreLinesThanThereIsRoomForIsFound()
    {
        auto *label = add<QLabel>(u"label"_s);
        label->setWordWrap(true);
        label->setText(Long);

        QVERIFY(faults().startsWith(u"label needs "));

        label->resize(80, 90);
        QVERIFY(!faults().contains(u"needs"));
    }

    void aCheckboxThatIsTooLongIsFound()
    {
        add<QCheckBox>(u"box"_s)->setText(Long);

        QVERIFY(faults().startsWith(u"box needs "));
    }

    void aPlaceholderThatIsTooLongIsFound()
    {
        add<QLineEdit>(u"field"_s)->setPlaceholderText(Long);
        add<QTextEdit>(u"notes"_s, {100, 10, 80, 30})->setPlaceholderText(Long);

        QVERIFY(faults().contains(u"field needs "));
        QVERIFY(faults().contains(u"notes needs "));
    }

    void aTextMayBeCutThatItsToolTipSays()
    {
        auto *label = add<QLabel>(u"label"_s);
        label->setText(Long);
        label->setToolTip(Long);

        QVERIFY(!faults().contains(u"needs"));
    }

    void aTextInALargerFontIsFound()
    {
        auto *button = add<QPushButton>(u"button"_s);
        button->setText(u"Close"_s);
        QCOMPARE(faults(), QString());

        QFont font = button->font();
        font.setPointSize(40);
        button->setFont(font);

        QVERIFY(faults().startsWith(u"button needs "));
    }

    void controlsOverEachOtherAreFound()
    {
        add<QPushButton>(u"button"_s)->setText(u"Done"_s);
        add<QLineEdit>(u"field"_s, {60, 20, 80, 28});

        QCOMPARE(faults(), u"button over field"_s);
    }

    void aControlThatSticksOutOfItsWindowIsFound()
    {
        add<QPushButton>(u"button"_s, {250, 10, 80, 28})->setText(u"Done"_s);

        QCOMPARE(faults(), u"button out of its window"_s);
    }

    void columnsWithoutRoomBesideEachOtherAreFound()
    {
        auto *table = add<QTreeWidget>(u"table"_s, {10, 10, 150, 60});
        table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        table->setHeaderLabels({u"Copy"_s, u"All"_s});
        QCOMPARE(faults(), QString());

        table->setHeaderLabels({Long, Long});

        QVERIFY(faults().startsWith(u"table has columns for "));
    }

    void aSignThatNoFontDrawsIsFound()
    {
        add<QLabel>(u"label"_s)->setText(QString(QChar(0xf8fe)));

        QVERIFY(faults().contains(u"label without glyphs"));
    }

    void whatIsHiddenOrWaitsBesideTheWindowIsNotLookedAt()
    {
        auto *button = add<QPushButton>(u"button"_s);
        button->setText(Long);
        button->hide();
        add<QPushButton>(u"later"_s, {400, 10, 80, 28})->setText(Long);

        QCOMPARE(faults(), QString());
    }
};

QTEST_MAIN(TextFitTest)
#include "TextFitTest.moc"
