#include "audio/AudioFileLocations.h"

#include "audio/FileFormats.h"
#include "audio/engine/Reserve.h"
#include "platform/Dates.h"
#include "platform/DurableFiles.h"
#include "platform/PrivateFiles.h"
#include "platform/UserDefaults.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <cstddef>
#include <utility>

namespace tarvelo::audio {

using platform::createFolderIfMissing;

namespace {

// The first name that nothing has: "Audio - 20241027023000 2.aac".
QString freeNameLike(const QString &path)
{
    const QFileInfo taken(path);
    const QString begin = path.chopped(taken.suffix().size() + 1);
    QString name;
    for (int number = 2; name.isEmpty() || QFileInfo::exists(name); ++number)
        name = QStringLiteral("%1 %2.%3").arg(begin).arg(number).arg(taken.suffix());
    return name;
}

} // namespace

AudioFileLocations::AudioFileLocations(platform::Places places,
                                       const platform::UserDefaults &defaults,
                                       const platform::Dates &dates)
    : m_places(std::move(places))
    , m_defaults(defaults)
    , m_dates(dates)
{
}

QString AudioFileLocations::extensionByFormat() const
{
    const int stored = m_defaults.integerForKey(QLatin1String(FileFormatKey));
    return QLatin1String(FileFormats[static_cast<std::size_t>(fileFormatOf(stored))].extension);
}

QString AudioFileLocations::getAudioFolderPath() const
{
    const QString folder = m_places.productFolder() + QStringLiteral("/Audio");
    createFolderIfMissing(folder);
    return folder + u'/';
}

QString AudioFileLocations::getAudioSavePath() const
{
    return audioSavePathOf(m_dates.now());
}

QString AudioFileLocations::freeAudioSavePath() const
{
    QDateTime moment = m_dates.now();
    while (QFileInfo::exists(audioSavePathOf(moment)))
        moment = moment.addSecs(1);
    return audioSavePathOf(moment);
}

QString AudioFileLocations::audioSavePathOf(const QDateTime &moment) const
{
    QString path = getAudioFolderPath();
    // The second slash is wanted: it is part of every stored path, and file systems take both for
    // one.
    path += QStringLiteral("/Audio - ");
    path += m_dates.format(moment, SavedMomentPattern);
    path += u'.' + extensionByFormat();
    return path;
}

bool AudioFileLocations::makeWayAt(const QString &path)
{
    const qint64 second = m_dates.now().toSecsSinceEpoch();
    const bool isOfThisSecond = m_savedPath == path && m_savedSecond == second;
    if (!isOfThisSecond && QFileInfo::exists(path) &&
        !platform::renameDurably(path, freeNameLike(path)))
        return false;
    m_savedPath = path;
    m_savedSecond = second;
    return true;
}

void AudioFileLocations::createFolders()
{
    const QString own = m_places.processFolder();
    for (const QString &folder : {own, m_places.productFolder()})
        platform::keepFolderPrivate(folder);
    m_temporaryFolder = own + TakesFolder;
    createFolderIfMissing(m_temporaryFolder);
    m_temporaryBasePath = m_temporaryFolder + u'/' + m_temporaryBasePath;
    m_usualBasePath = m_temporaryBasePath;
    // Made but not written to: saved files go to the product's folder.
    createFolderIfMissing(own + QStringLiteral("/Audio"));
}

void AudioFileLocations::removeReserveLeft() const
{
    engine::Reserve::removeLeft(QFile::encodeName(m_usualBasePath).toStdString());
}

void AudioFileLocations::takesLieIn(const QString &folder)
{
    const auto inFolder = [&folder](const QString &path) {
        return folder + u'/' + QFileInfo(path).fileName();
    };
    m_temporaryFolder = folder;
    m_temporaryBasePath = inFolder(m_temporaryBasePath);
    if (!m_tempAudioSavePath.isEmpty())
        m_tempAudioSavePath = inFolder(m_tempAudioSavePath);
}

void AudioFileLocations::setTempAudioSavePathWithFormat()
{
    m_tempAudioSavePath = m_temporaryBasePath + u'.' + extensionByFormat();
}

} // namespace tarvelo::audio
