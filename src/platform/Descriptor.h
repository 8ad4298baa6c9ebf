#pragma once

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvelo::platform {

// An open file of the system, for this process alone; what it makes is for its user alone. A link
// is never followed.
class Descriptor final
{
public:
    Descriptor(const QString &path, int flags)
        : m_number(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC | O_NOFOLLOW,
                          S_IRUSR | S_IWUSR))
    {
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; } // -1 when there is none

private:
    int m_number;
};

} // namespace tarvelo::platform
