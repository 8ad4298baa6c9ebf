#include "audio/LeftFiles.h"

#include "audio/engine/LeftTake.h"
#include "platform/Dates.h"
#include "platform/DurableFiles.h"
#include "platform/SteadyFile.h"
#include "platform/SureReading.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace tarvelo::audio {

using platform::namesIn;
using platform::SteadyFile;
using store::JournalFile;
using store::LectureJournal;

namespace {

const QString JournalEnding = QStringLiteral(".journal");
const QString NameBegin = QStringLiteral("leftover-");

// Of a take in which nothing can be heard; a longer one may be damaged, and is not thrown away.
constexpr qint64 MostBytesOfSilence = 64 << 10;

// Asked twice: what is looked at well may be looked at in vain once, for want of memory.
bool holdsNothing(const QString &takePath)
{
    return platform::readWhole(takePath, MostBytesOfSilence).state ==
               platform::WholeFile::State::Read &&
           engine::secondsOfLeftTake(takePath) <= 0 && engine::secondsOfLeftTake(takePath) <= 0;
}

QString baseOf(const QString &name)
{
    return QFileInfo(name).completeBaseName();
}

// Twice, for what fails once: without it the recording, which is moved by then, would be offered as
// one of a lecture that nobody knows.
bool moveJournal(const QString &from, const QString &to)
{
    return SteadyFile(from).renameTo(to) || SteadyFile(from).renameTo(to);
}

bool isUnreadable(const QString &journal)
{
    return store::readJournal(journal).state == JournalFile::State::Unreadable;
}

// Under a name that nobody looks for. What cannot be read cannot be synced either, and so the name
// alone is.
bool putAside(const QString &path)
{
    const QFileInfo file(path);
    const QString wish = file.path() + u'/' + LeftFiles::unreadBegin() + file.fileName();
    QString aside = wish;
    for (int number = 2; QFileInfo::exists(aside); ++number)
        aside = wish + u'-' + QString::number(number);
    return ::rename(QFile::encodeName(path).constData(), QFile::encodeName(aside).constData()) ==
               0 &&
           platform::syncFolderOf(aside);
}

QStringList beginning(const QString &begin, QStringList names)
{
    names.removeIf([&begin](const QString &name) { return !name.startsWith(begin); });
    return names;
}

// Empty when it is none of them. One that the journal does not name is a stray of another format,
// be it the only one: its own may be in its place already.
QString takeOf(const LectureJournal &journal, const QStringList &takes)
{
    if (journal.take.isEmpty())
        return takes.size() == 1 && !(journal.isDone && journal.target.isEmpty()) ? takes.first()
                                                                                  : QString();
    const auto own = std::ranges::find_if(takes, [&journal](const QString &take) {
        return QFileInfo(take).suffix() == QFileInfo(journal.take).suffix();
    });
    return own == takes.end() ? QString() : *own;
}

bool isJournal(const QString &name)
{
    return name.endsWith(JournalEnding);
}

} // namespace

LeftFiles::LeftFiles(const QString &folder, const QString &takeName, const platform::Dates &dates)
    : m_folder(folder)
    , m_takeName(takeName)
    , m_dates(dates)
{
}

std::optional<QList<LeftFiles::Leftover>> LeftFiles::all() const
{
    const auto names = namesIn(m_folder);
    if (!names)
        return std::nullopt;
    const QStringList left = beginning(NameBegin, *names);
    QStringList bases;
    for (const QString &name : left)
        bases.append(baseOf(name));
    bases.removeDuplicates();
    QList<Leftover> leftovers;
    for (const QString &base : std::as_const(bases)) {
        const QString journal = pathOf(base + JournalEnding);
        Leftover leftover{
            .journalPath = journal, .takePath = {}, .journalFile = store::readJournal(journal)};
        for (const QString &name : left)
            if (baseOf(name) == base && !isJournal(name))
                leftover.takePath = pathOf(name);
        leftovers.append(leftover);
    }
    return leftovers;
}

bool LeftFiles::moveFrom(const QString &from) const
{
    return takeBackReadable(from) && takeBackReadable(m_folder) && giveUpUnreadable(from) &&
           giveUpUnreadable(m_folder) && (from == m_folder || moveLeftovers(from)) &&
           moveLeftover(from);
}

