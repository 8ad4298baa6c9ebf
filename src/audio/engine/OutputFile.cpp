#include "audio/engine/OutputFile.h"

#include "platform/Descriptor.h"
#include "platform/DurableFiles.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tarvelo::engine {

std::unique_ptr<OutputFile> OutputFile::create(const std::string &path)
{
    constexpr int Flags = O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const int descriptor = ::open(path.c_str(), Flags, 0600);
    if (descriptor < 0)
        return nullptr;
    std::unique_ptr<OutputFile> file(new OutputFile(path, descriptor));
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return nullptr;
    // A file that was there already keeps its mode on some file systems; that is no reason to fail.
    static_cast<void>(::fchmod(descriptor, 0600));
    return ::ftruncate(descriptor, 0) == 0 ? std::move(file) : nullptr;
}

OutputFile::OutputFile(std::string path, int descriptor)
    : m_path(std::move(path))
    , m_descriptor(descriptor)
{
}

OutputFile::~OutputFile()
{
    ::close(m_descriptor);
}

bool OutputFile::append(std::span<const std::uint8_t> bytes)
{
    const std::int64_t before = m_size;
    m_isOutOfRoom = false;
    errno = 0;
    if (writeAt(before, bytes))
        return true;
    m_isOutOfRoom = errno == ENOSPC || errno == EDQUOT;
    // Should even this fail, the next attempt writes over the same place.
    static_cast<void>(::ftruncate(m_descriptor, before));
    m_size = before;
    return false;
}

bool OutputFile::writeAt(std::int64_t offset, std::span<const std::uint8_t> bytes)
{
    const auto size = static_cast<std::int64_t>(bytes.size());
    const auto written = platform::inFull(size, [&](std::int64_t done, std::size_t rest) {
        return ::pwrite(m_descriptor, bytes.data() + done, rest, offset + done);
    });
    if (written.size > 0)
        m_size = std::max<std::int64_t>(m_size, offset + written.size);
    return written.size == size;
}

bool OutputFile::sync()
{
    // The name first of all, and once: without it the content is lost.
    if (!m_isNameSynced)
        m_isNameSynced = platform::syncFolderOf(QFile::decodeName(m_path.c_str()));
    return ::fdatasync(m_descriptor) == 0;
}

} // namespace tarvelo::engine
