#include "app/BringBackSheet.h"

#include "app/Application.h"
#include "audio/engine/Recordings.h"
#include "calendar/CKCalendarView.h"
#include "platform/Texts.h"
#include "store/LectureInfoItem.h"
#include "store/Statements.h"
#include "support/LectureBuilder.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

#include <QDialog>
#include <QFile>
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
        QCOMPARE(outcome(), u"There are no copies yet: so far no lectures were removed in bulk."_s);
        QVERIFY(choose().isHidden());
        QVERIFY(!button().isEnabled());
        QVERIFY(list().isHidden());
    }

    void theTableShowsWhereThereIsSomethingAndTheButtonBesideItIsWhatReturnPresses()
    {
        open();
        sheet().close();
        loseTwoLectures();

        open();

        QVERIFY(list().isVisible());
        QVERIFY(list().hasFocus() || !sheet().isActiveWindow());
        QVERIFY(button().isDefault());
        QVERIFY(outcome().isEmpty());
        QVERIFY(choose().isVisible());
        const QTreeWidgetItem &copy = *list().topLevelItem(0);
        for (const int column : {1, 2})
            QVERIFY(Qt::Alignment(copy.textAlignment(column)).testFlag(Qt::AlignRight));
        QVERIFY(
            sheet().rect().contains(QRect(button().mapTo(&sheet(), QPoint()), button().size())));
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

    void recordingsWithoutALectureAreOneMoreEntryBehindTheCopies()
    {
        loseTwoLectures();
        putRecording("Audio - 1.m4a");
        putRecording("Audio - 2.m4a");

        openAndSearch();

        QCOMPARE(list().topLevelItemCount(), 2);
        QVERIFY(list().topLevelItem(0)->isSelected());
        QCOMPARE(list().topLevelItem(1)->text(0), u"Recordings without a lecture"_s);
        QCOMPARE(list().topLevelItem(1)->text(1), u"2"_s);
        QCOMPARE(list().topLevelItem(1)->text(2), u"2"_s);
    }

    void withoutCopiesTheRecordingsAreChosenAndComeBackByTheKeyboard()
    {
        putRecording("Audio - 1.m4a");
        m_app->delegate.calendarDidSelectDate(nullptr, m_app->clock.now());
        openAndSearch();
        QCOMPARE(outcome(), QString());
        QVERIFY(list().isEnabled());
        QVERIFY(list().topLevelItem(0)->isSelected());

        QTest::keyClick(&sheet(), Qt::Key_Return);

        QCOMPARE(outcome(), u"Lectures brought back: 1"_s);
        QCOMPARE(list().topLevelItemCount(), 0);
        QVERIFY(!button().isEnabled());
        QCOMPARE(m_app->controller.arrangedObjects().size(), 1U);
        openAndSearch();
        QCOMPARE(list().topLevelItemCount(), 0);
    }

    void whatIsChosenStaysChosenWhenTheRecordingsCome()
    {
        loseTwoLectures();
        m_app->clock.advance(std::chrono::hours(1));
        loseTwoLectures();
        putRecording("Audio - 1.m4a");
        open();
        list().setCurrentItem(list().topLevelItem(1));

        waitForSearch();

        QCOMPARE(list().topLevelItemCount(), 3);
        QVERIFY(list().topLevelItem(1)->isSelected());
    }

    void ofADamagedFileALineTells()
    {
        open();
        QVERIFY(!damaged().isVisible());
        sheet().close();
        m_app->home.writeDatabaseFile("no database");
        m_app->clock.advance(std::chrono::hours(24));
        QVERIFY(m_app->database.damagedFiles().putAside(m_app->home.databaseFile()));

        open();

        QVERIFY(damaged().isVisible());
        QCOMPARE(damaged().text(), u"The file of lectures was damaged on Mar 6, 2024. It was put "
                                   "aside whole, and all that could be read is here again."_s);
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
    void waitForSearch() const
    {
        QTRY_VERIFY_WITH_TIMEOUT(!m_app->delegate.bringBackSheet().recordings().isSearching(),
                                 60000);
    }
    void openAndSearch() const
    {
        open();
        waitForSearch();
    }
    // Of today.
    void putRecording(const char *name) const
    {
        QFile file(m_app->controller.getAudioFolderPath() + QLatin1String(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(m_sound) == m_sound.size());
        QVERIFY(file.flush());
        QVERIFY(file.setFileTime(m_app->clock.now(), QFileDevice::FileModificationTime));
    }
    QLabel &damaged() const { return *sheet().findChild<QLabel *>(u"damaged"_s); }
    QLabel &choose() const { return *sheet().findChild<QLabel *>(u"choose"_s); }
    QString outcome() const { return sheet().findChild<QLabel *>(u"outcome"_s)->text(); }

    // Two without a recording, which go together.
    void loseTwoLectures() const
    {
        aLecture().named("Logic").withoutAudio().insertInto(m_app->database);
        aLecture().named("Ethics").withoutAudio().insertInto(m_app->database);
        tarvelo::store::LectureInfoItem lecture(u"Any"_s, u""_s, u""_s, u""_s, false);
        m_app->database.deleteVoiceData(lecture);
    }

    const QByteArray m_sound = tarvelo::tests::recordingOf(tarvelo::tests::tune(44100, 1));
    std::unique_ptr<Application> m_app;
};

QTEST_MAIN(BringBackSheetTest)
#include "BringBackSheetTest.moc"
