#pragma once

#include <memory>
#include <vector>

namespace tarvelo::store {
class LectureInfoItem;
}

namespace tarvelo::lectures {

using Lecture = std::shared_ptr<store::LectureInfoItem>;
// Those that are shown, in the order of the table's rows.
using LectureList = std::vector<Lecture>;

} // namespace tarvelo::lectures
