#pragma once

#include "store/LectureInfoItem.h"

#include <QVariantMap>

namespace tarvelo::store {

// A row of the lecture table as a record, not checked. A column that is missing gives an empty
// text.
LectureInfoItem lectureFromRow(const QVariantMap &row);

} // namespace tarvelo::store
