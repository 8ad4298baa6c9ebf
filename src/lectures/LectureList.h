#pragma once

#include <memory>
#include <vector>

namespace tarvelo::store {
class LectureInfoItem;
}

namespace tarvelo::lectures {

// The lectures shown, in the order of the table's rows.
using Lecture = std::shared_ptr<store::LectureInfoItem>;
using LectureList = std::vector<Lecture>;

} // namespace tarvelo::lectures
