#pragma once

#include <QFile>
#include <QTest>

#include <sys/stat.h>

namespace tarvelo::tests {

// What this process takes from the modes of new files while one lives.
class Umask final
{
public:
    explicit Umask(mode_t mask)
        : m_before(::umask(mask))
    {
    }
    Umask(const Umask &) = delete;
    Umask &operator=(const Umask &) = delete;
    ~Umask() { ::umask(m_before); }

private:
    mode_t m_before;
};

// Rows with a "umask" each: a careless user's, the usual one and a careful user's.
inline void addUmasks()
{
    QTest::addColumn<mode_t>("umask");
    for (const mode_t mask : {0000U, 0022U, 0077U})
        QTest::addRow("%03o", mask) << mask;
}

// In octal digits, of the thing itself and not of what a link leads to; empty when nothing is
// there.
inline QString modeOf(const QString &path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0
               ? QString::number(status.st_mode & 07777U, 8)
               : QString();
}

inline bool setMode(const QString &path, mode_t mode)
{
    return ::chmod(QFile::encodeName(path).constData(), mode) == 0;
}

} // namespace tarvelo::tests
