#include "app/BringBackSheet.h"

#include "app/Application.h"
#include "calendar/CKCalendarView.h"
#include "platform/Texts.h"
#include "store/LectureInfoItem.h"
#include "store/Statements.h"
#include "support/LectureBuilder.h"
#include "support/TestCase.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include <memory>

using namespace Qt::StringLiterals;
using namespace tarvelo::app;
using tarvelo::tests::aLecture;
using tarvelo::tests::Application;

class BringBackSheetTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tarvelo::platform::installTexts(); }

    void withoutCopiesItSaysSoAndOffersNothing()
    {
        open();

        QVERIFY(sheet().isVisible());
        QCOMPARE(list().topLevelItemCount(), 0);
        QCOMPARE(outcome(), u"There are no copies: no lectures went in bulk so far."_s);
        QVERIFY(!button().isEnabled());
    }

    void everyCopyStandsThereWithItsMomentAndItsLectures()
    {
        loseTwoLectures();
        m_app->clock.advance(std::chrono::hours(1));
        loseTwoLectures();

        open();

        QCOMPARE(list().topLevelItemCount(), 2);
        const QTreeWidgetItem &newest = *list().topLevelItem(0);
        QCOMPARE(newest.text(0), u"Mar 5, 2024, 10:00:00\u202FAM"_s);
        QCOMPARE(newest.text(1), u"2"_s);
        QCOMPARE(newest.text(2), u"2"_s);
        QVERIFY(newest.isSelected());
        QVERIFY(button().isEnabled());
    }

    void whatIsMissingComesBackAndShowsAtOnce()
    {
        loseTwoLectures();
        m_app->delegate.calendarDidSelectDate(nullptr, m_app->clock.now());
        QCOMPARE(m_app->controller.arrangedObjects().size(), 0U);

        open();
        button().click();

        QCOMPARE(outcome(), u"Lectures brought back: 2"_s);
        QVERIFY(!button().isEnabled());
        QCOMPARE(list().topLevelItem(0)->text(2), u"0"_s);
        QCOMPARE(m_app->controller.arrangedObjects().size(), 2U);
    }

    void whatCannotComeBackNowIsSaid()
    {
        loseTwoLectures();
        open();
        tarvelo::store::Sqlite other(m_app->home.databaseFile());
        QVERIFY(other.beginTransaction());

        button().click();

        QCOMPARE(outcome(), u"The lectures cannot be brought back now. Nothing was changed."_s);
        other.rollback();
        open();
        button().click();
        QCOMPARE(outcome(), u"Lectures brought back: 2"_s);
    }

    void itsCloseButtonClosesIt()
    {
        open();

        sheet().findChild<QPushButton *>(u"closeBringBack"_s)->click();

        QVERIFY(!sheet().isVisible());
    }

private:
    void prepare() override { m_app = std::make_unique<Application>(); }
    void finish() override { m_app.reset(); }

    void open() const { m_app->delegate.menus().action(Command::BringLecturesBack)->trigger(); }
    QDialog &sheet() const { return *m_app->delegate.bringBackSheet().sheet(); }
    QTreeWidget &list() const { return *sheet().findChild<QTreeWidget *>(u"copies"_s); }
    QPushButton &button() const { return *sheet().findChild<QPushButton *>(u"bringBack"_s); }
    QString outcome() const { return sheet().findChild<QLabel *>(u"outcome"_s)->text(); }

    // Two without a recording, which go together.
    void loseTwoLectures() const
    {
        aLecture().named("Logic").withoutAudio().insertInto(m_app->database);
        aLecture().named("Ethics").withoutAudio().insertInto(m_app->database);
        tarvelo::store::LectureInfoItem lecture(u"Any"_s, u""_s, u""_s, u""_s, false);
        m_app->database.deleteVoiceData(lecture);
    }

    std::unique_ptr<Application> m_app;
};

QTEST_MAIN(BringBackSheetTest)
#include "BringBackSheetTest.moc"
