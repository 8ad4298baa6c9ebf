#pragma once

#include <QStringList>
#include <QTextEdit>

class QMimeData;
class QWidget;

namespace tarvelo::widgets {

// The name under which plain text lies on the clipboard and comes with a drag.
constexpr const char *NSStringPboardType = "text/plain";

// A text of many lines into which only plain text can be pasted and dropped: styled text comes
// without its styles, and pictures, or files without a text, not at all. What is copied out of it
// is plain text too, character by character, so that blanks at which no line breaks stay.
class CustomTextView final : public QTextEdit
{
    Q_OBJECT

public:
    explicit CustomTextView(QWidget *parent = nullptr);

    QStringList readablePasteboardTypes() const;

protected:
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    QMimeData *createMimeDataFromSelection() const override;
};

} // namespace tarvelo::widgets