// What was put aside and can be read after all. Its recording is a lecture by now, or nobody wants
// it; its texts are offered as of one without a recording, and nothing is done unasked.
bool LeftFiles::takeBackReadable(const QString &from) const
{
    const auto names = namesIn(from);
    for (const QString &name : beginning(unreadBegin(), names.value_or(QStringList()))) {
        const QString path = from + u'/' + name;
        JournalFile file =
            isJournal(name) ? store::readJournal(path) : JournalFile{JournalFile::State::Missing};
        const QString free =
            file.state == JournalFile::State::Read ? freeName(momentName(), true) : QString();
        if (free.isEmpty())
            continue;
        file.journal.isDone = false;
        file.journal.take = file.journal.target = file.journal.duration = QString();
        if (SteadyFile(pathOf(free + JournalEnding)).replace(store::toBytes(file.journal)))
            QFile::remove(path);
    }
    return names.has_value();
}

// The recording beside one that was not read for a day does not wait for it any longer. Where none
// waits it may take longer.
bool LeftFiles::giveUpUnreadable(const QString &from) const
{
    const auto names = namesIn(from);
    const auto keepsBack = [&](const QString &journal) {
        return names && std::ranges::any_of(*names, [&](const QString &name) {
                   return journal == journalName()
                              ? isTake(name)
                              : !isJournal(name) && baseOf(name) == baseOf(journal);
               });
    };
    for (const QString &name : names.value_or(QStringList())) {
        const QFileInfo file(from + u'/' + name);
        if (isJournal(name) && !name.startsWith(unreadBegin()) && keepsBack(name) &&
            file.lastModified().daysTo(m_dates.now()) > 1 && isUnreadable(file.filePath()) &&
            isUnreadable(file.filePath()))
            putAside(file.filePath());
    }
    return names.has_value();
}

// Of a process that did not come to offer them, or to store them.
bool LeftFiles::moveLeftovers(const QString &from) const
{
    const auto names = namesIn(from);
    if (!names)
        return false;
    const QStringList left = beginning(NameBegin, *names);
    bool isAllMoved = true;
    for (const QString &name : left) {
        const QString base = baseOf(name);
        const auto isItsTake = [&base](const QString &other) {
            return !isJournal(other) && baseOf(other) == base;
        };
        if (isJournal(name) && std::ranges::any_of(left, isItsTake))
            continue; // goes with that
        const QString journal = base + JournalEnding;
        const QString free = freeName(base, !isJournal(name));
        const bool isTakeMoved =
            isJournal(name) ||
            (!free.isEmpty() &&
             platform::renameDurably(from + u'/' + name,
                                     pathOf(free + u'.' + QFileInfo(name).suffix())));
        const bool isJournalMoved =
            !left.contains(journal) ||
            (isTakeMoved && !free.isEmpty() &&
             moveJournal(from + u'/' + journal, pathOf(free + JournalEnding)));
        isAllMoved = isAllMoved && isTakeMoved && isJournalMoved;
    }
    return isAllMoved;
}

// With what is ahead of it, durably; null when that cannot be had now. What is ahead and stays
// unreadable is put aside, lest the rest waits for it for ever.
std::optional<JournalFile> LeftFiles::wholeJournal(const QString &path)
{
    using State = JournalFile::State;
    const QString latest = store::latestOf(path);
    auto found = store::readLatest(path);
    if (found.file.state == State::Unreadable)
        found = store::readLatest(path);
    if (found.file.state == State::Unreadable) {
        found = {store::readJournal(path), false};
        if (found.file.state == State::Unreadable || !putAside(latest))
            return std::nullopt;
    }
    if (found.isAhead && !SteadyFile(path).replace(store::toBytes(found.file.journal)))
        return std::nullopt;
    const bool isLatestGone = platform::isThere(latest) == false ||
                              (store::removeLatest(path) && platform::syncFolderOf(path));
    return isLatestGone ? std::optional(found.file) : std::nullopt;
}

