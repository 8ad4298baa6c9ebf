#pragma once

#include <QString>

#include <memory>
#include <sys/resource.h>

namespace tarvelo::tests {

// While one lives, no file of this process can be written: what a disk without room does, for
// everyone and everywhere.
class NoRoomForFiles final
{
public:
    NoRoomForFiles();
    NoRoomForFiles(const NoRoomForFiles &) = delete;
    NoRoomForFiles &operator=(const NoRoomForFiles &) = delete;
    ~NoRoomForFiles();

private:
    rlimit m_before = {};
};

// A small disk, mounted at `folder` as long as it lives, visible to this process alone. Where
// mounting is not allowed, fill() falls back on NoRoomForFiles until emptyAgain().
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
    std::unique_ptr<NoRoomForFiles> m_instead;
};

} // namespace tarvelo::tests
