#pragma once

#include <QByteArray>
#include <QTemporaryFile>

#include <unistd.h>

namespace tarvelo::tests {

// Catches what the process writes to stderr by any way while one lives, so that a test can say that
// it is nothing.
class StderrCatcher final
{
public:
    StderrCatcher()
    {
        if (m_file.open())
            dup2(m_file.handle(), STDERR_FILENO);
    }
    StderrCatcher(const StderrCatcher &) = delete;
    StderrCatcher &operator=(const StderrCatcher &) = delete;
    ~StderrCatcher()
    {
        dup2(m_original, STDERR_FILENO);
        ::close(m_original);
    }

    QByteArray caught()
    {
        QFile file(m_file.fileName());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

private:
    int m_original = dup(STDERR_FILENO);
    QTemporaryFile m_file;
};

} // namespace tarvelo::tests
