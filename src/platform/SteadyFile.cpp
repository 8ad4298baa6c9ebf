#include "platform/SteadyFile.h"

#include "platform/Descriptor.h"
#include "platform/DurableFiles.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace tarvelo::platform {

namespace {

constexpr qint64 RoomStep = 16 << 10; // bytes

// Twice what is needed, so that content which grows finds its room taken before the disk is full.
qint64 roomFor(qint64 size)
{
    return (2 * size / RoomStep + 1) * RoomStep;
}

bool swapNames(const QString &one, const QString &other)
{
    return ::renameat2(AT_FDCWD, QFile::encodeName(one).constData(), AT_FDCWD,
                       QFile::encodeName(other).constData(), RENAME_EXCHANGE) == 0;
}

bool rename(const QString &from, const QString &to)
{
    return ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

} // namespace

SteadyFile::SteadyFile(QString path)
    : m_path(std::move(path))
{
}

bool SteadyFile::replace(const QByteArray &content)
{
    // What stands under the spare's name may be what the disk still has under the other one.
    if (!m_namesAreSynced && !syncFolderOf(m_path))
        dropSpare();
    const qint64 wanted = std::max(m_room, roomFor(content.size()));
    if (!writeSpare(content, wanted) &&
        !writeSpare(content, std::max<qint64>(m_room, content.size() + 1)))
        return false;
    return takePlace();
}

bool SteadyFile::writeSpare(const QByteArray &content, qint64 room) const
{
    const Descriptor file(spare(), O_WRONLY | O_CREAT);
    QByteArray padded = content.leftJustified(static_cast<qsizetype>(room) - 1, ' ');
    padded.append('\n');
    return file.isOpen() && file.write(padded, 0) &&
           ::ftruncate(file.number(), padded.size()) == 0 && ::fdatasync(file.number()) == 0;
}

// What was replaced is the room for what comes next. The first time, and where names cannot be
// swapped, there is none left.
bool SteadyFile::takePlace()
{
    if (!swapNames(spare(), m_path) && !rename(spare(), m_path))
        return false;
    m_namesAreSynced = syncFolderOf(m_path);
    m_room = QFileInfo(m_path).size();
    const Descriptor room(spare(), O_WRONLY | O_CREAT);
    if (room.isOpen())
        static_cast<void>(::posix_fallocate(room.number(), 0, m_room));
    return m_namesAreSynced;
}

void SteadyFile::remove()
{
    dropSpare();
    removeDurably(m_path);
    m_room = 0;
}

bool SteadyFile::renameTo(const QString &path)
{
    dropSpare();
    m_room = 0;
    return renameDurably(m_path, path);
}

// Nobody would come back for it, and it holds old content: a call that fails is made again.
void SteadyFile::dropSpare() const
{
    const QByteArray path = QFile::encodeName(spare());
    if (::unlink(path.constData()) != 0 && errno != ENOENT)
        ::unlink(path.constData());
}

// Hidden, and always the same: what a crash left is written over, not gathered.
QString SteadyFile::spare() const
{
    const QFileInfo file(m_path);
    return file.path() + QStringLiteral("/.") + file.fileName() + QStringLiteral(".spare");
}

} // namespace tarvelo::platform
