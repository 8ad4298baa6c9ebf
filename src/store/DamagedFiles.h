#pragma once

#include "store/DatedFiles.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace tarvelo::platform {
class Clock;
}

namespace tarvelo::store {

// What becomes of a database file that is damaged: it is put aside whole, and an intact one with
// every lecture that can be read takes its place. Nobody may have the file open meanwhile. What was
// put aside is never removed, and not counted among the copies. Main thread only.
class DamagedFiles final
{
public:
    struct Aside
    {
        QString filePath;
        QDateTime made; // local time
        bool isNew = false;
    };

    // `folder` is made with the first one; the clock outlives this object.
    DamagedFiles(QString folder, const platform::Clock &clock);

    // A copy of the file and its journal, byte for byte and forced to the disk; of the same bytes
    // only one is made. Null when there is none.
    std::optional<Aside> putAside(const QString &file) const;
    // For one that turned out to be intact.
    void remove(const Aside &aside) const;
    // The one made last.
    std::optional<Aside> newest() const;

    // The file stays as it is when this gives false, and also whenever this ends halfway.
    bool replaceWithIntact(const QString &file) const;

private:
    std::optional<Aside> copyAside(const QString &file) const;

    DatedFiles m_files;
    const platform::Clock &m_clock;
};

} // namespace tarvelo::store
