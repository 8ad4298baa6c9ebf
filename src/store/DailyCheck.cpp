#include "store/DailyCheck.h"

#include "platform/Clock.h"
#include "platform/PrivateFiles.h"
#include "store/LectureBackups.h"
#include "store/LectureDatabase.h"
#include "store/Sqlite.h"

#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QObject>

namespace tarvelo::store {

DailyCheck::DailyCheck(LectureDatabase &database, platform::Clock &clock)
    : m_database(database)
    , m_clock(clock)
    , m_next(clock, [this] { checkIfDue(); })
{
    m_next.schedule(AfterStart);
}

// Asked again and again, since a day may begin while the program runs, and sleep.
void DailyCheck::checkIfDue()
{
    m_next.schedule(LookInterval);
    const Sqlite *const connection = m_database.connection();
    QFile day(dayPath());
    const bool isDone = m_checkedDay == today() ||
                        (day.open(QIODevice::ReadOnly) && day.readAll() == today().toLatin1());
    if (isDone || m_check || !connection || QFileInfo(connection->filePath()).size() == 0)
        return;
    m_check = std::make_unique<IntegrityCheck>(connection->filePath());
    QObject::connect(m_check.get(), &IntegrityCheck::finished, m_check.get(),
                     [this](Integrity integrity) { end(integrity); });
}

void DailyCheck::end(Integrity integrity)
{
    m_check.release()->deleteLater();
    // A write may have fallen into it, so it is asked for once more where nobody writes.
    if (integrity == Integrity::Damaged)
        m_database.mendIfDamaged();
    if (integrity == Integrity::Unknown)
        return;
    m_checkedDay = today();
    platform::createFolderIfMissing(QFileInfo(dayPath()).path());
    platform::createFileIfMissing(dayPath());
    QFile day(dayPath());
    if (day.open(QIODevice::WriteOnly))
        day.write(today().toLatin1());
}

QString DailyCheck::today() const
{
    return m_clock.now().toLocalTime().date().toString(Qt::ISODate);
}

QString DailyCheck::dayPath() const
{
    return m_database.backups().folder() + QStringLiteral("/.checked");
}

} // namespace tarvelo::store
