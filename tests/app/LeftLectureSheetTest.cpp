#include "app/LeftLectureSheet.h"

#include "app/Application.h"
#include "audio/LeftStage.h"
#include "platform/Texts.h"
#include "support/TestCase.h"

#include <QDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>

#include <memory>

using namespace Qt::StringLiterals;
using namespace tarvelo::app;
using tarvelo::tests::Application;
using tarvelo::tests::LeftStage;

class LeftLectureSheetTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tarvelo::platform::installTexts(); }

    void whenNothingIsLeftNothingShows()
    {
        launch();

        QVERIFY(!sheet().isVisible());
    }

    void itShowsSubjectDayAndLength()
    {
        leaveTake();
        leaveJournal();

        launch();

        QVERIFY(sheet().isVisible());
        QVERIFY(sheet().windowModality() == Qt::WindowModal);
        QCOMPARE(words("leftSubject"), u"wave optics"_s);
        QCOMPARE(words("leftDay"), u"Thursday, February 29, 2024"_s);
        QCOMPARE(words("leftLength"), u"00:00:02"_s);
        QVERIFY(sheet().accessibleDescription().contains(u"wave optics"_s));
    }

    void fromRightToLeftASubjectOfAnyLanguageStandsAtTheRight()
    {
        const auto restored =
            qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        prepare();
        leaveJournal();

        launch();

        const QImage image = label("leftSubject").grab().toImage();
        const QImage left = image.copy(0, 0, image.width() / 2, image.height());
        const QColor ground = image.pixelColor(0, 0);
        QImage blank(left.size(), left.format());
        blank.fill(ground);
        QVERIFY(label("leftSubject").fontMetrics().horizontalAdvance(words("leftSubject")) <
                label("leftSubject").width() / 2);
        QCOMPARE(left, blank);
    }

    void aNameStandsOnTheFirstLineOfItsValue()
    {
        auto journal = LeftStage::journal();
        journal.subject = QStringList(40, u"optics"_s).join(u' ');
        LeftStage::write(temporary() + u"/lecture.journal"_s, tarvelo::store::toBytes(journal));

        launch();

        for (const QLabel *name : sheet().findChildren<QLabel *>()) {
            const QWidget *value = name->buddy();
            if (!value)
                continue;
            const bool isBroken = value == &label("leftSubject");
            QVERIFY(name->alignment().testFlag(isBroken ? Qt::AlignTop : Qt::AlignVCenter));
        }
        QVERIFY(label("leftSubject").height() > 2 * label("leftDay").height());
    }

    void itSpeaksOfListeningOnlyWhereThereIsSomethingToHear_data()
    {
        QTest::addColumn<bool>("isAudioThere");
        QTest::newRow("with audio") << true;
        QTest::newRow("without") << false;
    }

    void itSpeaksOfListeningOnlyWhereThereIsSomethingToHear()
    {
        QFETCH(bool, isAudioThere);
        leaveJournal();
        if (isAudioThere)
            leaveTake();

        launch();

        QVERIFY(sheet().isVisible());
        QCOMPARE(button("listen").isEnabled(), isAudioThere);
        QCOMPARE(words("explained").contains(u"listen"), isAudioThere);
        QVERIFY(sheet().accessibleDescription().startsWith(words("explained")));
    }

    void keepingIsTheDefaultAndHasTheKeyboard()
    {
        leaveTake();

        launch();

        QVERIFY(button("keep").isDefault());
        QCOMPARE(sheet().focusWidget(), &button("keep"));
        QVERIFY(!button("discard").isDefault() && !button("discard").autoDefault());
    }

    void keptItStandsUnderItsDay()
    {
        leaveTake();
        leaveJournal();
        launch();
        showDay(QDate(2024, 2, 29));

        button("keep").click();

        QVERIFY(!sheet().isVisible());
        QCOMPARE(m_app->controller.arrangedObjects().size(), 1U);
        QCOMPARE(m_app->controller.arrangedObjects().at(0)->strSubject(), u"Wave Optics"_s);
    }

    void discardedItIsGoneWithoutAQuestion()
    {
        leaveTake();
        leaveJournal();
        launch();

        button("discard").click();

        QVERIFY(!sheet().isVisible());
        QCOMPARE(names(), QStringList({u".owner"_s}));
        QVERIFY(m_app->alerts.sheets.isEmpty());
    }

    void escapeDecidesNothing()
    {
        leaveTake();
        leaveJournal();
        launch();

        QTest::keyClick(&sheet(), Qt::Key_Escape);

        QVERIFY(!sheet().isVisible());
        QCOMPARE(m_app->controller.leftLectures().undecided().size(), 1);
    }

    void whatWasNotDecidedSurvivesTheNextRecording()
    {
        leaveTake();
        leaveJournal();
        launch();
        QTest::keyClick(&sheet(), Qt::Key_Escape);
        showDay(QDate(2024, 3, 5));

        m_app->controller.onAddItem(nullptr);
        m_app->controller.startRecording(nullptr);
        m_app->windows.newLectureOutlets().BtnDoneOrClose->click();
        m_app->clock.advance(std::chrono::seconds(1));

        QCOMPARE(m_app->controller.arrangedObjects().size(), 1U);
        const auto left = m_app->controller.leftLectures().undecided();
        QCOMPARE(left.size(), 1);
        QCOMPARE(left[0].journal.subject, u"wave optics"_s);
        QVERIFY(left[0].seconds > 2);
    }

    void listeningDecidesNothing()
    {
        leaveTake();
        launch();

        button("listen").click();
        QVERIFY(m_app->engine.player && m_app->engine.player->isPlaying());
        QCOMPARE(m_app->engine.playerBytes, LeftStage::takeBytes());
        QCOMPARE(button("listen").text(), u"Pause"_s);
        button("listen").click();
        QVERIFY(!m_app->engine.player->isPlaying());
        QCOMPARE(button("listen").text(), u"Listen"_s);
        button("listen").click();
        m_app->engine.endPlayer();
        QCOMPARE(button("listen").text(), u"Listen"_s);

        QVERIFY(sheet().isVisible());
        QCOMPARE(m_app->controller.leftLectures().undecided().size(), 1);
    }

    void whatPlaysEndsWithTheSheet()
    {
        leaveTake();
        launch();
        button("listen").click();

        sheet().reject();

        QTRY_VERIFY(!m_app->engine.player);
    }

    void notesAloneCannotBeListenedTo()
    {
        leaveJournal();

        launch();

        QVERIFY(sheet().isVisible());
        QVERIFY(!button("listen").isEnabled());
    }

    void severalAreOfferedOneAfterTheOther()
    {
        leaveTake();
        leaveJournal();
        LeftStage::write(temporary() + u"/leftover-20200101T000000000.m4a"_s,
                         LeftStage::takeBytes());
        launch();
        QCOMPARE(words("leftSubject"), u"Untitled"_s);

        button("discard").click();

        QVERIFY(sheet().isVisible());
        QCOMPARE(words("leftSubject"), u"wave optics"_s);
        button("keep").click();
        QVERIFY(!sheet().isVisible());
    }

    void aHiddenWindowIsWaitedFor()
    {
        leaveTake();
        m_app->store("showWindowAtLogin", 0);
        m_app->launch();
        m_app->clock.advance(std::chrono::seconds(2));
        QVERIFY(!sheet().isVisible());

        m_app->window().show();

        QTRY_VERIFY(sheet().isVisible());
    }

    void whatALivingProcessRecordsIsLeftAlone()
    {
        leaveTake();
        leaveJournal();
        tarvelo::platform::FolderLock living;
        QVERIFY(living.own(temporary()));
        const QStringList before = names();

        launch();

        QVERIFY(!sheet().isVisible());
        QCOMPARE(names(), before);
    }

    void whatCannotBeKeptNowIsSaid()
    {
        leaveTake();
        launch();
        // Where the journal would be made.
        const QString take = QDir(temporary()).entryList({u"leftover-*"_s}).value(0);
        QVERIFY(QDir(temporary())
                    .mkdir(u"."_s + QFileInfo(take).completeBaseName() + u".journal.spare"_s));

        button("keep").click();

        QVERIFY(sheet().isVisible());
        QVERIFY(words("outcome").startsWith(u"The lecture cannot be kept now."_s));
        QCOMPARE(m_app->controller.leftLectures().undecided().size(), 1);
    }

