#pragma once

#include "support/SmallFiles.h"

#include <QString>

#include <optional>

namespace tarvelo::tests {

// A small disk, mounted at `folder` as long as it lives, visible to this process alone. Where
// mounting is not allowed, fill() lets no file grow until emptyAgain().
class SmallDisk final
{
public:
    explicit SmallDisk(QString folder, int kibibytes = 128);
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;
    ~SmallDisk();

    // False where mounting is not allowed.
    bool isMounted() const { return m_mounted; }

    void fill();
    void emptyAgain();

private:
    QString m_folder;
    bool m_mounted = false;
    std::optional<SmallFiles> m_instead;
};

} // namespace tarvelo::tests
