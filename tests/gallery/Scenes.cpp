#include "gallery/Scenes.h"

#include "audio/RecordingWatch.h"
#include "gallery/ControlScenes.h"
#include "lectures/CustomTableCellView.h"
#include "lectures/LectureTable.h"
#include "lectures/WindowWidths.h"
#include "platform/Alerts.h"
#include "platform/Texts.h"
#include "store/LectureJournal.h"
#include "support/LectureBuilder.h"
#include "widgets/LevelIndicator.h"
#include "widgets/PopOver.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTextEdit>
#include <QTranslator>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace tarvelo::tests {

namespace {

constexpr int Patience = 20000;

class Tour final
{
public:
    using Look = std::function<void(const QString &, QWidget &)>;

    Tour(Application &program, const Look &look)
        : m_program(program)
        , m_look(look)
    {
    }

    void leftLecture();
    void main();
    void row();
    // False when the view did not come to rest.
    bool lectureView();
    void menus();
    void newLecture();
    void warnings();
    void windows();
    void playAndPause();
    void popOvers();
    void sheets();

private:
    void look(const char *name, QWidget &window) const
    {
        window.show();
        QCoreApplication::sendPostedEvents();
        m_look(QString::fromLatin1(name), window);
    }
    void lookAtMain(const char *name) const { look(name, m_program.window()); }
    lectures::CustomTableCellView &rowAt(int row) const
    {
        auto &table = *m_program.windows.mainOutlets().tblRecordSubjectList;
        return *table.viewAtColumnRowMakeIfNecessary(0, row, true);
    }
    // It has no audio; the one below it has.
    lectures::CustomTableCellView &firstRow() const { return rowAt(0); }
    void fill() const;

