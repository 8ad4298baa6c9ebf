#include "app/Application.h"
#include "lectures/CustomTableCellView.h"
#include "lectures/LectureTable.h"
#include "platform/Alerts.h"
#include "platform/Texts.h"
#include "support/LectureBuilder.h"
#include "support/TestCase.h"
#include "support/TextFit.h"
#include "widgets/PopOver.h"

#include <QDialog>
#include <QDirIterator>
#include <QLineEdit>
#include <QMessageBox>
#include <QTextEdit>
#include <QTranslator>

using namespace tarvelo;
using tests::Application;
using tests::noonOf;
using tests::textFaultsIn;
using namespace std::chrono_literals;

namespace {

// As large as the texts of desktops are that have large ones.
constexpr double OrdinaryPoints = 11;
// That, and with the desktop's setting for large text.
constexpr double Sizes[] = {1, 1.5};

QStringList languages()
{
    QStringList languages;
    QDirIterator files(QStringLiteral(TARVELO_SOURCE_DIR "/resources/texts"), QDir::Files);
    while (files.hasNext())
        languages << QFileInfo(files.next()).baseName().section(u'_', 1);
    return languages;
}

// The program speaks this language from now on, whatever it spoke before.
void speak(const QString &language)
{
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    QLocale::setDefault(QLocale(language));
    platform::installTexts();
    const bool isRightToLeft = platform::text("LAYOUT_DIRECTION") == u"RTL";
    QApplication::setLayoutDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
}

void insertLectures(Application &program)
{
    program.home.makeFolder();
    tests::LectureBuilder().named("Optics").insertInto(program.database);
    tests::LectureBuilder().named("Waves").withoutAudio().insertInto(program.database);
}

lectures::CustomTableCellView &firstRow(Application &program)
{
    auto &table = *program.windows.mainOutlets().tblRecordSubjectList;
    return *table.viewAtColumnRowMakeIfNecessary(0, 0, true);
}

} // namespace

class LanguagesTest final : public tests::TestCase
{
    Q_OBJECT

    QStringList m_faults;

    // The name says to who reads the faults which window has them.
    void look(QWidget &window, const char *name)
    {
        window.show();
        QCoreApplication::sendPostedEvents();
        for (const QString &fault : textFaultsIn(window))
            m_faults << QLatin1String(name) + QStringLiteral(": ") + fault;
    }

    void lookAtTheMainWindow(Application &program)
    {
        look(program.window(), "empty day");
        insertLectures(program);
        program.delegate.calendarDidSelectDate(nullptr, noonOf(2024, 3, 5));
        firstRow(program).mouseEntered();
        look(program.window(), "list");
        program.controller.openPlayEditWindow(firstRow(program).btnEdit());
        program.window().setFrameWidth(lectures::ExpandedWidth, false);
        look(program.window(), "lecture view");
        program.controller.viewEditView(nullptr);
        QTRY_COMPARE(program.windows.mainOutlets().editPlayView->x(), 0);
        QTRY_VERIFY(!program.window().isSliding());
        look(program.window(), "lecture view alone");
    }

    void lookAtTheOtherWindows(Application &program)
    {
        const lectures::LectureWindows &windows = program.windows;
        program.controller.onAddItem(nullptr);
        look(*windows.newLectureOutlets().newNoteWindow, "new");
        windows.recordingOutlets().btnStartRecord->click();
        look(*windows.newLectureOutlets().newNoteWindow, "recording");
        look(*windows.editLectureOutlets().windowEditLecture, "edit");
        look(*windows.playAudioOutlets().playAudioWindow, "play");
        look(*windows.popoverOutlets().popoverConfirmRecordDelete, "delete");
        look(*windows.popoverOutlets().popoverAudioConfirmClose, "no audio");
        look(*program.delegate.preferences().preferrenceWindow(), "preferences");
        program.delegate.menus().action(app::Command::BringLecturesBack)->trigger();
        look(*program.window().findChild<QDialog *>(QStringLiteral("bringBackSheet")),
             "bring back");
        platform::WindowAlerts().beginSheet({QStringLiteral("Recording is on process!"),
                                             QStringLiteral("Ok"),
                                             QStringLiteral("Please click Done to save.")},
                                            program.window(), {});
        look(*program.window().findChild<QMessageBox *>(), "alert");
    }

    void lookAtTheMenus(Application &program)
    {
        app::AppMenus &menus = program.delegate.menus();
        m_faults += textFaultsIn(menus.mainMenu()) + textFaultsIn(menus.helpMenu()) +
                    textFaultsIn(menus.statusMenu()) + textFaultsIn(*firstRow(program).getMenu());
    }

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(QStringLiteral("Fusion")); }

    void everyTextFitsItsControlAndCanBeDrawn_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<double>("size");

        for (const QString &language : languages())
            for (const double size : Sizes)
                QTest::addRow("%s at %g", qPrintable(language), size) << language << size;
    }

    void everyTextFitsItsControlAndCanBeDrawn()
    {
        QFETCH(QString, language);
        QFETCH(double, size);
        speak(language);
        QFont font = QApplication::font();
        font.setPointSizeF(OrdinaryPoints * size);
        QApplication::setFont(font);
        Application program(language.toLatin1());
        program.launch();
        // Until the path of the take is known.
        program.clock.advance(500ms);

        m_faults.clear();
        lookAtTheMainWindow(program);
        lookAtTheMenus(program);
        lookAtTheOtherWindows(program);

        QVERIFY2(m_faults.isEmpty(), qPrintable(m_faults.join(u'\n')));
    }
};

QTEST_MAIN(LanguagesTest)
#include "LanguagesTest.moc"
