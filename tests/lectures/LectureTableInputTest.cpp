#include "lectures/CustomTableCellView.h"
#include "lectures/LectureRowHost.h"
#include "lectures/LectureTable.h"
#include "lectures/RowSwipe.h"
#include "store/LectureInfoItem.h"
#include "support/TestCase.h"
#include "widgets/ImageButton.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace tarvelo::lectures;
using tarvelo::widgets::ImageButton;

// What the mouse, the wheel and the keyboard do with the rows.
class LectureTableInputTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aClickOnARowSelectsItAndTakesTheKeyboard()
    {
        QTest::mouseClick(viewOf(2), Qt::LeftButton, {}, {100, 10});

        QCOMPARE(m_table->selectedRow(), 2);
        QVERIFY(m_table->hasFocus());
    }

    void aClickUnderTheRowsSelectsNone()
    {
        m_model.setRowCount(2);
        m_table->reloadData();
        m_table->selectRow(1);

        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {}, {100, 300});

        QCOMPARE(m_table->selectedRow(), -1);
    }

    void aDoubleClickOpensTheRow()
    {
        const QSignalSpy opened(m_table, &LectureTable::rowOpened);

        QTest::mouseDClick(viewOf(2), Qt::LeftButton, {}, {100, 10});

        QCOMPARE(opened.count(), 1);
        QCOMPARE(opened.first().first().toInt(), 2);
    }

    void aDoubleClickUnderTheRowsOpensNothing()
    {
        m_model.setRowCount(2);
        m_table->reloadData();
        const QSignalSpy opened(m_table, &LectureTable::rowOpened);

        QTest::mouseDClick(m_table->viewport(), Qt::LeftButton, {}, {100, 300});
        QTest::mouseDClick(viewOf(1), Qt::RightButton, {}, {100, 10});

        QCOMPARE(opened.count(), 0);
        QApplication::activePopupWidget()->close();
    }

    void returnOpensTheSelectedRow()
    {
        const QSignalSpy opened(m_table, &LectureTable::rowOpened);
        press(Qt::Key_Return);
        QCOMPARE(opened.count(), 0);

        m_table->selectRow(15);
        press(Qt::Key_Return);
        press(Qt::Key_Enter);

        QCOMPARE(opened.count(), 2);
        QCOMPARE(opened.last().first().toInt(), 15);
        QVERIFY(viewOf(15));
    }

    void aKeyThatIsHeldGivesItsCommandOnce()
    {
        const QSignalSpy opened(m_table, &LectureTable::rowOpened);
        m_table->selectRow(1);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, QString(), true);

        press(Qt::Key_Return);
        QApplication::sendEvent(m_table, &held);

        QCOMPARE(opened.count(), 1);
    }

    void aKeyWithoutACommandMovesNothing()
    {
        m_table->selectRow(1);
        m_table->verticalScrollBar()->setValue(600);

        press(Qt::Key_Shift);

        QCOMPARE(m_table->verticalScrollBar()->value(), 600);
    }

    void deleteSpaceAndF2PressTheSelectedRowsButtons()
    {
        listenToButtons();
        m_table->selectRow(1);

        press(Qt::Key_Delete);
        press(Qt::Key_Space);
        press(Qt::Key_F2);

        QCOMPARE(m_pressed, QStringList({u"1 btnDelete"_s, u"1 btnPlay"_s, u"1 btnEdit"_s}));
    }

    void withoutASelectedRowTheKeysDoNothing()
    {
        listenToButtons();

        press(Qt::Key_Delete);
        press(Qt::Key_Space);
        press(Qt::Key_F2);
        QTest::keyClick(m_table, Qt::Key_F10, Qt::ShiftModifier);

        QVERIFY(m_pressed.isEmpty());
        QVERIFY(!QApplication::activePopupWidget());
    }

    void theMenuKeyOpensTheSelectedRowsMenu()
    {
        m_table->selectRow(1);
        QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {}, {});

        QApplication::sendEvent(m_table, &byKey);

        closeMenuOfRow(1);
    }

    void shiftF10OpensTheSelectedRowsMenu()
    {
        m_table->selectRow(1);
        press(Qt::Key_F10);
        QVERIFY(!QApplication::activePopupWidget());

        QTest::keyClick(m_table, Qt::Key_F10, Qt::ShiftModifier);

        closeMenuOfRow(1);
    }

    void withControlTheMenuKeysOpenTheMenuOfTheExport()
    {
        m_table->setRowHost(&m_host);
        m_table->selectRow(1);

        QTest::keyClick(m_table, Qt::Key_F10, Qt::ShiftModifier | Qt::ControlModifier);
        QCOMPARE(shownMenu()->actions().size(), 1);
        closeMenuOfRow(1);
        QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {}, Qt::ControlModifier);
        QApplication::sendEvent(m_table, &byKey);

        QCOMPARE(shownMenu()->actions().size(), 1);
        closeMenuOfRow(1);
    }

    void whereTheExportTakesNoFileItsKeysDoNothing()
    {
        m_host.supports = false;
        m_table->setRowHost(&m_host);
        m_table->selectRow(1);

        QTest::keyClick(m_table, Qt::Key_F10, Qt::ShiftModifier | Qt::ControlModifier);

        QVERIFY(!QApplication::activePopupWidget());
    }

    void theMenuKeyOnAButtonOfTheRowOpensItsMenuToo()
    {
        m_table->selectRow(1);
        QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {}, {});

        QApplication::sendEvent(viewOf(1)->btnPlay(), &byKey);

        closeMenuOfRow(1);
    }

    void fromTheTableTabGoesOverTheButtonsOfTheSelectedRow()
    {
        m_table->setFocus();
        m_table->selectRow(1);

        QStringList reached;
        for (int times = 0; times < 4; ++times) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            reached.append(QApplication::focusWidget()->objectName());
        }

        QCOMPARE(reached, QStringList({u"btnPlay"_s, u"btnEdit"_s, u"btnDelete"_s, u"after"_s}));
    }

    void tabGoesBackOverTheButtonsToo()
    {
        m_table->setFocus();
        m_table->selectRow(1);
        viewOf(1)->btnEdit()->setFocus();

        QTest::keyClick(viewOf(1)->btnEdit(), Qt::Key_Backtab);
        QVERIFY(viewOf(1)->btnPlay()->hasFocus());
        QTest::keyClick(viewOf(1)->btnPlay(), Qt::Key_Backtab);
        QVERIFY(m_table->hasFocus());
        QTest::keyClick(m_table, Qt::Key_Backtab);
        QVERIFY(m_after->hasFocus());
    }

    void theRowStaysMarkedWhileTheKeyboardIsOnItsButtons()
    {
        m_table->setFocus();
        m_table->selectRow(1);

        QTest::keyClick(m_table, Qt::Key_Tab);
        QVERIFY(viewOf(1)->btnEdit()->isVisible());

        m_after->setFocus();
        QVERIFY(viewOf(1)->btnEdit()->isHidden());
    }

    void twoFingersMoveARowAsideAndUncoverItsAction()
    {
        swipe(1, {-20, 0});
        swipe(1, {-10, 2});

        QCOMPARE(viewOf(1)->x(), -30);
        QCOMPARE(viewOf(0)->x(), 0);
        const QRect row = viewOf(1)->geometry();
        const int width = m_table->viewport()->width();
        QCOMPARE(button()->geometry(), QRect(width - 30, row.y(), 30, row.height() - 1));
    }

    void fingersThatLeaveARowUncoverItsActionWhole()
    {
        swipe(1, {-400, 0});
        swipe(1, {5, 0});

        wheelAt(viewOf(1)->geometry().center(), {}, {}, {}, Qt::ScrollEnd);

        QTRY_COMPARE(viewOf(1)->x(), -button()->sizeHint().width());
    }

    void theWheelWithShiftUncoversTheActionWhole()
    {
        turnWheel(1, {0, -120}, Qt::ShiftModifier);

        QTRY_COMPARE(viewOf(1)->x(), -button()->sizeHint().width());
        QCOMPARE(button()->geometry().right(), m_table->viewport()->rect().right());
    }

    void theLeadingEdgeOffersNothing()
    {
        swipe(1, {40, 0});
        turnWheel(1, {0, 120}, Qt::ShiftModifier);

        QCOMPARE(viewOf(1)->x(), 0);
        QVERIFY(!m_table->viewport()->findChild<RowActionButton *>());
    }

    void fromRightToLeftTheOtherDirectionUncoversTheAction()
    {
        m_window->setLayoutDirection(Qt::RightToLeft);

        swipe(1, {-40, 0});
        QCOMPARE(viewOf(1)->x(), 0);
        swipe(1, {30, 0});

        QCOMPARE(viewOf(1)->x(), 30);
        QCOMPARE(button()->x(), 0);
        QCOMPARE(button()->width(), 30);
    }

    void whereNothingIsOfferedNothingMoves()
    {
        m_table->setRowActions(nullptr);

        swipe(1, {-40, 0});

        QCOMPARE(viewOf(1)->x(), 0);
    }

    void aSwipeUnderTheRowsDoesNothing()
    {
        m_model.setRowCount(1);
        m_table->reloadData();

        wheelAt({100, 300}, {-40, 0}, {}, {});

        QCOMPARE(viewOf(0)->x(), 0);
    }

    void theActionHearsOfItsRow()
    {
        swipe(2, {-30, 0});

        button()->click();

        QCOMPARE(m_chosen, QList<int>{2});
        QTRY_COMPARE(viewOf(2)->x(), 0);
    }

    void scrollingCoversTheAction()
    {
        turnWheel(1, {0, -120}, Qt::ShiftModifier);
        QTRY_COMPARE(viewOf(1)->x(), -button()->sizeHint().width());

        turnWheel(1, {0, -120}, {});

        QVERIFY(m_table->verticalScrollBar()->value() > 0);
        QTRY_VERIFY(button()->isHidden());
    }

    void aClickOnAnotherRowCoversTheAction()
    {
        turnWheel(1, {0, -120}, Qt::ShiftModifier);
        QTRY_COMPARE(viewOf(1)->x(), -button()->sizeHint().width());

        QTest::mouseClick(viewOf(3), Qt::LeftButton, {}, {100, 10});

        QTRY_COMPARE(viewOf(1)->x(), 0);
        QVERIFY(button()->isHidden());
    }

    void reloadingCoversTheAction()
    {
        swipe(1, {-30, 0});

        m_table->reloadData();

        QCOMPARE(viewOf(1)->x(), 0);
        QVERIFY(button()->isHidden());
    }

    void aTableThatIsGoneWithARowAsideTakesNothingWithIt()
    {
        swipe(1, {-30, 0});
        m_table->setFocus();
        m_table->selectRow(1);
        viewOf(1)->btnPlay()->setFocus();

        delete m_table;
        QTest::mouseClick(m_after, Qt::LeftButton);

        QVERIFY(m_chosen.isEmpty());
    }

