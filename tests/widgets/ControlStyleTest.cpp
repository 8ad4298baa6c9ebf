#include "widgets/ControlStyle.h"

#include "platform/HighContrast.h"
#include "support/TestCase.h"
#include "widgets/Drawn.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QTextEdit>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using tarvelo::platform::contrastOf;
using tarvelo::tests::drawn;
using tarvelo::widgets::ControlStyle;

namespace {

constexpr QColor Ink(40, 40, 40);
constexpr QColor Outline(140, 138, 146);
constexpr QColor Accent(214, 22, 38);

QPalette colours()
{
    QPalette palette(Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, Ink);
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::HighlightedText})
        palette.setColor(role, Qt::white);
    palette.setColor(QPalette::Midlight, QColor(240, 240, 243));
    palette.setColor(QPalette::Mid, Qt::black); // as in high contrast
    palette.setColor(QPalette::Shadow, Outline);
    palette.setColor(QPalette::Disabled, QPalette::Shadow, QColor(200, 200, 200));
    palette.setColor(QPalette::Highlight, Accent);
    return palette;
}

QImage look(QWidget &control)
{
    return control.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

int pixelsOf(const QImage &image, const QColor &colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    return count;
}

} // namespace

class ControlStyleTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(new ControlStyle); }

    void whatCanBeUsedHasAnOutlineThatIsSeen()
    {
        QPushButton button(u"Close"_s, m_window.get());
        QLineEdit field(m_window.get());
        QTextEdit text(m_window.get());

        for (QWidget *control : {static_cast<QWidget *>(&button), static_cast<QWidget *>(&field),
                                 static_cast<QWidget *>(&text)}) {
            const QImage image = look(*control);
            QCOMPARE(image.pixelColor(image.width() / 2, 0), Outline);
            QCOMPARE(image.pixelColor(image.width() / 2, image.height() - 1), Outline);
            QVERIFY(contrastOf(image.pixelColor(0, 0), Qt::white) < 1.5); // round
        }
    }

    void anOutlineIsSharpWhereAPointIsNoWholeNumberOfPixels_data()
    {
        QTest::addColumn<double>("ratio");
        QTest::newRow("125 %") << 1.25;
        QTest::newRow("150 %") << 1.5;
    }
    void anOutlineIsSharpWhereAPointIsNoWholeNumberOfPixels()
    {
        QFETCH(const double, ratio);
        m_window->resize(300, 60);
        QPushButton button(m_window.get());
        QLineEdit field(m_window.get());
        QCheckBox box(m_window.get());

        button.setGeometry(7, 9, 22, 33);
        field.setGeometry(68, 9, 22, 33);
        box.setGeometry(129, 9, 22, 33);

        for (const QWidget *control :
             {static_cast<QWidget *>(&button), static_cast<QWidget *>(&field),
              static_cast<QWidget *>(&box)}) {
            const QImage image = drawn(*m_window, ratio);
            const int middle = int((control->x() + 11) * ratio);
            const QImage column = image.copy(middle, 0, 1, image.height());
            // At both ends once, and nowhere paler.
            QCOMPARE(pixelsOf(column, Outline), 2);
            QCOMPARE(pixelsOf(column, Qt::white), column.height() - 2);
        }
    }

    void theLinesOfAMenuAreAllOfOneThickness()
    {
        QMenu menu;
        menu.setPalette(colours());
        for (int i = 0; i < 4; ++i) {
            menu.addAction(u"Title"_s);
            menu.addSeparator();
        }
        menu.addAction(u"Title"_s);
        menu.resize(menu.sizeHint());

        const QImage image = drawn(menu, 1.5);

        // Left of the titles.
        const QImage column = image.copy(12, 0, 1, image.height());
        QCOMPARE(pixelsOf(column, Qt::white), column.height() - 2 - 4);
    }

    void theButtonThatReturnPressesIsFilledAndItsTitleWhite()
    {
        QDialog dialog;
        dialog.setPalette(colours());
        QPushButton button(u"Keep"_s, &dialog);

        button.setDefault(true);
        const QImage filled = look(button);
        button.setEnabled(false);
        const QImage disabled = look(button);

        QCOMPARE(filled.pixelColor(8, filled.height() / 2), Accent);
        QVERIFY(pixelsOf(filled, Qt::white) > 5);
        QCOMPARE(pixelsOf(filled, Ink), 0);
        QCOMPARE(disabled.pixelColor(8, disabled.height() / 2), QColor(Qt::white));
    }

    void aButtonShowsTheMouseAndThePress()
    {
        QPushButton button(u"Close"_s, m_window.get());
        const QImage atRest = look(button);

        button.setAttribute(Qt::WA_UnderMouse);
        const QImage turnedTo = look(button);
        button.setDown(true);
        const QImage pressed = look(button);

        QVERIFY(turnedTo != atRest);
        QVERIFY(pressed != turnedTo);
        QVERIFY(pressed != atRest);
        // Also where all lines are black, the title can be read meanwhile.
        QVERIFY(contrastOf(pressed.pixelColor(8, 16), Ink) >= 4.5);
    }

    void aTitleHasRoomAndAButtonIsNoSmallerThanAFinger()
    {
        const QPushButton brief(u"No"_s);
        const QPushButton wordy(u"Show the recordings folder"_s);

        QCOMPARE(brief.sizeHint(), QSize(84, 32));
        QVERIFY(wordy.sizeHint().width() >=
                wordy.fontMetrics().horizontalAdvance(wordy.text()) + 28);
    }

    void whatIsChosenIsFilled()
    {
        QCheckBox box(m_window.get());
        QRadioButton radio(m_window.get());

        for (QAbstractButton *button :
             {static_cast<QAbstractButton *>(&box), static_cast<QAbstractButton *>(&radio)}) {
            QCOMPARE(pixelsOf(look(*button), Accent), 0);
            button->setChecked(true);
            QVERIFY(pixelsOf(look(*button), Accent) > 60);
        }
    }

    void aBoxWithoutWordsShowsTheKeyboardAroundItself_data()
    {
        QTest::addColumn<bool>("isTicked");
        QTest::newRow("empty") << false;
        QTest::newRow("ticked") << true;
    }
    void aBoxWithoutWordsShowsTheKeyboardAroundItself()
    {
        QFETCH(const bool, isTicked);
        QCheckBox box(m_window.get());
        box.setChecked(isTicked);
        show();
        m_window->setFocus();
        const QImage without = look(box);

        box.setFocus(Qt::TabFocusReason);

        // One ring, white, and then the box as it was.
        const QImage with = look(box);
        const int middle = with.height() / 2;
        for (const int ring : {0, 1})
            QCOMPARE(with.pixelColor(ring, middle), Accent);
        QCOMPARE(with.pixelColor(2, middle), QColor(Qt::white));
        const QRect inside = with.rect().adjusted(3, 5, -3, -5); // but for the corners
        QCOMPARE(with.copy(inside), without.copy(inside));
    }

    void onAListTheKeyboardIsSeenInTheAccentOfItsWindow()
    {
        QTreeWidget list(m_window.get());
        QPalette pale = m_window->palette();
        pale.setColor(QPalette::Highlight, QColor(253, 232, 234));
        list.setPalette(pale);
        list.setCurrentItem(new QTreeWidgetItem(&list, {u"Monday"_s}));
        show();
        m_window->setFocus();
        const QImage without = look(list);

        list.setFocus(Qt::TabFocusReason);

        QCOMPARE(pixelsOf(without, Accent), 0);
        QVERIFY(pixelsOf(look(list), Accent) > 60);
    }

    void onARowInTheAccentTheKeyboardIsSeenInALightRing()
    {
        QTreeWidget list(m_window.get());
        list.setCurrentItem(new QTreeWidgetItem(&list, {u"Monday"_s}));
        show();
        m_window->setFocus();
        const QImage without = look(list);

        list.setFocus(Qt::TabFocusReason);

        QVERIFY(pixelsOf(without, Accent) > 60);
        QVERIFY(pixelsOf(look(list).copy(0, 0, list.width() - 20, 60), Qt::white) >
                pixelsOf(without.copy(0, 0, list.width() - 20, 60), Qt::white) + 60);
    }

    void aSliderIsFilledUpToItsHandleAlsoFromTheRight()
    {
        QSlider slider(Qt::Horizontal, m_window.get());
        slider.setRange(0, 100);
        slider.setValue(75);
        slider.resize(200, 20);

        const QImage image = look(slider);
        slider.setLayoutDirection(Qt::RightToLeft);
        const QImage mirrored = look(slider);

        QCOMPARE(image.pixelColor(60, 10), Accent);
        QCOMPARE(image.pixelColor(190, 10), Outline);
        QCOMPARE(mirrored.pixelColor(140, 10), Accent);
        QCOMPARE(mirrored.pixelColor(10, 10), Outline);
        slider.setEnabled(false);
        QCOMPARE(pixelsOf(look(slider), Accent), 0);
        QCOMPARE(pixelsOf(look(slider), Outline), 0);
    }

    void theMouseTakesASliderByItsHandle()
    {
        QSlider slider(Qt::Horizontal, m_window.get());
        slider.setRange(0, 100);
        slider.resize(216, 20);

        QTest::mousePress(&slider, Qt::LeftButton, {}, {8, 10});
        QVERIFY(slider.isSliderDown());
        QMouseEvent move(QEvent::MouseMove, QPointF(108, 10), QPointF(108, 10), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(&slider, &move);

        QCOMPARE(slider.value(), 50);
    }

    void aScrollBarIsAHandleAlone()
    {
        QScrollBar bar(Qt::Vertical, m_window.get());
        bar.setRange(0, 300);
        bar.setPageStep(100);
        bar.resize(12, 200);
        QStyleOptionSlider option;
        option.initFrom(&bar);
        option.orientation = Qt::Vertical;
        option.maximum = 300;
        option.pageStep = 100;
        const auto part = [&](QStyle::SubControl which) {
            return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, which, &bar);
        };

        QCOMPARE(part(QStyle::SC_ScrollBarSlider), QRect(0, 0, 12, 50));
        QVERIFY(part(QStyle::SC_ScrollBarAddLine).isEmpty());
        QCOMPARE(part(QStyle::SC_ScrollBarAddPage), QRect(0, 50, 12, 150));
        QVERIFY(pixelsOf(look(bar), Outline) > 100);
        bar.setRange(0, 0);
        QCOMPARE(pixelsOf(look(bar), Outline), 0);
    }

    void fromRightToLeftAScrollBarBeginsAtTheRight()
    {
        QScrollBar bar(Qt::Horizontal, m_window.get());
        bar.setRange(0, 300);
        bar.setPageStep(100);
        bar.resize(200, 12);
        bar.setLayoutDirection(Qt::RightToLeft);

        const QImage image = look(bar);
        QTest::mousePress(&bar, Qt::LeftButton, {}, {175, 6});

        QCOMPARE(image.pixelColor(175, 6), Outline);
        QCOMPARE(image.pixelColor(25, 6), QColor(Qt::white));
        QVERIFY(bar.isSliderDown());
    }

    void aMenuHasRoomAboveItsFirstCommandAndBelowItsLast()
    {
        QMenu menu(m_window.get());
        menu.addAction(u"Edit"_s);
        menu.addAction(u"Delete"_s);
        menu.resize(menu.sizeHint());

        const QRect first = menu.actionGeometry(menu.actions().constFirst());
        const QRect last = menu.actionGeometry(menu.actions().constLast());

        QVERIFY(first.top() >= 4);
        QCOMPARE(menu.height() - 1 - last.bottom(), first.top());
    }

    void rowsOfAListAreHighEnoughToBeHit()
    {
        QTreeWidget list(m_window.get());
        list.setRootIsDecorated(false);
        auto *entry = new QTreeWidgetItem(&list, {u"Monday"_s});

        QVERIFY(list.visualItemRect(entry).height() >= 32);
    }

    void aWarningHasTheProgramsOwnSign()
    {
        const QIcon sign = QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
        const QPixmap shown = QApplication::style()->standardPixmap(QStyle::SP_MessageBoxWarning);

        QVERIFY(!sign.isNull());
        QVERIFY(!shown.isNull());
        QVERIFY(pixelsOf(sign.pixmap(48, 48).toImage(), QColor(0xd6, 0x16, 0x26)) > 50);
        // As it is drawn for that size, and not scaled to it.
        QCOMPARE(sign.pixmap(48, 48).toImage(), shown.toImage());
        QCOMPARE(sign.actualSize({48, 48}), QSize(48, 48));
    }

    void aDrawingOfALabelLiesOnWholePixels()
    {
        QImage drawing(25, 25, QImage::Format_RGB32);
        drawing.fill(Qt::white);
        for (int i = 0; i < 25; ++i)
            drawing.setPixelColor(i, i, Qt::black);
        drawing.setDevicePixelRatio(1.25);
        QImage screen(60, 60, QImage::Format_RGB32);
        screen.fill(Qt::white);
        screen.setDevicePixelRatio(1.25);
        QPainter painter(&screen);

        QApplication::style()->drawItemPixmap(&painter, {3, 3, 20, 20}, Qt::AlignCenter,
                                              QPixmap::fromImage(drawing));

        QCOMPARE(screen.copy(4, 4, 25, 25), drawing);
    }

private:
    // For somebody who came by keyboard.
    void show() const
    {
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_window->setAttribute(Qt::WA_KeyboardFocusChange);
    }

    void prepare() override
    {
        m_window = std::make_unique<QWidget>();
        m_window->setPalette(colours());
    }
    void finish() override { m_window.reset(); }

    std::unique_ptr<QWidget> m_window;
};

QTEST_MAIN(ControlStyleTest)
#include "ControlStyleTest.moc"
