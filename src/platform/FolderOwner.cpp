#include "platform/FolderOwner.h"

#include <sys/file.h>

namespace tarvelo::platform {

bool FolderOwner::own(const QString &folder)
{
    if (m_lock)
        return true;
    m_lock.emplace(folder + QStringLiteral("/.owner"), O_RDWR | O_CREAT);
    if (!m_lock->isOpen() || ::flock(m_lock->number(), LOCK_EX | LOCK_NB) != 0)
        m_lock.reset();
    return owns();
}

} // namespace tarvelo::platform
