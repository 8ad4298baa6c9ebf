// A student with the lecture windows and the engine, without a screen and without a microphone:
//
//     Student DATA-FOLDER TASK...
//
// The tasks are done one after the other:
//
//     record:SUBJECT:SECONDS      a lecture that is saved
//     interrupt:SUBJECT:SECONDS   the same, with a pause in its middle during which nobody listens
//     notes:SUBJECT               the same without a recording
//     cancel:SUBJECT:SECONDS      one that is cancelled
//     leave:SUBJECT:SECONDS       the process ends at once, while it records
//     done:SUBJECT:SECONDS        and here when Done was pressed, before anything is moved
//     refused:SUBJECT:SECONDS     and here when its row was refused by a database that is locked
//     edit:SUBJECT:NEW-SUBJECT
//     delete:SUBJECT
//     offered                     tells what is offered of lectures that were left, and is owed
//     keep                        all that is offered
//     discard:SUBJECT             of what is offered
//     back                        brings lectures back from every copy that has some
//     later                       an hour of the windows' clock
//     wait                        for a line of input, and then for ten minutes of that clock
//     begin                       from where on a layer counts that may stand before the C library
//
// What was recorded is told in seconds, each half second, as the window shows it: that much a
// student relies on. "stopped" is told when the recording was.

#include "support/LectureProgram.h"
#include "support/TestSound.h"
#include "torture/QuickEngine.h"

#include "lectures/CustomTableCellView.h"

#include <QApplication>

#include <cstdio>
#include <dlfcn.h>
#include <functional>
#include <map>

using namespace std::chrono_literals;
using namespace tarvelo;
using namespace tarvelo::tests;

namespace {

class Student final
{
public:
    explicit Student(const QString &data)
        : m_places{data, QStringLiteral("Tarvelo"), data + QStringLiteral("/music"),
                   data + QStringLiteral("/resources")}
        , m_defaults(data + QStringLiteral("/student.conf"))
    {
        m_controller.setApplication(&m_application);
        m_application.currentDate = theDay("2024-03-05");
    }

    void start()
    {
        m_controller.awakeFromNib();
        m_clock.advance(500ms);
        m_windows.mainWindow().show();
        m_controller.prepareViewForDate(m_application.currentDate);
    }

    void record(const QString &subject, double seconds)
    {
        listen(subject, seconds);
        stop();
        save();
    }

    void listen(const QString &subject, double seconds)
    {
        write(subject);
        m_windows.recordingOutlets().btnStartRecord->click();
        hear(seconds);
    }

    void interrupt(const QString &subject, double seconds)
    {
        write(subject);
        m_windows.recordingOutlets().btnStartRecord->click();
        hear(seconds / 2);
        m_windows.recordingOutlets().btnPauseResumeRecording->click();
        hear(seconds);
        m_windows.recordingOutlets().btnPauseResumeRecording->click();
        hear(seconds / 2);
        stop();
        save();
    }

    // Another program has the database to itself meanwhile.
    void recordRefused(const QString &subject, double seconds)
    {
        store::Sqlite other(m_database.openDb()->filePath());
        if (!other.executeNonQuery(QStringLiteral("BEGIN EXCLUSIVE")))
            std::printf("not refused\n");
        record(subject, seconds);
    }

    void takeNotes(const QString &subject)
    {
        write(subject);
        m_clock.advance(5s);
        save();
    }

    void cancel(const QString &subject, double seconds)
    {
        listen(subject, seconds);
        stop();
        m_windows.newLectureOutlets().BtnCancelAddNewLecture->click();
        m_clock.advance(5s);
    }

    void stop()
    {
        m_windows.recordingOutlets().btnStopRecord->click();
        m_clock.advance(500ms);
        std::printf("stopped\n");
        std::fflush(stdout);
    }

    void pressDone()
    {
        m_windows.newLectureOutlets().BtnDoneOrClose->click();
        m_controller.journal().flush();
    }

    void edit(const QString &subject, const QString &newSubject)
    {
        const int row = rowOf(subject);
        auto *cell = m_windows.mainOutlets().tblRecordSubjectList->viewAtColumnRowMakeIfNecessary(
            0, row, true);
        if (!cell)
            return;
        m_controller.onEditLecture(cell->btnEdit());
        m_windows.editLectureOutlets().txtSubjectForEdit->setText(newSubject);
        m_controller.onDoneEdit(nullptr);
        m_clock.advance(5s);
    }

    void remove(const QString &subject)
    {
        const int row = rowOf(subject);
        if (row >= 0)
            m_controller.onDelete(row);
        m_clock.advance(5s);
    }

    void tellOffered()
    {
        for (const auto &left : m_controller.leftLectures().undecided())
            std::printf("offered %.3f %s\n", left.seconds, qPrintable(left.journal.subject));
        if (const int owed = m_controller.leftLectures().owed(); owed > 0)
            std::printf("owed %d\n", owed);
        std::fflush(stdout);
    }

    void keepOffered()
    {
        for (const auto &left : m_controller.leftLectures().undecided())
            m_controller.leftLectures().keep(left);
        m_controller.owedLectures().storeSoon();
    }

    void discardOffered(const QString &subject)
    {
        for (const auto &left : m_controller.leftLectures().undecided())
            if (left.journal.subject == subject)
                m_controller.leftLectures().discard(left);
    }

