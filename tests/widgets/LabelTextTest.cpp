#include "widgets/LabelText.h"

#include "support/TestCase.h"
#include "widgets/ControlStyle.h"
#include "widgets/Drawn.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QStyleFactory>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;
using tarvelo::tests::drawn;

namespace {

// The column of the last ink in these rows.
int endOfInk(const QImage &image, int top, int height)
{
    for (int x = image.width() - 1; x >= 0; --x)
        for (int y = top; y < top + height; ++y)
            if (image.pixelColor(x, y) != QColor(Qt::white))
                return x;
    return -1;
}

// A label over a field, by the style or, with another one, by that.
struct Form
{
    explicit Form(const QString &style = {})
        : others(style.isEmpty() ? nullptr : QStyleFactory::create(style))
    {
        if (others)
            label->setStyle(others.get());
        column->addWidget(label);
        column->addWidget(field);
        window.resize(window.sizeHint());
        column->activate();
    }

    std::unique_ptr<QStyle> others;
    QWidget window;
    QVBoxLayout *column = new QVBoxLayout(&window);
    QLabel *label = new QLabel(u"gq"_s);
    QLineEdit *field = new QLineEdit;
};

} // namespace

// What a label asks its style for.
class LabelTextTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(new tarvelo::widgets::ControlStyle); }

    void lettersThatReachLowHaveRoomThatMovesNothing()
    {
        const Form usual(u"Fusion"_s);
        const Form form;

        QCOMPARE(form.label->height(), usual.label->height() + 4);
        QCOMPARE(form.label->contentsRect(), usual.label->contentsRect());
        QCOMPARE(form.label->pos(), usual.label->pos());
        QCOMPARE(form.field->geometry(), usual.field->geometry());
        QCOMPARE(form.window.size(), usual.window.size());
    }

    void aLabelThatIsPlacedByHandIsAsItWasMade_data()
    {
        QTest::addColumn<bool>("isInLayout");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("below");

        QTest::newRow("in no layout") << false << 0 << 0;
        QTest::newRow("of a fixed height") << true << 30 << 0;
        QTest::newRow("with a margin of its own") << true << 0 << 7;
    }
    void aLabelThatIsPlacedByHandIsAsItWasMade()
    {
        QFETCH(const bool, isInLayout);
        QFETCH(const int, height);
        QFETCH(const int, below);
        QWidget window;
        auto &column = *new QVBoxLayout(&window);
        QLabel label(u"gq"_s, &window);
        if (isInLayout)
            column.addWidget(&label);
        if (height > 0)
            label.setFixedHeight(height);
        label.setContentsMargins(0, 0, 0, below);

        label.ensurePolished();

        QCOMPARE(label.contentsMargins().bottom(), below);
    }

    void brokenLinesFromTheRightBeginAtOneEdge()
    {
        QLabel label(QStringList(12, u"שלום"_s).join(u' '));
        label.setWordWrap(true);
        label.resize(4 * label.fontMetrics().horizontalAdvance(u"שלום "_s), 400);
        label.setAlignment(Qt::AlignLeading | Qt::AlignTop);
        const int line = label.heightForWidth(QWIDGETSIZE_MAX);
        const int lines = label.heightForWidth(label.width()) / line;
        QVERIFY(lines > 1);

        const QImage image = drawn(label);

        for (int number = 1; number < lines; ++number)
            QCOMPARE(endOfInk(image, number * line, line), endOfInk(image, 0, line));
        QVERIFY(endOfInk(image, 0, line) > label.width() - 4);
    }

    void brokenLinesFromTheRightStandAsHighAsOthers_data()
    {
        QTest::addColumn<Qt::Alignment>("alignment");
        QTest::addColumn<int>("third");

        QTest::newRow("top") << Qt::Alignment(Qt::AlignTop) << 0;
        QTest::newRow("middle") << Qt::Alignment(Qt::AlignVCenter) << 1;
        QTest::newRow("bottom") << Qt::Alignment(Qt::AlignBottom) << 2;
    }
    void brokenLinesFromTheRightStandAsHighAsOthers()
    {
        QFETCH(const Qt::Alignment, alignment);
        QFETCH(const int, third);
        QLabel label(u"שלום"_s);
        label.setWordWrap(true);
        label.setAlignment(alignment);
        const int line = label.heightForWidth(QWIDGETSIZE_MAX);
        label.resize(200, 3 * line);

        const QImage image = drawn(label);

        for (int each = 0; each < 3; ++each)
            QCOMPARE(endOfInk(image, each * line, line) >= 0, each == third);
    }
};

QTEST_MAIN(LabelTextTest)
#include "LabelTextTest.moc"
