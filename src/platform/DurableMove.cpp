#include "platform/DurableMove.h"

#include "platform/Descriptor.h"
#include "platform/DurableFiles.h"

#include <QFileInfo>

#include <cerrno>

namespace tarvelo::platform {

namespace {

constexpr qsizetype Piece = 1 << 20; // bytes

void unlinkIfThere(const QString &path)
{
    ::unlink(QFile::encodeName(path).constData());
}

bool writeAll(int descriptor, const char *bytes, ssize_t size)
{
    while (size > 0) {
        const ssize_t written = ::write(descriptor, bytes, static_cast<size_t>(size));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes += written;
        size -= written;
    }
    return true;
}

bool copyTo(const QString &to, const QString &from)
{
    const Descriptor source(from, O_RDONLY);
    const Descriptor copy(to, O_WRONLY | O_CREAT | O_EXCL);
    if (!source.isOpen() || !copy.isOpen())
        return false;
    QByteArray piece(Piece, Qt::Uninitialized);
    for (;;) {
        const ssize_t size =
            ::read(source.number(), piece.data(), static_cast<size_t>(piece.size()));
        if (size < 0 && errno == EINTR)
            continue;
        if (size <= 0)
            return size == 0;
        if (!writeAll(copy.number(), piece.constData(), size))
            return false;
    }
}

} // namespace

bool moveDurably(const QString &from, const QString &to)
{
    if (renameDurably(from, to))
        return true;
    // Always the same name: what a crash left is written anew, not gathered.
    const QFileInfo target(to);
    const QString sibling =
        target.path() + QStringLiteral("/.") + target.fileName() + QStringLiteral(".moved");
    unlinkIfThere(sibling);
    if (!copyTo(sibling, from) || !renameDurably(sibling, to)) {
        unlinkIfThere(sibling);
        return false;
    }
    removeDurably(from);
    return true;
}

} // namespace tarvelo::platform
