#include "platform/SureReading.h"

#include "platform/Descriptor.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace tarvelo::platform {

namespace {

struct FolderCloser
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

} // namespace

std::optional<QStringList> namesIn(const QString &folder)
{
    const std::unique_ptr<DIR, FolderCloser> opened(
        ::opendir(QFile::encodeName(folder).constData()));
    if (!opened)
        return std::nullopt;
    QStringList names;
    for (;;) {
        errno = 0;
        const dirent *const entry = ::readdir(opened.get());
        if (!entry && errno != 0)
            return std::nullopt;
        if (!entry)
            break;
        const QString name = QFile::decodeName(entry->d_name);
        if (name != u"." && name != u"..")
            names.append(name);
    }
    names.sort();
    return names;
}

std::optional<bool> isThere(const QString &path)
{
    const QFileInfo file(path);
    const auto names = namesIn(file.path());
    return names ? std::optional(names->contains(file.fileName())) : std::nullopt;
}

WholeFile readWhole(const QString &path, qint64 most)
{
    const Descriptor file(path, O_RDONLY);
    if (!file.isOpen())
        return {errno == ENOENT ? WholeFile::State::Missing : WholeFile::State::Unreadable};
    WholeFile whole{WholeFile::State::Read};
    std::array<char, 1 << 16> part{};
    for (;;) {
        const ssize_t size = ::read(file.number(), part.data(), part.size());
        if (size < 0 && errno == EINTR)
            continue;
        if (size < 0)
            return {WholeFile::State::Unreadable};
        if (size == 0)
            return whole;
        if (whole.bytes.size() + size > most)
            return {WholeFile::State::TooLarge};
        whole.bytes.append(part.data(), size);
    }
}

} // namespace tarvelo::platform
