#pragma once

#include "store/LectureInfoItem.h"

#include <QHash>
#include <QSet>

#include <optional>

namespace tarvelo::store {

// Lectures whose rows went with those of others, and are in a copy of the database. Their IDs may
// be given again.
struct GoneLectures
{
    QString copyPath;
    std::optional<QSet<qint64>> ids = {}; // null when all have gone

    bool has(qint64 id) const { return !ids || ids->contains(id); }
    void mark(LectureInfoItem &lecture) const
    {
        if (lecture.hasRow() && has(lecture.getRecordUniqueID()))
            lecture.setGoneTo(copyPath);
    }
};

// And those that are in the table again.
struct LecturesBack
{
    QString copyPath = {};             // empty when they came from their recordings
    QHash<qint64, qint64> idsNow = {}; // by those in the copy
    int count = 0;                     // of the rows that came
};

} // namespace tarvelo::store
