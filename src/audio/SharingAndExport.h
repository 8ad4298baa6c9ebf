#pragma once

#include <QObject>
#include <QString>

namespace tarvelo::platform {
class MailComposer;
class Workspace;
} // namespace tarvelo::platform
namespace tarvelo::store {
class LectureInfoItem;
}

namespace tarvelo::audio {

// Hands a lecture over to other programs: its words and its file to the mail program, its file to
// the music library. All of it is silent, whether or not it succeeds.
class SharingAndExport final
{
public:
    // `music` is the user's music folder. The other two must outlive this object.
    SharingAndExport(const QString &music, platform::MailComposer &mail,
                     platform::Workspace &workspace);
    SharingAndExport(const SharingAndExport &) = delete;
    SharingAndExport &operator=(const SharingAndExport &) = delete;

    // Where exported files go.
    const QString &musicExportFolder() const { return m_musicExportFolder; }
    // Whether the music library takes the lecture's file: one with the extension "m4a" alone.
    static bool isSupportedIniTunes(const store::LectureInfoItem &lecture);
    // The lecture's file as it is copied: stored paths have two slashes before the file's name.
    // Empty without one.
    static QString exportedFrom(const store::LectureInfoItem &lecture);

    void doSendMail(const store::LectureInfoItem &lecture);
    // Copies the file into the music library and opens the copy in the user's player; one from an
    // earlier export stays and is opened again. Large files are copied after this has returned.
    void onExportToiTunes(const store::LectureInfoItem &lecture);

private:
    QString exportedPath(const QString &source) const;

    QString m_musicExportFolder;
    platform::MailComposer &m_mail;
    platform::Workspace &m_workspace;
    QObject m_copies; // the parent of those that run
};

} // namespace tarvelo::audio
