#include "audio/engine/Reserve.h"

#include "platform/DiskRoom.h"
#include "platform/DurableFiles.h"

#include <QFile>

#include <algorithm>
#include <filesystem>
#include <unistd.h>

namespace tarvelo::engine {

namespace {

// Less than this is not worth a file.
constexpr std::int64_t Least = std::int64_t{64} << 10;

std::string reserveOf(const std::string &take)
{
    const std::filesystem::path path(take);
    return (path.parent_path() / ("." + path.stem().native() + ".reserve")).native();
}

QString decoded(const std::string &path)
{
    return QFile::decodeName(QByteArray::fromStdString(path));
}

} // namespace

std::int64_t Reserve::sizeOn(std::int64_t room)
{
    const std::int64_t size = std::min(MostBytes, room * 3 / 10);
    return size < Least ? 0 : size;
}

void Reserve::removeLeft(const std::string &take)
{
    ::unlink(reserveOf(take).c_str());
}

Reserve::Reserve(const std::string &take)
    : m_path(reserveOf(take))
{
    removeLeft(take);
    const std::string folder = std::filesystem::path(m_path).parent_path().native();
    const std::int64_t size =
        sizeOn(platform::roomOnDisk(decoded(folder.empty() ? "." : folder)).value_or(0));
    if (size > 0 && platform::holdRoom(decoded(m_path), size))
        m_bytes = m_wanted = size;
}

Reserve::~Reserve()
{
    giveBack();
}

void Reserve::giveBack()
{
    if (m_bytes > 0)
        ::unlink(m_path.c_str());
    m_bytes = 0;
}

bool Reserve::giveBack(std::int64_t bytes)
{
    if (bytes > m_bytes || ::truncate(m_path.c_str(), m_bytes - bytes) != 0)
        return false;
    m_bytes -= bytes;
    return true;
}

// A try that ends on the way leaves nothing.
bool Reserve::holdAgain()
{
    const QString path = decoded(m_path);
    if (m_bytes > 0 && platform::holdRoom(path, m_wanted))
        m_bytes = m_wanted;
    else if (!QFile::exists(path))
        m_bytes = 0;
    return m_bytes == m_wanted;
}

} // namespace tarvelo::engine
