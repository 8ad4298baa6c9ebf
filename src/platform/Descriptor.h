#pragma once

#include <QByteArrayView>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <optional>
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

    // From `at` on. False when not all of it was.
    bool write(QByteArrayView bytes, qint64 at) const
    {
        while (!bytes.isEmpty()) {
            const ssize_t written =
                ::pwrite(m_number, bytes.data(), static_cast<size_t>(bytes.size()), at);
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0)
                return false;
            bytes = bytes.sliced(written);
            at += written;
        }
        return true;
    }

    // From `at` on, as much of the piece as there is. Null when that cannot be known.
    std::optional<QByteArrayView> read(QByteArray &piece, qint64 at) const
    {
        qsizetype known = 0;
        while (known < piece.size()) {
            const ssize_t size = ::pread(m_number, piece.data() + known,
                                         static_cast<size_t>(piece.size() - known), at + known);
            if (size < 0 && errno == EINTR)
                continue;
            if (size < 0)
                return std::nullopt;
            if (size == 0)
                break;
            known += size;
        }
        return QByteArrayView(piece).first(known);
    }

private:
    int m_number;
};

} // namespace tarvelo::platform
