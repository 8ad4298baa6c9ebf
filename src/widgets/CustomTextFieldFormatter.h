#pragma once

#include "platform/StyledText.h"

#include <QString>

#include <limits>
#include <optional>

class QFont;

namespace tarvelo::widgets {

// Which characters of a text are meant, counted as in its length.
struct TextRange
{
    qsizetype location = 0;
    qsizetype length = 0;

    bool operator==(const TextRange &) const = default;
};

// Limits the length of what can be typed: an edit whose outcome would be longer is refused as a
// whole, never cut to what fits. Lengths count UTF-16 units, as those of all texts here do: an
// emoji counts as two or more. It changes no text.
class CustomTextFieldFormatter final
{
public:
    // Makes a formatter whose limit nobody set.
    struct WithoutInit
    {
    };

    // No limit.
    CustomTextFieldFormatter() = default;
    // The limit is 0, so that until one is set every text but the empty one is refused, which is
    // wanted.
    explicit CustomTextFieldFormatter(WithoutInit)
        : m_maxLength(0)
    {
    }

    qint32 maximumLength() const { return m_maxLength; }
    void setMaximumLength(qint32 maxLength) { m_maxLength = maxLength; }

    // The text itself: the value of a field is its text.
    QString stringForObjectValue(const QString &object) const { return object; }
    // Always succeeds, for a text of any length, without an error text.
    bool getObjectValueForStringErrorDescription(QString *object, const QString &string,
                                                 QString *error) const;
    // Whether the text that an edit would give is short enough. Neither it nor the selection after
    // the edit is changed, and there is no error text. None of the pointers need be there but
    // `partialString`.
    bool
    isPartialStringValidProposedSelectedRangeOriginalStringOriginalSelectedRangeErrorDescription(
        QString *partialString, TextRange *proposedSelectedRange, const QString &originalString,
        TextRange originalSelectedRange, QString *error) const;
    // None, so that the plain text shows.
    std::optional<platform::StyledText>
    attributedStringForObjectValueWithDefaultAttributes(const QString &, const QFont &) const
    {
        return std::nullopt;
    }

private:
    qint32 m_maxLength = std::numeric_limits<qint32>::max();
};

} // namespace tarvelo::widgets
