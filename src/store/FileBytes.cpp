#include "store/FileBytes.h"

#include "platform/DurableFiles.h"
#include "platform/PrivateFiles.h"

#include <QFile>
#include <QIODevice>

namespace tarvelo::store {

namespace {

constexpr qint64 Piece = 1 << 20; // bytes

} // namespace

bool copyBytes(const QString &from, const QString &to)
{
    QFile::remove(to);
    const bool isCopied = QFile::copy(from, to);
    platform::keepFilePrivate(to);
    return isCopied;
}

bool copyWithRollbackJournal(const QString &from, const QString &to)
{
    removeWithRollbackJournal(to);
    return copyBytes(from, to) && (!QFile::exists(rollbackJournalOf(from)) ||
                                   copyBytes(rollbackJournalOf(from), rollbackJournalOf(to)));
}

bool renameWithRollbackJournalDurably(const QString &from, const QString &to)
{
    QFile::remove(rollbackJournalOf(to));
    if (QFile::exists(rollbackJournalOf(from)) &&
        !platform::renameDurably(rollbackJournalOf(from), rollbackJournalOf(to)))
        return false;
    if (platform::renameDurably(from, to))
        return true;
    QFile::remove(rollbackJournalOf(to));
    return false;
}

void removeWithRollbackJournal(const QString &path)
{
    QFile::remove(path);
    QFile::remove(rollbackJournalOf(path));
}

bool haveSameBytes(const QString &onePath, const QString &otherPath)
{
    QFile one(onePath);
    QFile other(otherPath);
    if (!one.open(QIODevice::ReadOnly) || !other.open(QIODevice::ReadOnly) ||
        one.size() != other.size())
        return false;
    QByteArray piece;
    do {
        piece = one.read(Piece);
        if (piece != other.read(Piece))
            return false;
    } while (!piece.isEmpty());
    return one.atEnd() && other.atEnd();
}

QString rollbackJournalOf(const QString &databaseFile)
{
    return databaseFile + QStringLiteral("-journal");
}

} // namespace tarvelo::store
