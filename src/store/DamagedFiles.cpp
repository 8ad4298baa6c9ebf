#include "store/DamagedFiles.h"

#include "platform/Clock.h"
#include "platform/DurableFiles.h"
#include "platform/PrivateFiles.h"
#include "store/FileBytes.h"
#include "store/RescuedLectures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace tarvelo::store {

namespace {

// Names sort by the time, and are not those of copies.
const QString NameFormat = QStringLiteral("'TarveloInfo damaged' yyyy-MM-dd HH.mm.ss.zzz'.db'");
const QString NameFilter = QStringLiteral("TarveloInfo damaged *.db");

bool copyDurably(const QString &from, const QString &to, const QString &half)
{
    const bool isCopied = copyBytes(from, half) && platform::renameDurably(half, to);
    QFile::remove(half);
    return isCopied;
}

} // namespace

DamagedFiles::DamagedFiles(QString folder, const platform::Clock &clock)
    : m_folder(std::move(folder))
    , m_clock(clock)
{
}

std::optional<DamagedFiles::Aside> DamagedFiles::putAside(const QString &file) const
{
    for (const QString &name : names())
        if (haveSameBytes(file, pathOf(name)))
            return Aside{pathOf(name), QDateTime::fromString(name, NameFormat)};
    platform::createFolderIfMissing(m_folder);
    const auto aside = copyAside(file);
    // What is held for the next copy is held for this.
    return aside || !QFile::remove(pathOf(QStringLiteral(".room"))) ? aside : copyAside(file);
}

// The file's own name comes last: who has that has the journal too.
std::optional<DamagedFiles::Aside> DamagedFiles::copyAside(const QString &file) const
{
    QDateTime made = m_clock.now().toLocalTime();
    while (QFileInfo::exists(pathOf(made.toString(NameFormat))))
        made = made.addMSecs(1);
    const Aside aside{pathOf(made.toString(NameFormat)), made, true};
    const QString half = pathOf(QStringLiteral(".damaged"));
    const QString journal = journalOf(file);
    if ((!QFileInfo::exists(journal) || copyDurably(journal, journalOf(aside.filePath), half)) &&
        copyDurably(file, aside.filePath, half))
        return aside;
    remove(aside);
    return std::nullopt;
}

void DamagedFiles::remove(const Aside &aside) const
{
    QFile::remove(aside.filePath);
    QFile::remove(journalOf(aside.filePath));
}

std::optional<DamagedFiles::Aside> DamagedFiles::newest() const
{
    const QStringList all = names();
    if (all.isEmpty())
        return std::nullopt;
    return Aside{pathOf(all.last()), QDateTime::fromString(all.last(), NameFormat)};
}

bool DamagedFiles::replaceWithSound(const QString &file) const
{
    const auto aside = putAside(file);
    const QString sound = pathOf(QStringLiteral(".sound"));
    if (!aside || !rescueLectures(aside->filePath, sound))
        return false;
    // An old journal would be taken for that of the sound file, and written over it.
    const QString journal = journalOf(file);
    const bool isReplaced = (!QFileInfo::exists(journal) || platform::removeDurably(journal)) &&
                            platform::renameDurably(sound, file);
    QFile::remove(sound);
    return isReplaced;
}

// Oldest first.
QStringList DamagedFiles::names() const
{
    QStringList names = QDir(m_folder).entryList({NameFilter}, QDir::Files);
    names.removeIf(
        [](const QString &name) { return !QDateTime::fromString(name, NameFormat).isValid(); });
    names.sort();
    return names;
}

} // namespace tarvelo::store
