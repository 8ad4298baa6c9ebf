#pragma once

#include "platform/FolderLock.h"

#include <QStringList>

#include <memory>

namespace tarvelo::audio {

// A folder in which takes lie with their journal, and which is this process's as long as this
// lives: the usual one, or one of a process's own below it, where nobody else writes. One of the
// latter goes when nothing is left in it.
class TakeFolder final
{
public:
    // Null while another process has it.
    static std::unique_ptr<TakeFolder> own(const QString &path);
    // Null when none can be made.
    static std::unique_ptr<TakeFolder> makeBelow(const QString &usual);
    // Those of other processes' own below the usual one, living or not.
    static QStringList below(const QString &usual);

    TakeFolder(const TakeFolder &) = delete;
    TakeFolder &operator=(const TakeFolder &) = delete;
    ~TakeFolder();

    const QString &path() const { return m_path; }

private:
    explicit TakeFolder(const QString &path);

    QString m_path;
    platform::FolderLock m_owner;
    bool m_isOurs = false;
};

} // namespace tarvelo::audio
