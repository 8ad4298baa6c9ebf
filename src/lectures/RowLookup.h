#pragma once

class QWidget;

namespace tarvelo::lectures {

class LectureTable;

// The row whose view holds `sender`, a control that is a child of the row's view; counts from 0.
// -1 for a sender that lies elsewhere, for none, and for a table without rows. No row is made or
// scrolled to by looking for it.
int rowOfSender(LectureTable &table, const QWidget *sender);

} // namespace tarvelo::lectures
