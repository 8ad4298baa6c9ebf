#pragma once

class QWidget;

namespace tarvelo::lectures {

// Hears of what the student does in text views and fields. Each call names the view.
class TextDelegate
{
public:
    virtual ~TextDelegate() = default;

    virtual void textDidBeginEditing(QWidget *view) = 0;
    virtual void textDidChange(QWidget *view) = 0;
    virtual void textDidEndEditing(QWidget *view) = 0;
    // A field of one line says so in its own way that its edit ended.
    virtual void controlTextDidEndEditing(QWidget *field) = 0;
};

} // namespace tarvelo::lectures
