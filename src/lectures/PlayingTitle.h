#pragma once

class QLineEdit;

namespace tarvelo::lectures {

// Says in the play window, which has no title bar, what plays: the window's title, in the place of
// `subject` while that is hidden, as it is once a new lecture was begun.
void keepTitleInSight(QLineEdit &subject);

} // namespace tarvelo::lectures