private:
    struct Host final : LectureRowHost
    {
        bool isConfirmDeleteShowing() const override { return false; }
        bool isSupportedIniTunes(QWidget *) const override { return supports; }
        bool supports = true;
    };

    void prepare() override
    {
        m_host = {};
        m_pressed.clear();
        m_chosen.clear();
        m_model.clear();
        m_model.setColumnCount(1);
        m_model.setRowCount(20);
        for (int row = 0; row < 20; ++row) {
            const auto lecture = std::make_shared<tarvelo::store::LectureInfoItem>(
                u"Optics"_s, QString(), QString(), QString(), false);
            m_model.setData(m_model.index(row, 0), QVariant::fromValue<Lecture>(lecture),
                            LectureTable::LectureRole);
        }
        m_window = std::make_unique<QWidget>();
        m_table = new LectureTable(m_window.get());
        m_table->setGeometry(0, 0, 300, 400);
        m_after = new ImageButton(m_window.get());
        m_after->setObjectName(u"after"_s);
        m_after->setGeometry(0, 410, 50, 30);
        m_window->resize(300, 450);
        m_table->setModel(&m_model);
        m_table->setRowActions([this](int, RowActionEdge edge) {
            return edge == RowActionEdge::Leading
                       ? QList<RowAction>()
                       : QList<RowAction>{{RowAction::Style::Destructive, u"Delete"_s,
                                           [this](int row) { m_chosen.append(row); }}};
        });
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QCursor::setPos(700, 700);
        m_after->setFocus();
    }
    void finish() override { m_window.reset(); }

    CustomTableCellView *viewOf(int row) const
    {
        return m_table->viewAtColumnRowMakeIfNecessary(0, row, false);
    }
    RowActionButton *button() const { return m_table->viewport()->findChild<RowActionButton *>(); }
    void press(Qt::Key key) { QTest::keyClick(m_table, key); }
    void swipe(int row, const QPoint &pixels)
    {
        wheelAt(viewOf(row)->geometry().center(), pixels, pixels * 2, {});
    }
    void turnWheel(int row, const QPoint &angle, Qt::KeyboardModifiers modifiers)
    {
        wheelAt(viewOf(row)->geometry().center(), {}, angle, modifiers);
    }
    void wheelAt(const QPoint &position, const QPoint &pixels, const QPoint &angle,
                 Qt::KeyboardModifiers modifiers, Qt::ScrollPhase phase = Qt::NoScrollPhase)
    {
        QWheelEvent event(position, m_table->viewport()->mapToGlobal(position), pixels, angle,
                          Qt::NoButton, modifiers, phase, false);
        QApplication::sendEvent(m_table->viewport(), &event);
    }
    void listenToButtons()
    {
        for (int row = 0; row < 4; ++row) {
            for (ImageButton *button : viewOf(row)->buttons()) {
                const QString name = u"%1 %2"_s.arg(row).arg(button->objectName());
                button->setAction({"test", [this, name](QWidget *) { m_pressed.append(name); }});
            }
        }
    }
    static QMenu *shownMenu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }
    void closeMenuOfRow(int row)
    {
        auto *menu = shownMenu();
        QVERIFY(menu);
        QCOMPARE(menu->parentWidget(), viewOf(row));
        QCOMPARE(menu->activeAction(), menu->actions().constFirst());
        QVERIFY(
            QRect(viewOf(row)->mapToGlobal(QPoint()), viewOf(row)->size()).contains(menu->pos()));
        menu->close();
    }

    Host m_host;
    QStandardItemModel m_model;
    std::unique_ptr<QWidget> m_window;
    LectureTable *m_table = nullptr;
    ImageButton *m_after = nullptr;
    QStringList m_pressed;
    QList<int> m_chosen;
};

QTEST_MAIN(LectureTableInputTest)
#include "LectureTableInputTest.moc"
