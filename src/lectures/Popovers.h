#pragma once

#include "lectures/LectureOutlets.h"
#include "widgets/PopOver.h"

#include <memory>

namespace tarvelo::lectures {

// The question whether to delete, and the word about a lecture without audio.
struct Popovers
{
    std::unique_ptr<widgets::PopOver> confirmRecordDelete;
    std::unique_ptr<widgets::PopOver> audioConfirmClose;
    PopoverOutlets outlets;
};

Popovers buildPopovers();

} // namespace tarvelo::lectures
