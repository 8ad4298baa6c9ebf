#pragma once

#include "audio/UnlistedRecordings.h"
#include "store/LectureBackups.h"

#include <QObject>

#include <optional>

class QDialog;
class QLabel;
class QPushButton;
class QTreeWidget;
class QWidget;

namespace tarvelo::platform {
class Dates;
}
namespace tarvelo::store {
class LectureDatabase;
struct LecturesBack;
} // namespace tarvelo::store

namespace tarvelo::app {

// The sheet of the main window that shows the copies made before lectures went in bulk, newest
// first, and brings back what is missing from the one chosen. Recordings without a lecture are one
// more entry, which comes when they have been looked for. It says what came of it, and that a file
// of lectures was damaged.
class BringBackSheet final : public QObject
{
    Q_OBJECT

public:
    // All must outlive this object, which parents its sheet to `mainWindow`.
    BringBackSheet(store::LectureDatabase &database, const platform::Dates &dates,
                   audio::UnlistedRecordings::Sources recordings, QWidget &mainWindow);
    ~BringBackSheet() override;

    QDialog *sheet() const { return m_sheet; }
    const audio::UnlistedRecordings &recordings() const { return m_recordings; }
    void show();

Q_SIGNALS:
    void lecturesCameBack(const tarvelo::store::LecturesBack &back);

private:
    void build();
    void dressList();
    void list();
    void showListOrNone();
    void sayWhatCame(const QString &words);
    void addEntry(const QString &name, int lectures, int missing);
    void listRecordings();
    void sayWhatWasDamaged();
    void offer();
    void bringBack();
    std::optional<store::LecturesBack> bringBackRow(int row);

    store::LectureDatabase &m_database;
    const platform::Dates &m_dates;
    audio::UnlistedRecordings m_recordings;
    QList<store::LectureBackups::Copy> m_copies;
    QDialog *m_sheet; // child of the main window, and all below are its
    QTreeWidget *m_list = nullptr;
    QLabel *m_choose = nullptr;
    QLabel *m_damaged = nullptr;
    QLabel *m_outcome = nullptr;
    QPushButton *m_bringBack = nullptr;
};

} // namespace tarvelo::app
