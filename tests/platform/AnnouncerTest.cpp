#include "platform/Announcer.h"

#include "support/TestCase.h"

#include <QAccessible>
#include <QWidget>

using namespace Qt::StringLiterals;
using tarvelo::platform::announce;

// What is heard of it on the bus is a matter of the test that walks through the windows.
class AnnouncerTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theWordsAreANotificationOfTheWindow()
    {
        announce(*m_window, u"Recording paused"_s);

        QAccessibleInterface *said = QAccessible::queryAccessibleInterface(announcement());
        QCOMPARE(said->role(), QAccessible::Notification);
        QCOMPARE(said->text(QAccessible::Name), u"Recording paused"_s);
        QVERIFY(!said->state().focusable);
    }

    void nextWordsTakeThePlaceOfTheFirst()
    {
        announce(*m_window, u"Recording paused"_s);
        announce(*m_window, u"Recording resumed"_s);

        QCOMPARE(m_window->findChildren<QWidget *>(u"announcement"_s).size(), 1);
        QCOMPARE(announcement()->accessibleName(), u"Recording resumed"_s);
    }

    void theActiveWindowSaysIt()
    {
        QWidget active;
        active.show();
        active.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&active));

        announce(*m_window, u"Lecture saved"_s);

        QVERIFY(!announcement());
        QVERIFY(active.findChild<QWidget *>(u"announcement"_s));
    }

    void nothingShowsAndTheKeyboardStaysWhereItIs()
    {
        QWidget control(m_window.get());
        control.setFocusPolicy(Qt::StrongFocus);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        control.setFocus();
        const QImage before = m_window->grab().toImage();

        announce(*m_window, u"Recording paused"_s);

        QCOMPARE(m_window->grab().toImage(), before);
        QVERIFY(control.hasFocus());
    }

    void onlyTheLastWordsStay()
    {
        QWidget other;

        announce(*m_window, u"Recording paused"_s);
        announce(other, u"Lecture saved"_s);

        QVERIFY(!m_window->findChild<QWidget *>(u"announcement"_s));
        QCOMPARE(other.findChild<QWidget *>(u"announcement"_s)->accessibleName(),
                 u"Lecture saved"_s);
    }

private:
    void prepare() override { m_window = std::make_unique<QWidget>(); }
    void finish() override { m_window.reset(); }
    QWidget *announcement() const { return m_window->findChild<QWidget *>(u"announcement"_s); }

    std::unique_ptr<QWidget> m_window;
};

QTEST_MAIN(AnnouncerTest)
#include "AnnouncerTest.moc"
