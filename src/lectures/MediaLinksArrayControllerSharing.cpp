#include "lectures/MediaLinksArrayController.h"

#include "audio/SharingAndExport.h"
#include "lectures/LectureTable.h"
#include "lectures/LectureWindows.h"
#include "lectures/RowLookup.h"

namespace tarvelo::lectures {

namespace {

// Mails are handed over from this version of the system on, which is reached by the start-up.
constexpr qint32 FirstVersionWithMail = 0x1080;

} // namespace

void MediaLinksArrayController::doSendMail(QWidget *sender)
{
    if (m_version < FirstVersionWithMail)
        return;
    LectureTable &table = *m_windows.mainOutlets().tblRecordSubjectList;
    const int row = rowOfSender(table, sender);
    const Lecture lecture = tableViewObjectValueForTableColumnRow(0, row);
    if (!lecture)
        return;
    table.selectRow(row);
    m_sharing.doSendMail(*lecture);
}

void MediaLinksArrayController::onExportToiTunes(QWidget *sender)
{
    const int row = rowOfSender(*m_windows.mainOutlets().tblRecordSubjectList, sender);
    if (const Lecture lecture = tableViewObjectValueForTableColumnRow(0, row))
        m_sharing.onExportToiTunes(*lecture);
}

bool MediaLinksArrayController::isSupportedIniTunes(QWidget *cell) const
{
    const int row = m_windows.mainOutlets().tblRecordSubjectList->rowForView(cell);
    const Lecture lecture = tableViewObjectValueForTableColumnRow(0, row);
    return lecture && audio::SharingAndExport::isSupportedIniTunes(*lecture);
}

} // namespace tarvelo::lectures
