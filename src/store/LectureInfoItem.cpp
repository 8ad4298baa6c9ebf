#include "store/LectureInfoItem.h"

#include "platform/Images.h"
#include "store/Capitalised.h"

namespace tarvelo::store {

LectureInfoItem::LectureInfoItem(const QString &subject, const QString &course,
                                 const QString &durationStart, const QString &end, bool checked)
    : m_bChecked(checked)
    , m_strSubject(capitalised(subject))
    , m_strCourse(course)
    , m_strStartDuration(durationStart)
    , m_strEndDuration(end)
{
}

QString LectureInfoItem::description() const
{
    // All five at once: a subject that holds "%4" must not be filled in.
    return QStringLiteral("<%1 %2 %3 (from %4 to %5)>")
        .arg(QStringLiteral("LectureInfoItem"), m_strSubject, m_strCourse, m_strStartDuration,
             m_strEndDuration);
}

platform::Image LectureInfoItem::iconImage() const
{
    return platform::imageNamed(QStringLiteral("cellimage"));
}

void LectureInfoItem::setSubject(const QString &subject)
{
    m_strSubject = capitalised(subject);
}

} // namespace tarvelo::store
