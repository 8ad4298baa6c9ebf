#include "platform/Alerts.h"

#include "support/TestCase.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace tarvelo::platform;

// Sheets on a real window.
class AlertsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aSheetSaysItsTextsAndHasItsOneButton()
    {
        begin();

        QCOMPARE(sheet()->text(), u"Subject name is blank"_s);
        QCOMPARE(sheet()->informativeText(), u"Please provide subject name."_s);
        QCOMPARE(sheet()->buttons().size(), 1);
        QCOMPARE(sheet()->buttons().first()->text(), u"Close"_s);
        QCOMPARE(sheet()->icon(), QMessageBox::Warning);
    }

    void whatHasHappenedStandsOutFromWhatToDo()
    {
        begin();

        QVERIFY(sheet()->findChild<QLabel *>(u"qt_msgbox_label"_s)->font().bold());
        QVERIFY(!sheet()->findChild<QLabel *>(u"qt_msgbox_informativelabel"_s)->font().bold());
    }

    void aSheetHoldsUpItsWindowAloneAndNotTheCaller()
    {
        QVERIFY(!hasAttachedSheet(*m_window));

        begin();

        QVERIFY(hasAttachedSheet(*m_window));
        QCOMPARE(sheet()->windowModality(), Qt::WindowModal);
        QVERIFY(!hasAttachedSheet(*sheet()));
    }

    void aSheetHasTheColoursOfItsWindow()
    {
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::yellow);
        m_window->setPalette(palette);

        begin();

        QCOMPARE(sheet()->palette().color(QPalette::Window), QColor(Qt::yellow));
    }

    void pressingTheButtonEndsTheSheetAndTellsOnce()
    {
        begin();

        sheet()->buttons().first()->click();

        QTRY_VERIFY(!sheet());
        QVERIFY(!hasAttachedSheet(*m_window));
        QCOMPARE(m_ends, QList<int>{Alerts::DefaultReturn});
    }

    void escapeEndsTheSheetAsTheButtonDoes()
    {
        begin();

        QTest::keyClick(sheet(), Qt::Key_Escape);

        QTRY_VERIFY(!sheet());
        QCOMPARE(m_ends, QList<int>{Alerts::DefaultReturn});
    }

    void aSheetWithoutAnEndHandlerEndsAllTheSame()
    {
        WindowAlerts().beginSheet(alert(), *m_window, {});

        sheet()->buttons().first()->click();

        QTRY_VERIFY(!sheet());
        QVERIFY(m_ends.isEmpty());
    }

    void whatASheetSaysAlreadyIsNotSaidByAnother()
    {
        begin();
        begin();
        QCOMPARE(m_window->findChildren<QMessageBox *>().size(), 1);

        sheet()->buttons().first()->click();
        QTRY_VERIFY(!sheet());
        QCOMPARE(m_ends.size(), 1);
        begin();

        QVERIFY(sheet());
    }

    void somethingElseIsSaidBesideIt()
    {
        begin();

        WindowAlerts().beginSheet({u"Recording is on process!"_s, u"Ok"_s, QString()}, *m_window,
                                  {});

        QCOMPARE(m_window->findChildren<QMessageBox *>().size(), 2);
    }

    void aWindowThatGoesTakesItsSheetAlong()
    {
        begin();

        m_window.reset();

        QVERIFY(m_ends.isEmpty());
    }

private:
    void prepare() override
    {
        m_ends.clear();
        m_window = std::make_unique<QWidget>();
        m_window->show();
    }
    void finish() override { m_window.reset(); }

    static Alert alert()
    {
        return {u"Subject name is blank"_s, u"Close"_s, u"Please provide subject name."_s};
    }
    void begin()
    {
        WindowAlerts().beginSheet(alert(), *m_window, [this](int code) { m_ends.append(code); });
    }
    QMessageBox *sheet() const { return m_window->findChild<QMessageBox *>(u"alertSheet"_s); }

    std::unique_ptr<QWidget> m_window;
    QList<int> m_ends;
};

QTEST_MAIN(AlertsTest)
#include "AlertsTest.moc"
