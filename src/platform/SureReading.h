#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace tarvelo::platform {

// For who does something that cannot be undone where a file is missing or empty: what could not be
// looked at is not taken for that.

// The names in a folder, sorted, also of hidden files. Null when the folder is not there, or cannot
// be read to its end now.
std::optional<QStringList> namesIn(const QString &folder);
// By the names in its folder; null when they are not known.
std::optional<bool> isThere(const QString &path);

struct WholeFile
{
    enum class State { Missing, Unreadable, TooLarge, Read };

    State state;
    QByteArray bytes = {}; // all of them, when they were read
};
// Up to `most` bytes.
WholeFile readWhole(const QString &path, qint64 most);

} // namespace tarvelo::platform
