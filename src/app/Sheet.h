#pragma once

#include <Qt>

class QDialog;
class QHBoxLayout;
class QLabel;
class QWidget;

namespace tarvelo::app {

// What the sheets of the main window have in common.

// A child of `mainWindow`, as white as the windows whatever the desktop's theme.
QDialog *makeSheet(QWidget &mainWindow);

// -- Sheets that are a column of texts with a row of buttons below. Labels and row have no parent
// until the sheet lays them out.

// The side where the layout begins, whatever language the words are of.
Qt::Alignment leadingSide(const QWidget &view);
// For a text of several lines, which is shown as it is: a student may have typed it.
QLabel *makeWrappedLabel(const char *name);
QHBoxLayout *makeButtonRow();
// No narrower than that; the student may make it wider.
void setSheetWidth(QDialog &sheet, int width);
// As high as its texts need at its width; to be called whenever one changes. Wrapped texts need a
// height that depends on the width, which windows do not ask for.
void fitToTexts(QDialog &sheet);

} // namespace tarvelo::app
