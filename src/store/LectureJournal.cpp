#include "store/LectureJournal.h"

#include "platform/SureReading.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace tarvelo::store {

namespace {

using State = LectureJournal::State;

constexpr std::array<QLatin1String, 4> StateNames{QLatin1String("idle"), QLatin1String("recording"),
                                                  QLatin1String("paused"),
                                                  QLatin1String("stopped")};
static_assert(StateNames.size() == static_cast<size_t>(State::Stopped) + 1);

// Far more than anybody types; what is larger was not written here.
constexpr qint64 MostBytes = 256 << 20;

State stateNamed(const QString &name)
{
    const auto *const at = std::find(StateNames.begin(), StateNames.end(), name);
    return at == StateNames.end() ? State::Idle : static_cast<State>(at - StateNames.begin());
}

} // namespace

bool LectureJournal::isBlank() const
{
    return subject.trimmed().isEmpty() && notes.trimmed().isEmpty() && take.isEmpty() && !isDone;
}

QVariantList LectureJournal::row() const
{
    return newLectureRow(subjectToStore(subject), notes, day, target, duration);
}

QByteArray toBytes(const LectureJournal &journal)
{
    QJsonObject object{
        {QStringLiteral("id"), journal.id},
        {QStringLiteral("subject"), journal.subject},
        {QStringLiteral("notes"), journal.notes},
        {QStringLiteral("day"), journal.day},
        {QStringLiteral("date"), journal.date},
        {QStringLiteral("state"), QString(StateNames.at(static_cast<size_t>(journal.state)))},
        {QStringLiteral("seconds"), journal.seconds},
        {QStringLiteral("take"), journal.take},
        {QStringLiteral("done"), journal.isDone},
        {QStringLiteral("target"), journal.target},
        {QStringLiteral("duration"), journal.duration}};
    if (journal.lastRow)
        object.insert(QStringLiteral("lastRow"), *journal.lastRow);
    return QJsonDocument(object).toJson();
}

std::optional<LectureJournal> journalFrom(const QByteArray &bytes)
{
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (!document.isObject())
        return std::nullopt;
    const QJsonObject object = document.object();
    const auto text = [&object](const char *key) {
        return object.value(QLatin1String(key)).toString();
    };
    const QJsonValue lastRow = object.value(QLatin1String("lastRow"));
    return LectureJournal{.id = text("id"),
                          .subject = text("subject"),
                          .notes = text("notes"),
                          .day = text("day"),
                          .date = text("date"),
                          .state = stateNamed(text("state")),
                          .seconds = object.value(QLatin1String("seconds")).toDouble(),
                          .take = text("take"),
                          .isDone = object.value(QLatin1String("done")).toBool(),
                          .target = text("target"),
                          .duration = text("duration"),
                          .lastRow = lastRow.isDouble() ? std::optional(lastRow.toInteger())
                                                        : std::nullopt};
}

JournalFile readJournal(const QString &path)
{
    using File = platform::WholeFile::State;
    const platform::WholeFile file = platform::readWhole(path, MostBytes);
    if (file.state == File::Missing)
        return {JournalFile::State::Missing};
    if (file.state == File::Unreadable)
        return {JournalFile::State::Unreadable};
    const auto journal = journalFrom(file.bytes);
    return journal ? JournalFile{JournalFile::State::Read, *journal}
                   : JournalFile{JournalFile::State::Worthless};
}

QString subjectToStore(const QString &typed)
{
    const QString subject = typed.trimmed();
    return subject.isEmpty() ? QStringLiteral("Untitled") : subject;
}

QVariantList newLectureRow(const QString &subject, const QString &notes, const QString &day,
                           const QString &audioPath, const QString &duration)
{
    return {subject,
            QString(NewLectureCourse),
            notes,
            day,
            QString(NewLectureStart),
            QString(NewLectureEnd),
            audioPath,
            duration};
}

} // namespace tarvelo::store
