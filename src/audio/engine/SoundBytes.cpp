#include "audio/engine/SoundBytes.h"

#include "audio/engine/ByteSource.h"
#include "audio/engine/SoundSignature.h"

#include <algorithm>
#include <cstdint>
#include <new>
#include <sys/mman.h>
#include <unistd.h>

namespace tarvelo::engine {

namespace {

// Reading so much for nothing is not felt; what is larger must begin like sound.
constexpr qint64 SmallSize = 1 << 20;

// Two days of a recording.
constexpr qint64 LargestSize = qint64(2) << 30;

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

// Whoever fills the memory of the machine ends more than this program.
bool canBeHeld(qint64 size)
{
    const qint64 memory = qint64(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE);
    return size <= std::min(LargestSize, memory / 2);
}

} // namespace

QByteArray soundBytesOf(const QString &path)
try {
    const auto file = ByteSource::ofFile(path);
    const qint64 size = file ? file->size() : 0;
    if (size <= 0 || !canBeHeld(size) ||
        (size > SmallSize && !beginsLikeSound(file->piece(0, SignatureLength))))
        return {};
    QByteArray bytes(size, Qt::Uninitialized);
    useLargePages(bytes);
    const qint64 count = file->read(0, bytes.data(), size);
    if (count <= 0)
        return {};
    bytes.truncate(count);
    return bytes;
} catch (const std::bad_alloc &) {
    return {};
}

} // namespace tarvelo::engine
