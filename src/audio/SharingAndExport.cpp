#include "audio/SharingAndExport.h"

#include "audio/FileCopy.h"
#include "audio/FileFormats.h"
#include "platform/Fonts.h"
#include "platform/MailComposer.h"
#include "platform/PrivateFiles.h"
#include "platform/StyledText.h"
#include "platform/Workspace.h"
#include "store/LectureInfoItem.h"

#include <QFileInfo>
#include <QUrl>

#include <algorithm>

namespace tarvelo::audio {

namespace {

constexpr double SubjectSize = 15.0; // points
constexpr int NotesWithAnEnd = 11;   // characters

// Notes of some length are followed by a line with an underscore, and shorter ones are not: both
// are wanted as they are.
platform::StyledText textOf(const store::LectureInfoItem &lecture)
{
    platform::StyledText text{
        {lecture.strSubject(), platform::systemFontOfSize(SubjectSize)},
        {QStringLiteral("\n\n")},
        {lecture.strNotes()},
    };
    if (lecture.strNotes().size() >= NotesWithAnEnd)
        text.append({QStringLiteral("\n_")});
    return text;
}

} // namespace

SharingAndExport::SharingAndExport(const QString &music, platform::MailComposer &mail,
                                   platform::Workspace &workspace)
    : m_musicExportFolder(music + QStringLiteral("/Tarvelo/Audio"))
    , m_mail(mail)
    , m_workspace(workspace)
{
}

bool SharingAndExport::isSupportedIniTunes(const store::LectureInfoItem &lecture)
{
    const QString extension = QFileInfo(lecture.strLectureAudioPath()).suffix();
    return std::ranges::any_of(FileFormats, [&extension](const FileFormat &format) {
        return format.isForMusicLibrary && extension == QLatin1String(format.extension);
    });
}

void SharingAndExport::doSendMail(const store::LectureInfoItem &lecture)
{
    m_mail.compose(textOf(lecture), QUrl::fromLocalFile(lecture.getLectureAudioPath()));
}

// The whole path changes, and with it a music folder that has "Audio -" in its own name: that one
// is not made, and nothing is exported into it. This is wanted.
QString SharingAndExport::exportedPath(const QString &source) const
{
    QString target = m_musicExportFolder + u'/' + source.section(u'/', -1);
    return target.replace(QStringLiteral("Audio -"), QStringLiteral("Tarvelo -"));
}

QString SharingAndExport::exportedFrom(const store::LectureInfoItem &lecture)
{
    return QString(lecture.getLectureAudioPath())
        .replace(QStringLiteral("//"), QStringLiteral("/"));
}

void SharingAndExport::onExportToiTunes(const store::LectureInfoItem &lecture)
{
    const QString source = exportedFrom(lecture);
    if (source.isEmpty())
        return;
    platform::createFolderIfMissing(m_musicExportFolder);
    if (source.endsWith(u"mp3"))
        return;
    const QString target = exportedPath(source);
    auto *copy = new FileCopy(
        source, target, [this, target] { m_workspace.openFileWithApplication(target); }, &m_copies);
    copy->start();
}

} // namespace tarvelo::audio
