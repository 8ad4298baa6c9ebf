#pragma once

#include "store/LectureJournal.h"

#include <QStringList>

#include <optional>

namespace tarvelo::platform {
class Dates;
}

namespace tarvelo::audio {

// The files of what new lectures left, moved out of the way of the next take: "leftover-" and the
// moment of the lecture's opening, for its recording and its journal. Nothing is written over, and
// nothing goes that was not looked at whole.
class LeftFiles final
{
public:
    // Beside a take that is no leftover: what is known of its lecture, and that it was left on
    // purpose.
    static QString journalName() { return QStringLiteral("lecture.journal"); }
    static QString closedMarkName() { return QStringLiteral("lecture.closed"); }
    // What stays unreadable is put aside under a name that begins so.
    static QString unreadBegin() { return QStringLiteral("unread-"); }

    // What was left is kept in `folder`; a take is called `takeName` and an extension. `dates`
    // outlives this object.
    LeftFiles(const QString &folder, const QString &takeName, const platform::Dates &dates);

    struct Leftover
    {
        QString journalPath; // also when there is none
        QString takePath;    // empty without a recording
        store::JournalFile journalFile;
    };
    // Oldest first; null when the folder cannot be read now.
    std::optional<QList<Leftover>> all() const;

    // Moves here what stands in `from`, which may be the same folder, of lectures that are not open
    // any more, unless they were left on purpose. False when something of them stands there still;
    // to be tried again then. A journal that cannot be read keeps its recording back for a day;
    // once it can be, its texts are offered.
    bool moveFrom(const QString &from) const;
    // Moves a take that was left on purpose from another folder, where no lecture would replace it,
    // to where the next one will. Not while something stands here; another time then.
    void moveClosedFrom(const QString &from) const;

private:
    // These are false when the folder cannot be read now.
    bool takeBackReadable(const QString &from) const;
    bool giveUpUnreadable(const QString &from) const;
    bool moveLeftovers(const QString &from) const;
    static std::optional<store::JournalFile> wholeJournal(const QString &path);
    bool moveLeftover(const QString &from) const;
    bool isTake(const QString &name) const { return name.startsWith(m_takeName + u'.'); }
    bool moveTakes(const QStringList &takes, const QString &ofJournal, const QString &name) const;
    bool isBlank(const store::LectureJournal &journal, const QString &name) const;
    // For a journal without its recording, what an earlier try moved already is no hindrance. Empty
    // when it cannot be known what is free.
    QString freeName(const QString &wish, bool hasTake) const;
    QString momentName() const;
    QString pathOf(const QString &name) const { return m_folder + u'/' + name; }

    QString m_folder;
    QString m_takeName;
    const platform::Dates &m_dates;
};

} // namespace tarvelo::audio