    void bringBack()
    {
        store::Sqlite *const database = m_database.openDb();
        if (!database)
            return;
        for (const auto &copy : m_database.backups().copies(*database))
            if (copy.missing > 0)
                m_database.backups().bringBack(copy.filePath, *database);
    }

    void later() { m_clock.advance(1h); }

    void wait()
    {
        std::printf("waiting\n");
        std::fflush(stdout);
        static_cast<void>(std::getchar());
        for (int second = 0; second < 600; ++second)
            m_clock.advance(1s);
    }

private:
    void write(const QString &subject)
    {
        m_controller.onAddItem(nullptr);
        m_windows.newLectureOutlets().txtSubjectForNewNote->setText(subject);
        m_windows.newLectureOutlets().txtView->setPlainText(subject + QStringLiteral(" notes"));
    }

    // The time stands still while the disk takes nothing.
    void hear(double seconds)
    {
        static const std::vector<float> sound = tune(44100, 2);
        for (double heard = 0; heard < seconds; heard += 0.5) {
            const auto from = static_cast<std::size_t>(heard * 44100) % sound.size();
            m_engine.hear(
                std::span(sound).subspan(from, std::min<std::size_t>(22050, sound.size() - from)));
            m_clock.advance(500ms);
            std::printf("recorded %.3f\n", m_engine.time());
            std::fflush(stdout);
        }
    }

    void save()
    {
        m_windows.newLectureOutlets().BtnDoneOrClose->click();
        m_clock.advance(5s);
    }

    int rowOf(const QString &subject) const
    {
        const lectures::LectureList &all = m_controller.arrangedObjects();
        const auto found = std::find_if(all.begin(), all.end(), [&](const auto &lecture) {
            return lecture->strSubject() == subject;
        });
        return found == all.end() ? -1 : static_cast<int>(found - all.begin());
    }

    platform::Places m_places;
    FakeClock m_clock;
    platform::Dates m_dates{m_clock, {"en_US", QStringLiteral("UTC")}};
    platform::UserDefaults m_defaults;
    store::LectureDatabase m_database{m_places, m_clock};
    torture::QuickEngine m_engine;
    FakeAlerts m_alerts;
    FakeWorkspace m_workspace;
    FakeMailComposer m_mail;
    FakeSleepInhibitor m_sleep;
    FakeLectureApplication m_application;
    lectures::LectureWindows m_windows{m_dates};
    bool m_isAwake = false;
    int m_pendingRow = -1;
    lectures::MediaLinksArrayController m_controller{{m_dates, m_places, m_defaults, m_database,
                                                      m_engine, m_alerts, m_workspace, m_mail,
                                                      m_sleep, m_isAwake, m_pendingRow},
                                                     m_windows};
};

void tellLayer(const char *what)
{
    if (auto *hear = reinterpret_cast<void (*)()>(::dlsym(RTLD_DEFAULT, what)))
        hear();
}

[[noreturn]] void endAtOnce()
{
    tellLayer("torture_end");
    std::_Exit(0);
}

void perform(Student &student, const QString &task)
{
    const QStringList words = task.split(u':');
    const QString &subject = words.value(1);
    const double seconds = words.value(2).toDouble();
    const std::map<QString, std::function<void()>> tasks{
        {QStringLiteral("record"), [&] { student.record(subject, seconds); }},
        {QStringLiteral("interrupt"), [&] { student.interrupt(subject, seconds); }},
        {QStringLiteral("notes"), [&] { student.takeNotes(subject); }},
        {QStringLiteral("cancel"), [&] { student.cancel(subject, seconds); }},
        {QStringLiteral("leave"),
         [&] {
             student.listen(subject, seconds);
             endAtOnce();
         }},
        {QStringLiteral("done"),
         [&] {
             student.listen(subject, seconds);
             student.stop();
             student.pressDone();
             endAtOnce();
         }},
        {QStringLiteral("refused"),
         [&] {
             student.recordRefused(subject, seconds);
             endAtOnce();
         }},
        {QStringLiteral("edit"), [&] { student.edit(subject, words.value(2)); }},
        {QStringLiteral("delete"), [&] { student.remove(subject); }},
        {QStringLiteral("offered"), [&] { student.tellOffered(); }},
        {QStringLiteral("keep"), [&] { student.keepOffered(); }},
        {QStringLiteral("discard"), [&] { student.discardOffered(subject); }},
        {QStringLiteral("back"), [&] { student.bringBack(); }},
        {QStringLiteral("later"), [&] { student.later(); }},
        {QStringLiteral("wait"), [&] { student.wait(); }},
        {QStringLiteral("begin"), [] { tellLayer("torture_begin"); }},
    };
    tasks.at(words.first())();
}

// Windows cannot be raised where there is no screen; whatever else is said counts.
void tell(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (message != u"This plugin does not support raise()")
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(tell);
    const QApplication application(argc, argv);
    tarvelo::platform::installTexts();
    QStringList tasks = QCoreApplication::arguments().mid(1);
    // What starting does to the files counts too where a layer is told to count from the beginning.
    Student student(tasks.takeFirst());
    student.start();
    for (const QString &task : tasks)
        perform(student, task);
    return 0;
}
