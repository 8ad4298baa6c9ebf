#pragma once

#include "platform/Places.h"

#include <QString>

class QDateTime;

namespace tarvelo::platform {
class Dates;
class UserDefaults;
} // namespace tarvelo::platform

namespace tarvelo::audio {

// How the name of a saved file tells the moment of saving. The year of the week is wanted here, so
// a name of the last days of December can begin with the next year.
inline const QString SavedMomentPattern = QStringLiteral("YYYYMMddHHmmss");
// Below the process's folder: where takes lie.
inline const QString TakesFolder = QStringLiteral("/temp");

// Where audio files live and what they are called. A take is written to one fixed temporary file;
// saving moves it into the audio folder under a name made from the moment of saving. Failures to
// make a folder are silent: what is written there later fails in its own way.
class AudioFileLocations final
{
public:
    // `defaults` and `dates` must outlive this object.
    AudioFileLocations(platform::Places places, const platform::UserDefaults &defaults,
                       const platform::Dates &dates);
    AudioFileLocations(const AudioFileLocations &) = delete;
    AudioFileLocations &operator=(const AudioFileLocations &) = delete;

    // The file of the take: empty until setTempAudioSavePathWithFormat() ran once.
    const QString &tempAudioSavePath() const { return m_tempAudioSavePath; }
    // Where the temporary file lies, and what belongs to it; empty until createFolders() ran.
    const QString &temporaryFolder() const { return m_temporaryFolder; }
    // The temporary file's path without an extension; the bare name until createFolders() ran.
    const QString &temporaryBasePath() const { return m_temporaryBasePath; }
    // Of the format that the preference names, see FileFormats. Read afresh at each call.
    QString extensionByFormat() const;
    // A path in the audio folder for this moment, whose file does not exist yet. Two calls within
    // one second give the same path.
    QString getAudioSavePath() const;
    // For a save at the path, right before it. A file that an earlier save of this same second left
    // there stays and is replaced, which is wanted. One of another moment that had the same name,
    // since the clock was set back or repeats an hour, gets a name of its own: its lecture then has
    // the new sound, and the file is one without a lecture. False when that could not be done, and
    // then the save has to go elsewhere.
    bool makeWayAt(const QString &path);
    // The same, but of the next second whose path nobody has yet.
    QString freeAudioSavePath() const;
    // Ends in "/". Makes the folder when it is missing.
    QString getAudioFolderPath() const;

    // The folders of this process, once at start; from then on the temporary file lies in one of
    // them. Those of the program that are there become their user's alone.
    void createFolders();
    // Names the temporary file by the preference as it now is. A take that waits under the other
    // extension is no longer found then, and is saved as a lecture without audio; this is wanted.
    void setTempAudioSavePathWithFormat();
    // Gives back the room that a process that is dead held for the end of its take in the usual
    // folder. Only for who owns that.
    void removeReserveLeft() const;
    // Puts the temporary file into another folder, with the name that it has.
    void takesLieIn(const QString &folder);
    // Starts again without a temporary file.
    void clearTempAudioSavePath() { m_tempAudioSavePath.clear(); }

private:
    QString audioSavePathOf(const QDateTime &moment) const;

    platform::Places m_places;
    const platform::UserDefaults &m_defaults;
    const platform::Dates &m_dates;
    QString m_temporaryFolder;
    QString m_temporaryBasePath = QStringLiteral("tempAudioFile");
    QString m_usualBasePath; // the first one
    QString m_tempAudioSavePath;
    // Of the last save.
    QString m_savedPath;
    qint64 m_savedSecond = 0;
};

} // namespace tarvelo::audio
