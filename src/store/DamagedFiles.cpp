#include "store/DamagedFiles.h"

#include "platform/Clock.h"
#include "platform/DurableFiles.h"
#include "platform/PrivateFiles.h"
#include "store/FileBytes.h"
#include "store/RescuedLectures.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <utility>

namespace tarvelo::store {

namespace {

bool copyDurably(const QString &from, const QString &to, const QString &half)
{
    const bool isCopied = copyBytes(from, half) && platform::renameDurably(half, to);
    QFile::remove(half);
    return isCopied;
}

} // namespace

DamagedFiles::DamagedFiles(QString folder, const platform::Clock &clock)
    : m_files(std::move(folder), QStringLiteral("TarveloInfo damaged"))
    , m_clock(clock)
{
}

std::optional<DamagedFiles::Aside> DamagedFiles::putAside(const QString &file) const
{
    for (const QString &name : m_files.names())
        if (haveSameBytes(file, m_files.pathOf(name)))
            return Aside{m_files.pathOf(name), m_files.madeAt(name)};
    platform::createFolderIfMissing(m_files.folder());
    const auto aside = copyAside(file);
    // What is held for the next copy is held for this.
    return aside || !QFile::remove(m_files.roomPath()) ? aside : copyAside(file);
}

// The file's own name comes last: who has that has the journal too.
std::optional<DamagedFiles::Aside> DamagedFiles::copyAside(const QString &file) const
{
    QDateTime made = m_clock.now().toLocalTime();
    while (QFileInfo::exists(m_files.pathOf(m_files.nameOf(made))))
        made = made.addMSecs(1);
    const Aside aside{m_files.pathOf(m_files.nameOf(made)), made, true};
    const QString half = m_files.pathOf(QStringLiteral(".damaged"));
    const QString journal = rollbackJournalOf(file);
    if ((!QFileInfo::exists(journal) ||
         copyDurably(journal, rollbackJournalOf(aside.filePath), half)) &&
        copyDurably(file, aside.filePath, half))
        return aside;
    remove(aside);
    return std::nullopt;
}

void DamagedFiles::remove(const Aside &aside) const
{
    QFile::remove(aside.filePath);
    QFile::remove(rollbackJournalOf(aside.filePath));
}

std::optional<DamagedFiles::Aside> DamagedFiles::newest() const
{
    const QStringList all = m_files.names();
    if (all.isEmpty())
        return std::nullopt;
    return Aside{m_files.pathOf(all.last()), m_files.madeAt(all.last())};
}

bool DamagedFiles::replaceWithIntact(const QString &file) const
{
    const auto aside = putAside(file);
    const QString intact = m_files.pathOf(QStringLiteral(".sound"));
    if (!aside || !rescueLectures(aside->filePath, intact))
        return false;
    // An old journal would be taken for that of the intact file, and written over it.
    const QString journal = rollbackJournalOf(file);
    const bool isReplaced = (!QFileInfo::exists(journal) || platform::removeDurably(journal)) &&
                            platform::renameDurably(intact, file);
    QFile::remove(intact);
    return isReplaced;
}

} // namespace tarvelo::store
