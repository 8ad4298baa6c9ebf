#include "widgets/CustomTextFieldFormatter.h"

namespace tarvelo::widgets {

bool CustomTextFieldFormatter::getObjectValueForStringErrorDescription(QString *object,
                                                                       const QString &string,
                                                                       QString *) const
{
    if (object)
        *object = string;
    return true;
}

bool CustomTextFieldFormatter::
    isPartialStringValidProposedSelectedRangeOriginalStringOriginalSelectedRangeErrorDescription(
        QString *partialString, TextRange *, const QString &, TextRange, QString *) const
{
    return partialString->size() <= m_maxLength;
}

} // namespace tarvelo::widgets