    Application &m_program;
    const Look &m_look;
};

// A lecture that a process which did not live to store it has written down.
void leaveLecture(const Application &program)
{
    const store::LectureJournal journal{.id = u"20240304T080000000"_s,
                                        .subject = u"Wave optics"_s,
                                        .notes = u"Huygens"_s,
                                        .day = u"2024-03-04"_s,
                                        .date = u"2024-03-04"_s};
    const QString folder = program.home.folder() + u"/temp"_s;
    QFile file(folder + u"/lecture.journal"_s);
    if (QDir().mkpath(folder) && file.open(QIODevice::WriteOnly))
        file.write(store::toBytes(journal));
}

// A student's month.
void Tour::fill() const
{
    m_program.home.makeFolder();
    const auto add = [this](const LectureBuilder &lecture) {
        lecture.insertInto(m_program.database);
    };
    add(aLecture().named("Geometric optics").withNotes("Lenses bend light.\n\n00:12:40\nSnell"));
    add(aLecture()
            .named("Analysis I")
            .withNotes("Uniform convergence")
            .withAudio(makeTake(m_program))
            .lasting("01:31:05"));
    add(aLecture().named("Worksheet 5").withNotes("Due on Monday").withoutAudio());
    for (const char *day : {"2024-03-01", "2024-03-04", "2024-02-27"})
        add(aLecture().named("Linear algebra").on(day));
    m_program.delegate.calendarDidSelectDate(nullptr, noonOf(2024, 3, 5));
    m_program.windows.mainOutlets().calendarView->layoutSubviews();
}

void Tour::leftLecture()
{
    m_program.window().show();
    m_program.clock.advance(app::AppDelegate::LeftLecturesDelay);
    QDialog &sheet = *m_program.delegate.leftLectureSheet().sheet();
    look("left-lecture", sheet);
    sheet.close();
}

void Tour::main()
{
    lookAtMain("main-empty-day");
    fill();
    lookAtMain("main-list");
    m_program.window().setFrameWidth(lectures::FoldedWidth, false);
    lookAtMain("main-folded");
    m_program.window().setFrameWidth(lectures::ListShownWidth, false);
    m_program.delegate.menus().action(app::Command::AllList)->trigger();
    lookAtMain("main-all-list");
    m_program.delegate.calendarDidSelectDate(nullptr, noonOf(2024, 3, 5));
}

void Tour::row()
{
    firstRow().mouseEntered();
    lookAtMain("row-under-the-mouse");
    firstRow().mouseExited();
}

bool Tour::lectureView()
{
    m_program.controller.openPlayEditWindow(firstRow().btnEdit());
    m_program.window().setFrameWidth(lectures::ExpandedWidth, false);
    lookAtMain("lecture-beside-list");
    m_program.controller.viewEditView(nullptr);
    const QWidget &view = *m_program.windows.mainOutlets().editPlayView;
    const auto isAtRest = [&] { return view.x() == 0 && !m_program.window().isSliding(); };
    if (!QTest::qWaitFor(isAtRest, Patience))
        return false;
    lookAtMain("lecture-alone");
    return true;
}

void Tour::menus()
{
    app::AppMenus &menus = m_program.delegate.menus();
    look("menu", menus.mainMenu());
    menus.mainMenu().close();
    look("menu-help", menus.helpMenu());
    menus.helpMenu().close();
    look("menu-status-item", menus.statusMenu());
    menus.statusMenu().close();
    const auto ofRow = firstRow().getMenu();
    look("menu-row", *ofRow);
}

void Tour::newLecture()
{
    const lectures::NewLectureOutlets &outlets = m_program.windows.newLectureOutlets();
    const audio::RecordingOutlets &recording = m_program.windows.recordingOutlets();
    m_program.controller.onAddItem(nullptr);
    look("new-lecture", *outlets.newNoteWindow);

    outlets.txtSubjectForNewNote->setText(u"Geometric optics"_s);
    outlets.txtView->setPlainText(u"Lenses bend light. Ask about Fermat."_s);
    recording.btnStartRecord->click();
    m_program.engine.recordedSeconds = 765;
    m_program.clock.advance(1s);
    look("new-lecture-recording", *outlets.newNoteWindow);
    warnings();

    recording.btnPauseResumeRecording->click();
    look("new-lecture-paused", *outlets.newNoteWindow);

    recording.btnStopRecord->click();
    m_program.clock.advance(500ms);
    look("new-lecture-stopped", *outlets.newNoteWindow);

    m_program.engine.playerDuration = 765;
    recording.btnStopRecord->click();
    m_program.engine.playedSeconds = 255;
    m_program.clock.advance(1s);
    look("new-lecture-listening", *outlets.newNoteWindow);
}

void Tour::warnings()
{
    QLabel &line = *m_program.windows.recordingOutlets().lblRecordingWarning;
    const QString minutes = QLocale().toString(29);
    m_program.clock.advance(10s);
    look("new-lecture-nothing-heard", *line.window());
    audio::RecordingWatch::say(line, platform::text("RECORDING_LITTLE_ROOM").arg(minutes), false);
    look("new-lecture-little-room", *line.window());
    const QString warning = platform::text("RECORDING_HARDLY_ANY_ROOM").arg(minutes);
    audio::RecordingWatch::say(line, warning, true);
    look("new-lecture-hardly-any-room", *line.window());
    line.setText(warning + u'\n' + platform::text("RECORDING_NOTHING_HEARD"));
    look("new-lecture-hardly-any-room-nothing-heard", *line.window());
    m_program.engine.soundHeard = {12, 12};
    m_program.clock.advance(1s);
}

void Tour::windows()
{
    const lectures::LectureWindows &windows = m_program.windows;
    m_program.controller.onEditLecture(firstRow().btnEdit());
    look("edit", *windows.editLectureOutlets().windowEditLecture);
    playAndPause();
    look("play", *windows.playAudioOutlets().playAudioWindow);
    windows.playAudioOutlets().playAudioWindow->hide();
    look("preferences", *m_program.delegate.preferences().preferrenceWindow());
}

void Tour::playAndPause()
{
    m_program.engine.playerDuration = 5465;
    rowAt(1).btnPlay()->click();
    m_program.engine.playedSeconds = 605;
    m_program.clock.advance(1s);
    m_program.windows.lecturePlayerOutlets().btnPauseLecture->click();
}

// Each stands at the button that opens it.
void Tour::popOvers()
{
    const lectures::PopoverOutlets &outlets = m_program.windows.popoverOutlets();
    // The answer that Return presses is marked once the keyboard is there.
    const auto waitFor = [](const QWidget &popOver) {
        static_cast<void>(
            QTest::qWaitFor([&] { return QApplication::activeWindow() == &popOver; }));
    };
    firstRow().btnDelete()->click();
    waitFor(*outlets.popoverConfirmRecordDelete);
    look("delete", *outlets.popoverConfirmRecordDelete);
    outlets.popoverConfirmRecordDelete->close();
    firstRow().btnPlay()->click();
    waitFor(*outlets.popoverAudioConfirmClose);
    look("no-audio", *outlets.popoverAudioConfirmClose);
    outlets.popoverAudioConfirmClose->close();
}

void Tour::sheets()
{
    m_program.delegate.menus().action(app::Command::BringLecturesBack)->trigger();
    auto &bringBack = *m_program.window().findChild<QDialog *>(u"bringBackSheet"_s);
    look("bring-back", bringBack);
    bringBack.close();
    m_program.delegate.applicationShouldTerminate(nullptr);
    const FakeAlerts::Sheet &asked = m_program.alerts.sheets.last();
    platform::WindowAlerts().beginSheet({asked.message, asked.button, asked.informativeText},
                                        m_program.window(), {});
    auto &alert = *m_program.window().findChild<QMessageBox *>();
    look("alert", alert);
    alert.close();
}

} // namespace

void speak(const QString &language)
{
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    QLocale::setDefault(QLocale(language));
    platform::installTexts();
    const bool isRightToLeft = platform::text("LAYOUT_DIRECTION") == u"RTL";
    QApplication::setLayoutDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
}

QStringList languages()
{
    QStringList languages;
    QDirIterator files(QStringLiteral(TARVELO_SOURCE_DIR "/resources/texts"), QDir::Files);
    while (files.hasNext())
        languages << QFileInfo(files.next()).baseName().section(u'_', 1);
    languages.sort();
    return languages;
}

bool goThrough(Application &program, const std::function<void(const QString &, QWidget &)> &look)
{
    leaveLecture(program);
    program.launch();
    program.clock.advance(500ms); // until the path of the take is known
    Tour tour(program, look);
    tour.leftLecture();
    tour.main();
    tour.row();
    const bool isAllShown = tour.lectureView();
    tour.menus();
    tour.newLecture();
    tour.windows();
    tour.popOvers();
    tour.sheets();
    goThroughControls(program, look);
    return isAllShown;
}

} // namespace tarvelo::tests
