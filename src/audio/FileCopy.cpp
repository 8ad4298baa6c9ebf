#include "audio/FileCopy.h"

#include <QFileInfo>
#include <QIODevice>
#include <QTimer>

#include <unistd.h>
#include <utility>

namespace tarvelo::audio {

namespace {

// Begins with a dot, for file systems on which a file cannot be without a name until it is whole.
QString siblingOf(const QString &target)
{
    const QFileInfo file(target);
    return file.path() + QStringLiteral("/.") + file.fileName() + QStringLiteral(".XXXXXX");
}

} // namespace

FileCopy::FileCopy(const QString &source, const QString &target, std::function<void()> ended,
                   QObject *parent)
    : QObject(parent)
    , m_source(source)
    , m_sibling(siblingOf(target))
    , m_target(target)
    , m_ended(std::move(ended))
{
}

void FileCopy::start()
{
    if (begin())
        goOn();
    else
        end();
}

// Only plain files: opening a pipe would wait for who writes into it.
bool FileCopy::begin()
{
    return !QFileInfo::exists(m_target) && QFileInfo(m_source.fileName()).isFile() &&
           m_source.open(QIODevice::ReadOnly | QIODevice::Unbuffered) && m_sibling.open();
}

// Each piece is forced to the disk as it comes, since all of them at the end would take seconds.
bool FileCopy::copyPiece()
{
    const QByteArray piece = m_source.read(PieceSize);
    return m_source.error() == QFile::NoError && m_sibling.write(piece) == piece.size() &&
           m_sibling.flush() && ::fdatasync(m_sibling.handle()) == 0;
}

void FileCopy::goOn()
{
    const bool isCopied = copyPiece();
    if (isCopied && !m_source.atEnd()) {
        QTimer::singleShot(0, this, &FileCopy::goOn);
        return;
    }
    // Gives the name only when nobody has it.
    if (isCopied && m_sibling.rename(m_target))
        m_sibling.setAutoRemove(false);
    end();
}

void FileCopy::end()
{
    deleteLater();
    m_ended();
}

} // namespace tarvelo::audio
