#pragma once

#include <QStringList>
#include <QVariantList>

#include <optional>

namespace tarvelo::store {

class Sqlite;

// A copy of the lecture database beside the one that is used, under the name "copy", as long as
// this lives. It knows which lectures of the copy are missing, and how they come back.
class AttachedCopy final
{
public:
    // `database` outlives this object. What is no file is not attached, and never made.
    AttachedCopy(Sqlite &database, const QString &path);
    AttachedCopy(const AttachedCopy &) = delete;
    AttachedCopy &operator=(const AttachedCopy &) = delete;
    ~AttachedCopy();

    bool isReadable() const;
    std::optional<int> lectures() const;
    // All of them when they cannot be compared.
    std::optional<int> missing() const;
    // Those with recordings of such names, as the insert statement takes them.
    QList<QVariantList> lecturesWith(const QStringList &fileNames) const;
    // All or none, in the caller's transaction: under their own IDs where those are free, the
    // others behind all there are. Gives the new IDs by those in the copy, null when it failed.
    std::optional<QHash<qint64, qint64>> putBackMissing();

private:
    // The copy says which lectures were about to go when it was made. One that does not is of a
    // file that could not be asked. Null: it cannot be known now.
    std::optional<bool> isMarked() const;
    bool forgetMarks(QHash<qint64, qint64> &idsNow);

    Sqlite &m_database;
    const bool m_isAttached;
};

} // namespace tarvelo::store
