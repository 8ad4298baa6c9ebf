#include "audio/TakeFolder.h"

#include "platform/DurableFiles.h"
#include "platform/SureReading.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tarvelo::audio {

namespace {

const QString NameBegin = QStringLiteral("take-");
constexpr int MostTries = 3;

bool isHidden(const QString &name)
{
    return name.startsWith(u'.');
}

} // namespace

TakeFolder::TakeFolder(const QString &path)
    : m_path(path)
{
}

TakeFolder::~TakeFolder()
{
    if (!m_isOurs || !QFileInfo(m_path).fileName().startsWith(NameBegin))
        return;
    const auto names = platform::namesIn(m_path);
    if (!names || !std::ranges::all_of(*names, isHidden))
        return;
    // Room that was held, and the lock.
    for (const QString &name : *names)
        QFile::remove(m_path + u'/' + name);
    QDir().rmdir(m_path);
}

std::unique_ptr<TakeFolder> TakeFolder::own(const QString &path)
{
    std::unique_ptr<TakeFolder> folder(new TakeFolder(path));
    folder->m_isOurs = folder->m_owner.own(path);
    return folder->m_isOurs ? std::move(folder) : nullptr;
}

// A process that starts just now may take one for left, and away. Where there are no locks at all
// it is used without one: nobody else writes there.
std::unique_ptr<TakeFolder> TakeFolder::makeBelow(const QString &usual)
{
    std::unique_ptr<TakeFolder> folder;
    for (int tries = 0; tries < MostTries && !(folder && folder->m_owner.owns()); ++tries) {
        QByteArray path = QFile::encodeName(usual + u'/' + NameBegin + QStringLiteral("XXXXXX"));
        if (!::mkdtemp(path.data()))
            break;
        folder.reset(new TakeFolder(QFile::decodeName(path)));
        folder->m_isOurs = true;
        platform::syncFolderOf(folder->m_path);
        folder->m_owner.own(folder->m_path);
    }
    return folder;
}

QStringList TakeFolder::below(const QString &usual)
{
    QStringList paths;
    for (const QString &name : platform::namesIn(usual).value_or(QStringList()))
        if (name.startsWith(NameBegin) && QFileInfo(usual + u'/' + name).isDir())
            paths.append(usual + u'/' + name);
    return paths;
}

} // namespace tarvelo::audio
