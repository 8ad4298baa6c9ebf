#include "store/LectureJournal.h"

#include "platform/Descriptor.h"
#include "platform/SureReading.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace tarvelo::store {

namespace {

using State = LectureJournal::State;

constexpr std::array<QLatin1String, 4> StateNames{QLatin1String("idle"), QLatin1String("recording"),
                                                  QLatin1String("paused"),
                                                  QLatin1String("stopped")};
static_assert(StateNames.size() == static_cast<size_t>(State::Stopped) + 1);

// Far more than anybody types; what is larger was not written here.
constexpr qint64 MostBytes = 256 << 20;

const QString Check = QStringLiteral("check");

QByteArray jsonOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson();
}

QString checkOf(const QJsonObject &object)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(jsonOf(object), QCryptographicHash::Sha1).toHex());
}

// What was cut off, or holds pages of two contents, is not.
bool isWhole(const QByteArray &bytes)
{
    QJsonObject object = QJsonDocument::fromJson(bytes).object();
    const QString check = object.take(Check).toString();
    return !check.isEmpty() && check == checkOf(object);
}

// Of two lectures, the one that is open was written later.
bool isAhead(const LectureJournal &latest, const JournalFile &file)
{
    return file.state != JournalFile::State::Read || file.journal.id != latest.id ||
           latest.version > file.journal.version;
}

State stateNamed(const QString &name)
{
    const auto *const at = std::find(StateNames.begin(), StateNames.end(), name);
    return at == StateNames.end() ? State::Idle : static_cast<State>(at - StateNames.begin());
}

} // namespace

QString LectureJournal::idOf(const QDateTime &moment)
{
    return moment.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmsszzz"));
}

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
        {QStringLiteral("duration"), journal.duration},
        {QStringLiteral("version"), journal.version}};
    if (journal.lastRow)
        object.insert(QStringLiteral("lastRow"), *journal.lastRow);
    object.insert(Check, checkOf(object));
    return jsonOf(object);
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
                                                        : std::nullopt,
                          .version = object.value(QLatin1String("version")).toInteger()};
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

QString latestOf(const QString &journalPath)
{
    const QFileInfo journal(journalPath);
    return journal.path() + u'/' + journal.completeBaseName() + QStringLiteral(".latest");
}

bool writeLatest(const QString &journalPath, const QByteArray &bytes)
{
    const QFileInfo latest(latestOf(journalPath));
    const QByteArray next = QFile::encodeName(latest.path() + u'/' + u'.' + latest.fileName());
    {
        const platform::Descriptor file(QFile::decodeName(next), O_WRONLY | O_CREAT | O_TRUNC);
        if (!file.isOpen() || !file.write(bytes, 0)) {
            ::unlink(next.constData());
            return false;
        }
    }
    return ::rename(next.constData(), QFile::encodeName(latest.filePath()).constData()) == 0;
}

bool removeLatest(const QString &journalPath)
{
    const QString path = latestOf(journalPath);
    QFile::remove(QFileInfo(path).path() + u'/' + u'.' + QFileInfo(path).fileName());
    // Twice, for what fails once.
    return QFile::remove(path) || QFile::remove(path) || platform::isThere(path) == false;
}

LatestJournal readLatest(const QString &journalPath)
{
    using File = platform::WholeFile::State;
    const JournalFile file = readJournal(journalPath);
    const platform::WholeFile found = platform::readWhole(latestOf(journalPath), MostBytes);
    if (found.state == File::Unreadable)
        return {{JournalFile::State::Unreadable}, false};
    const auto latest = isWhole(found.bytes) ? journalFrom(found.bytes) : std::nullopt;
    if (file.state == JournalFile::State::Unreadable || !latest || !isAhead(*latest, file))
        return {file, false};
    return {{JournalFile::State::Read, *latest}, true};
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
