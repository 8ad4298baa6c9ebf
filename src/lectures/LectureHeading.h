#pragma once

class QWidget;

namespace tarvelo::lectures {

// A title over the lecture view, as the panes beside it have one: in the room that the view leaves
// above itself in its window, wherever it stands or slides to. The view is a child of the window.
void putHeadingOver(QWidget &lectureView);

} // namespace tarvelo::lectures