// The recording goes first, under a name that the journal tells: whoever is interrupted between the
// two puts them together again.
bool LeftFiles::moveLeftover(const QString &from) const
{
    const auto names = namesIn(from);
    const QString path = from + u'/' + journalName();
    const auto whole = names ? wholeJournal(path) : std::nullopt;
    if (!whole)
        return false;
    const JournalFile &found = *whole;
    const bool hasJournal = found.state != JournalFile::State::Missing;
    const LectureJournal &journal = found.journal;
    QStringList takes;
    // A mark beside a journal that has no take yet is that of an older take.
    if (!names->contains(closedMarkName()) || !journal.take.isEmpty())
        for (const QString &name : *names)
            if (isTake(name) && !QFileInfo(from + u'/' + name).isDir())
                takes.append(from + u'/' + name);
    if (!journal.isDone)
        takes.removeIf(
            [](const QString &take) { return holdsNothing(take) && QFile::remove(take); });
    const QString ofJournal = hasJournal ? takeOf(journal, takes) : QString();
    const bool hasTake = !ofJournal.isEmpty();
    static const QRegularExpression isPlain(QStringLiteral("^[0-9T]+$"));
    const QString wish =
        isPlain.match(journal.id).hasMatch() ? NameBegin + journal.id : momentName();
    const QString name = freeName(wish, hasTake);
    if (name.isEmpty() || !moveTakes(takes, ofJournal, name))
        return false;
    if (!hasJournal)
        return true;
    const bool isWorthless =
        !hasTake && (found.state == JournalFile::State::Worthless || isBlank(journal, name));
    if (!isWorthless)
        return moveJournal(path, pathOf(name + JournalEnding));
    SteadyFile(path).remove();
    return true;
}

// The mark goes first: a take that comes without one is offered, one that stays behind without it
// is offered the next time, and a mark alone says nothing.
void LeftFiles::moveClosedFrom(const QString &from) const
{
    const auto there = namesIn(from);
    const auto here = namesIn(m_folder);
    const auto isOfTheNextLecture = [this](const QString &name) {
        return isTake(name) || name == journalName() || name == closedMarkName();
    };
    if (!there || !there->contains(closedMarkName()) || there->contains(journalName()) || !here ||
        std::ranges::any_of(*here, isOfTheNextLecture))
        return;
    if (!platform::renameDurably(from + u'/' + closedMarkName(), pathOf(closedMarkName())))
        return;
    for (const QString &name : *there)
        if (isTake(name))
            platform::renameDurably(from + u'/' + name, pathOf(name));
}

bool LeftFiles::moveTakes(const QStringList &takes, const QString &ofJournal,
                          const QString &name) const
{
    const auto move = [this](const QString &take, const QString &base) {
        return !base.isEmpty() &&
               platform::renameDurably(take, pathOf(base + u'.' + QFileInfo(take).suffix()));
    };
    // Last the journal's own, lest another try takes a stray for it.
    return std::ranges::all_of(takes,
                               [&](const QString &take) {
                                   return take == ofJournal ||
                                          move(take, freeName(momentName(), true));
                               }) &&
           (ofJournal.isEmpty() || move(ofJournal, name));
}

// Nobody misses it, and it has no recording that an earlier try moved already.
bool LeftFiles::isBlank(const LectureJournal &journal, const QString &name) const
{
    const auto names = namesIn(m_folder);
    return names && journal.subject.trimmed().isEmpty() && journal.notes.trimmed().isEmpty() &&
           !journal.isDone && beginning(name + u'.', *names).isEmpty();
}

QString LeftFiles::freeName(const QString &wish, bool hasTake) const
{
    const auto names = namesIn(m_folder);
    if (!names)
        return {};
    const auto isTaken = [&](const QString &candidate) {
        return hasTake ? std::ranges::any_of(*names,
                                             [&candidate](const QString &name) {
                                                 return baseOf(name) == candidate;
                                             })
                       : names->contains(candidate + JournalEnding);
    };
    QString name = wish;
    for (int number = 2; isTaken(name); ++number)
        name = wish + u'-' + QString::number(number);
    return name;
}

QString LeftFiles::momentName() const
{
    return NameBegin + LectureJournal::idOf(m_dates.now());
}

} // namespace tarvelo::audio
