#include "platform/DurableMove.h"

#include "platform/Descriptor.h"
#include "platform/DurableFiles.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <unistd.h>

namespace tarvelo::platform {

namespace {

constexpr qsizetype Piece = 1 << 20; // bytes

void unlinkIfThere(const QString &path)
{
    ::unlink(QFile::encodeName(path).constData());
}

bool copyTo(const QString &to, const QString &from)
{
    const Descriptor source(from, O_RDONLY);
    const Descriptor copy(to, O_WRONLY | O_CREAT | O_EXCL);
    if (!source.isOpen() || !copy.isOpen())
        return false;
    QByteArray piece(Piece, Qt::Uninitialized);
    for (qint64 at = 0;; at += piece.size()) {
        const auto read = source.read(piece, at);
        if (!read || !copy.write(*read, at))
            return false;
        if (read->size() < piece.size())
            return true;
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
    // A disk that could not be asked may not know the new name yet.
    if (!syncFolderOf(to))
        return false;
    removeDurably(from);
    return true;
}

bool isCopyOf(const QString &path, const QString &other)
{
    const Descriptor one(path, O_RDONLY);
    const Descriptor two(other, O_RDONLY);
    if (!one.isOpen() || !two.isOpen())
        return false;
    QByteArray piece(Piece, Qt::Uninitialized);
    QByteArray otherPiece(Piece, Qt::Uninitialized);
    for (qint64 at = 0;; at += Piece) {
        const auto read = one.read(piece, at);
        const auto otherRead = two.read(otherPiece, at);
        if (!read || !otherRead || *read != *otherRead)
            return false;
        if (read->size() < Piece)
            return true;
    }
}

} // namespace tarvelo::platform
