#pragma once

#include "store/DatedFiles.h"

#include <QDateTime>
#include <QList>
#include <QStringList>
#include <QVariantList>

#include <optional>

namespace tarvelo::platform {
class Clock;
}

namespace tarvelo::store {

struct LecturesBack;
class Sqlite;

// Copies of the whole lecture database, each made just before something takes many lectures out of
// it, and the way back from them. A copy is a database that any other program can read; beside the
// lectures it says which of them were about to go. Nothing here ever fails aloud. Main thread only.
class LectureBackups final
{
public:
    // The newest of them; older ones go when another one comes.
    static constexpr int MostCopies = 10;

    struct Copy
    {
        QString filePath;
        QDateTime made; // local time
        int lectures = 0;
        int missing = 0; // of them, in the database
    };

    // `folder` is made with the first copy.
    LectureBackups(QString folder, const platform::Clock &clock);

    const QString &folder() const { return m_files.folder(); }

    // `going` is a query for the "ID" of every lecture that is about to go. Gives the copy's path,
    // an empty text when nothing goes. Null when none could be made, and then nothing may go.
    std::optional<QString> keep(Sqlite &database, const QString &going);
    // To be called when they are gone: a copy of lectures that are all still there goes again, and
    // so do the oldest.
    void settle(Sqlite &database, const QString &copyPath);

    // A change that found its lecture gone is made there, so that it comes back with it. False when
    // it could not be made, and also when the lecture has come back from there.
    bool change(const QString &copyPath, const QString &sql, const QVariantList &arguments) const;

    // Newest first. What cannot be read is not listed.
    QList<Copy> copies(Sqlite &database) const;
    // Puts back what is missing, under its own ID where that is still free. Null when that failed,
    // and then nothing has changed. A lecture that came back once is not missing any more, also
    // when it was changed or deleted since.
    std::optional<LecturesBack> bringBack(const QString &copyPath, Sqlite &database) const;

    // Rows for new lectures, as the insert statement takes them, get all that the newest copy with
    // their recording knows.
    void fillIn(QList<QVariantList> &rows, Sqlite &database) const;

    // Holds so much room on the disk that the next copy can be made on one that is full.
    void holdRoom(const Sqlite &database) const;

private:
    bool writeCopy(Sqlite &database, const QString &going, const QString &path) const;
    bool isOfNoUse(Sqlite &database, const QString &copyPath) const;
    QString nameAfter(const QStringList &names) const;

    DatedFiles m_files;
    const platform::Clock &m_clock;
};

} // namespace tarvelo::store
