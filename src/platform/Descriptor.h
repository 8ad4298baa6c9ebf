#pragma once

#include <QByteArrayView>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvelo::platform {

struct Transferred
{
    qint64 size = 0;        // bytes
    bool hasFailed = false; // at the next one, and errno says why
};

// `call(done, rest)` is the system's read or write of the bytes behind those that are done. It is
// made until there is no rest, since it may give less than it was asked for, or be interrupted.
// Less than `size` is left where it failed, and at the end of a file.
template <typename Call>
Transferred inFull(qint64 size, const Call &call)
{
    Transferred all;
    while (all.size < size) {
        const ssize_t now = call(all.size, static_cast<size_t>(size - all.size));
        if (now < 0 && errno == EINTR)
            continue;
        all.hasFailed = now < 0;
        if (now <= 0)
            break;
        all.size += now;
    }
    return all;
}

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
        const auto written = inFull(bytes.size(), [&](qint64 done, size_t rest) {
            return ::pwrite(m_number, bytes.data() + done, rest, at + done);
        });
        return written.size == bytes.size();
    }

    // From `at` on, as much of the piece as there is. Null when that cannot be known.
    std::optional<QByteArrayView> read(QByteArray &piece, qint64 at) const
    {
        char *const bytes = piece.data();
        const auto known = inFull(piece.size(), [&](qint64 done, size_t rest) {
            return ::pread(m_number, bytes + done, rest, at + done);
        });
        return known.hasFailed ? std::nullopt
                               : std::optional(QByteArrayView(piece).first(known.size));
    }

private:
    int m_number;
};

} // namespace tarvelo::platform
