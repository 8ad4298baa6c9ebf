#include "audio/engine/ByteSource.h"

#include "platform/Descriptor.h"

#include <QFile>

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tarvelo::engine {

namespace {

constexpr qint64 WindowSize = 4096;

} // namespace

std::shared_ptr<ByteSource> ByteSource::ofBytes(const QByteArray &bytes)
{
    return std::shared_ptr<ByteSource>(new ByteSource(bytes, -1, bytes.size()));
}

std::shared_ptr<ByteSource> ByteSource::ofFile(const QString &path)
{
    const int file =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (file < 0)
        return nullptr;
    struct stat status = {};
    const bool isOrdinary = ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
    std::shared_ptr<ByteSource> source(new ByteSource({}, file, status.st_size));
    return isOrdinary ? source : nullptr;
}

ByteSource::ByteSource(QByteArray bytes, int file, qint64 size)
    : m_bytes(std::move(bytes))
    , m_file(file)
    , m_size(size)
{
}

ByteSource::~ByteSource()
{
    if (m_file >= 0)
        ::close(m_file);
}

qint64 ByteSource::read(qint64 at, char *bytes, qint64 count)
{
    count = std::clamp<qint64>(m_size - at, 0, count);
    if (count == 0)
        return 0;
    if (m_file < 0) {
        std::memcpy(bytes, m_bytes.constData() + at, static_cast<std::size_t>(count));
        return count;
    }
    if (count >= WindowSize)
        return readFile(at, bytes, count);
    const auto end = m_windowAt + static_cast<qint64>(m_window.size());
    if (at < m_windowAt || at + count > end) {
        m_window.resize(WindowSize);
        m_window.resize(static_cast<std::size_t>(
            readFile(at, m_window.data(), std::min(WindowSize, m_size - at))));
        m_windowAt = at;
    }
    const qint64 given = std::min(count, static_cast<qint64>(m_window.size()) - (at - m_windowAt));
    std::copy_n(m_window.begin() + (at - m_windowAt), given, bytes);
    return given;
}

qint64 ByteSource::readFile(qint64 at, char *bytes, qint64 count)
{
    const auto known = platform::inFull(count, [&](qint64 done, std::size_t rest) {
        return ::pread(m_file, bytes + done, rest, at + done);
    });
    m_hasFailed = m_hasFailed || known.size < count;
    return known.size;
}

QByteArray ByteSource::piece(qint64 at, qint64 count)
{
    count = std::clamp<qint64>(m_size - at, 0, count);
    if (m_file < 0)
        return QByteArray::fromRawData(m_bytes.constData() + at, static_cast<qsizetype>(count));
    QByteArray bytes(static_cast<qsizetype>(count), Qt::Uninitialized);
    bytes.truncate(static_cast<qsizetype>(read(at, bytes.data(), count)));
    return bytes;
}

} // namespace tarvelo::engine
