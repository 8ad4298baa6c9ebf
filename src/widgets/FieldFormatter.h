#pragma once

class QLineEdit;

namespace tarvelo::widgets {

class CustomTextFieldFormatter;

// Asks `formatter` about every edit of the field: typing, pasting, dropping, input methods. One
// that it refuses leaves the field as it was. What the program puts there is no edit and shows
// whole, however long it is; of a text that is too long only an edit that makes it short enough is
// accepted.
void setFormatter(QLineEdit &field, const CustomTextFieldFormatter &formatter);

} // namespace tarvelo::widgets
