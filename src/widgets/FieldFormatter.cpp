#include "widgets/FieldFormatter.h"

#include "widgets/CustomTextFieldFormatter.h"

#include <QLineEdit>
#include <QValidator>

#include <limits>

namespace tarvelo::widgets {

namespace {

class FormatterValidator final : public QValidator
{
public:
    FormatterValidator(QLineEdit &field, const CustomTextFieldFormatter &formatter)
        : QValidator(&field)
        , m_field(field)
        , m_formatter(formatter)
    {
    }

    // A text that the program puts there has nothing to undo, unlike an edit. Calling it invalid
    // would let later edits pass, since a field refuses only those that spoil a valid text.
    State validate(QString &text, int &position) const override
    {
        TextRange selected{position, 0};
        const bool isEdit = m_field.isUndoAvailable();
        return !isEdit || accepts(text, selected) ? Acceptable : Invalid;
    }

private:
    bool accepts(QString &text, TextRange &selected) const
    {
        return m_formatter
            .isPartialStringValidProposedSelectedRangeOriginalStringOriginalSelectedRangeErrorDescription(
                &text, &selected, {}, {}, nullptr);
    }

    const QLineEdit &m_field;
    CustomTextFieldFormatter m_formatter;
};

} // namespace

void setFormatter(QLineEdit &field, const CustomTextFieldFormatter &formatter)
{
    // A field of its own accord cuts what is longer than 32767.
    field.setMaxLength(std::numeric_limits<int>::max());
    field.setValidator(new FormatterValidator(field, formatter));
}

} // namespace tarvelo::widgets
