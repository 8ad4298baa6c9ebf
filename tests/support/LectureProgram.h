#pragma once

#include "calendar/CKCalendarView.h"
#include "lectures/CustomTableCellView.h"
#include "lectures/LectureApplication.h"
#include "lectures/LectureTable.h"
#include "lectures/LectureWindows.h"
#include "lectures/MediaLinksArrayController.h"
#include "platform/Dates.h"
#include "platform/Texts.h"
#include "platform/UserDefaults.h"
#include "store/LectureDatabase.h"
#include "store/LectureRows.h"
#include "support/FakeAlerts.h"
#include "support/FakeAudioEngine.h"
#include "support/FakeClock.h"
#include "support/FakeMailComposer.h"
#include "support/FakeSleepInhibitor.h"
#include "support/FakeWorkspace.h"
#include "support/LectureBuilder.h"
#include "support/TemporaryPlaces.h"
#include "widgets/ImageButton.h"
#include "widgets/LevelIndicator.h"
#include "widgets/SlidingWindow.h"

#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTextEdit>

namespace tarvelo::tests {

// The application as the controller sees it.
class FakeLectureApplication final : public lectures::LectureApplication
{
public:
    QDateTime currentDate;
    QList<bool> recordingStates;

    QDateTime getCurrentDate() const override { return currentDate; }
    void setRecordingStateForButton(bool recording) override { recordingStates.append(recording); }
};

// Midnight of a day such as "2024-03-05", in UTC, which is the zone of the programs below.
inline QDateTime theDay(const char *isoDay)
{
    return {QDate::fromString(QString::fromLatin1(isoDay), Qt::ISODate), QTime(0, 0), Qt::UTC};
}

// The lecture windows and their controller on a database in a folder of its own, with a clock that
// stands still at 9 o'clock on Tuesday, 5 March 2024, and neither sound nor desktop around. The
// folder is still missing. Needs tarvelo_lectures and tarvelo_resources.
class LectureProgram final
{
public:
    explicit LectureProgram(const char *locale = "en_US")
        : dates(clock, {locale, QStringLiteral("UTC")})
    {
        controller.setApplication(&application);
        application.currentDate = today();
    }

    QDateTime today() const { return theDay("2024-03-05"); }

    // Through the start-up, and until the path of the take is known.
    void start()
    {
        controller.awakeFromNib();
        clock.advance(std::chrono::milliseconds(500));
    }
    // Started, showing `day` in a main window that is on screen.
    void showDay(const QDateTime &day)
    {
        start();
        windows.mainWindow().show();
        controller.prepareViewForDate(day);
    }
    // A new lecture with a take of so many seconds that was stopped and waits.
    void recordNewLecture(double seconds)
    {
        controller.onAddItem(nullptr);
        windows.recordingOutlets().btnStartRecord->click();
        engine.recordedSeconds = seconds;
        windows.recordingOutlets().btnStopRecord->click();
        clock.advance(std::chrono::milliseconds(500));
    }
    // Presses Done and waits until the lecture is stored.
    void finishNewLecture()
    {
        windows.newLectureOutlets().BtnDoneOrClose->click();
        clock.advance(std::chrono::milliseconds(200));
    }

    // In the window of its own.
    void edit(int row)
    {
        controller.onEditLecture(
            windows.mainOutlets()
                .tblRecordSubjectList->viewAtColumnRowMakeIfNecessary(0, row, true)
                ->btnEdit());
    }
    void finishEdit(const QString &subject, const QString &notes)
    {
        const auto &window = windows.editLectureOutlets();
        window.txtSubjectForEdit->setText(subject);
        window.txtViewNotesForEdit->setPlainText(notes);
        window.btnDoneEdit->click();
    }
    void change(int row, const QString &subject, const QString &notes)
    {
        edit(row);
        finishEdit(subject, notes);
    }

    QStringList subjectsShown() const
    {
        QStringList subjects;
        for (const lectures::Lecture &lecture : controller.arrangedObjects())
            subjects.append(lecture->strSubject());
        return subjects;
    }
    // Every row of the table in the file, oldest first.
    store::Rows storedRows()
    {
        store::Sqlite *connection = database.openDb();
        return connection->executeQuery(QStringLiteral("select * from audioData ORDER BY ID"))
            .value_or(store::Rows());
    }
    // "Subject: notes" of each.
    QStringList storedTexts()
    {
        QStringList lectures;
        for (const auto &row : storedRows())
            lectures.append(row[QStringLiteral("subject")].toString() + QStringLiteral(": ") +
                            row[QStringLiteral("notes")].toString());
        return lectures;
    }
    QWidget &emptyDayPanel() const
    {
        return *windows.mainOutlets().btnAddNewLecture2->parentWidget()->parentWidget();
    }

    TemporaryPlaces places;
    FakeClock clock;
    platform::Dates dates;
    platform::UserDefaults defaults{places.folder() + QStringLiteral(".conf")};
    store::LectureDatabase database{places.places(), clock};
    FakeAudioEngine engine;
    FakeAlerts alerts;
    FakeWorkspace workspace;
    FakeMailComposer mail;
    FakeSleepInhibitor sleep;
    FakeLectureApplication application;
    lectures::LectureWindows windows{dates};
    bool isAwake = false;
    int pendingRow = -1;
    lectures::MediaLinksArrayController controller{{dates, places.places(), defaults, database,
                                                    engine, alerts, workspace, mail, sleep, isAwake,
                                                    pendingRow},
                                                   windows};
};

} // namespace tarvelo::tests
