#pragma once

#include "platform/Descriptor.h"

#include <QString>

#include <optional>

namespace tarvelo::platform {

// Says that a folder is this process's to change, as long as this lives: the file ".owner" in it is
// locked. The lock ends with the process, however that ends, and is not handed to the programs that
// it starts.
class FolderLock final
{
public:
    FolderLock() = default;

    // False while another one has the folder, or when nothing can be made there.
    bool own(const QString &folder);
    bool owns() const { return m_lock.has_value(); }

private:
    std::optional<Descriptor> m_lock;
};

} // namespace tarvelo::platform