private:
    void prepare() override
    {
        m_app = std::make_unique<Application>();
        QDir().mkpath(temporary());
    }
    void finish() override { m_app.reset(); }

    QString temporary() const { return m_app->home.folder() + u"/temp"_s; }
    QStringList names() const
    {
        return QDir(temporary()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    void leaveTake() const
    {
        LeftStage::write(temporary() + u"/tempAudioFile.m4a"_s, LeftStage::takeBytes());
    }
    void leaveJournal() const
    {
        LeftStage::write(temporary() + u"/lecture.journal"_s,
                         tarvelo::store::toBytes(LeftStage::journal()));
    }
    void launch()
    {
        m_app->launch();
        m_app->window().show();
        m_app->clock.advance(std::chrono::seconds(2));
    }
    void showDay(const QDate &day)
    {
        m_app->delegate.calendarDidSelectDate(nullptr, QDateTime(day, QTime(0, 0), Qt::UTC));
    }
    QDialog &sheet() { return *m_app->delegate.leftLectureSheet().sheet(); }
    QPushButton &button(const char *name)
    {
        return *sheet().findChild<QPushButton *>(QLatin1StringView(name));
    }
    QLabel &label(const char *name)
    {
        return *sheet().findChild<QLabel *>(QLatin1StringView(name));
    }
    QString words(const char *name) { return label(name).text(); }

    std::unique_ptr<Application> m_app;
};

QTEST_MAIN(LeftLectureSheetTest)
#include "LeftLectureSheetTest.moc"
