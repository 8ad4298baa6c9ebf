#include "audio/engine/SoundBytes.h"

#include "audio/engine/SoundSignature.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <new>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvelo::engine {

namespace {

// Reading so much for nothing is not felt; what is larger must begin like sound.
constexpr qint64 SmallSize = 1 << 20;

// Two days of a recording.
constexpr qint64 LargestSize = qint64(2) << 30;

class OpenFile final
{
public:
    // Never waits, as opening a pipe would.
    explicit OpenFile(const QString &path)
        : m_file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC))
    {
    }
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;
    ~OpenFile()
    {
        if (m_file >= 0)
            ::close(m_file);
    }

    // 0 also for what is no ordinary file.
    qint64 size() const
    {
        struct stat status = {};
        const bool isFile = m_file >= 0 && ::fstat(m_file, &status) == 0 && S_ISREG(status.st_mode);
        return isFile ? status.st_size : 0;
    }

    // How many bytes there were, fewer than asked for only at the end of the file; -1 when it
    // cannot be read.
    qint64 read(char *bytes, qint64 count) const
    {
        qint64 done = 0;
        while (done < count) {
            const ssize_t now =
                ::pread(m_file, bytes + done, static_cast<std::size_t>(count - done), done);
            if (now < 0 && errno == EINTR)
                continue;
            if (now < 0)
                return -1;
            if (now == 0)
                break;
            done += now;
        }
        return done;
    }

private:
    int m_file;
};

// In large pages the memory for three hours is there in half the time. Where there are none it
// stays as it is.
void useLargePages(QByteArray &bytes)
{
    const auto pageSize = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const auto begin = reinterpret_cast<std::uintptr_t>(bytes.data());
    const std::uintptr_t first = (begin + pageSize - 1) / pageSize * pageSize;
    const std::uintptr_t end = begin + static_cast<std::uintptr_t>(bytes.size());
    if (bytes.size() > SmallSize)
        ::madvise(reinterpret_cast<void *>(first), end - first, MADV_HUGEPAGE);
}

bool promisesSound(const OpenFile &file)
{
    std::array<char, SignatureLength> head{};
    const qint64 count = file.read(head.data(), SignatureLength);
    return count > 0 && beginsLikeSound(QByteArrayView(head.data(), count));
}

// Whoever fills the memory of the machine ends more than this program.
bool canBeHeld(qint64 size)
{
    const qint64 memory = qint64(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE);
    return size <= std::min(LargestSize, memory / 2);
}

} // namespace

QByteArray soundBytesOf(const QString &path)
try {
    const OpenFile file(path);
    const qint64 size = file.size();
    if (size <= 0 || !canBeHeld(size) || (size > SmallSize && !promisesSound(file)))
        return {};
    QByteArray bytes(size, Qt::Uninitialized);
    useLargePages(bytes);
    const qint64 count = file.read(bytes.data(), size);
    if (count <= 0)
        return {};
    bytes.truncate(count);
    return bytes;
} catch (const std::bad_alloc &) {
    return {};
}

} // namespace tarvelo::engine
