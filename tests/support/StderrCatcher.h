#pragma once

#include <QByteArray>

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvelo::tests {

// Catches what the process writes to stderr by any way while one lives, so that a test can say that
// it is nothing.
class StderrCatcher final
{
public:
    StderrCatcher() { dup2(m_memory, STDERR_FILENO); }
    StderrCatcher(const StderrCatcher &) = delete;
    StderrCatcher &operator=(const StderrCatcher &) = delete;
    ~StderrCatcher()
    {
        dup2(m_original, STDERR_FILENO);
        ::close(m_original);
        ::close(m_memory);
    }

    QByteArray caught() const
    {
        struct stat status = {};
        if (fstat(m_memory, &status) != 0)
            return QByteArrayLiteral("unreadable");
        QByteArray text(status.st_size, Qt::Uninitialized);
        text.resize(pread(m_memory, text.data(), static_cast<size_t>(text.size()), 0));
        return text;
    }

private:
    int m_original = dup(STDERR_FILENO);
    int m_memory = memfd_create("stderr", MFD_CLOEXEC);
};

} // namespace tarvelo::tests
