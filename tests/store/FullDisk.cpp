#include "store/FullDisk.h"

#include <QFile>

#include <sched.h>
#include <sys/mount.h>

namespace tarvelo::tests {

SmallDisk::SmallDisk(QString folder, int kibibytes)
    : m_folder(std::move(folder))
{
    m_mounted =
        unshare(CLONE_NEWNS) == 0 &&
        mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr) == 0 &&
        mount("tmpfs", QFile::encodeName(m_folder).constData(), "tmpfs", 0,
              QByteArray("mode=0755,size=" + QByteArray::number(kibibytes) + "k").constData()) == 0;
}

SmallDisk::~SmallDisk()
{
    m_instead.reset();
    if (m_mounted)
        umount(QFile::encodeName(m_folder).constData());
}

void SmallDisk::fill()
{
    if (!m_mounted) {
        m_instead.emplace(0);
        return;
    }
    QFile filler(m_folder + QStringLiteral("/filler"));
    if (filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        const QByteArray block(512, 'x');
        while (filler.write(block) == block.size()) {
        }
    }
}

void SmallDisk::emptyAgain()
{
    m_instead.reset();
    if (m_mounted)
        QFile::remove(m_folder + QStringLiteral("/filler"));
}

} // namespace tarvelo::tests
