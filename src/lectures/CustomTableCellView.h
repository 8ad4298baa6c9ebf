#pragma once

#include "lectures/LectureList.h"

#include <QFrame>

class QLabel;

namespace tarvelo::widgets {
class ImageButton;
}

namespace tarvelo::lectures {

class LectureRowHost;

// One row of the lecture table: the subject, the first words of the notes, the duration, and the
// row's buttons. It shows whichever lecture it is given, and knows nothing of its place in the
// list.
class CustomTableCellView final : public QFrame
{
    Q_OBJECT

public:
    static constexpr int RowHeight = 68;

    explicit CustomTableCellView(QWidget *parent = nullptr);

    const Lecture &objectValue() const { return m_lecture; }
    widgets::ImageButton *btnBrowse() const { return m_btnBrowse; }

    void setRowHost(LectureRowHost *host) { m_host = host; }
    // None empties the row.
    void setObjectValue(const Lecture &lecture);
    // Draws the mark of the row that the keyboard is on.
    void setCurrent(bool current);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *makeLabel(const char *name, double size, const QColor &colour);

    LectureRowHost *m_host = nullptr;
    Lecture m_lecture;
    QLabel *m_subject = nullptr;
    QLabel *m_notes = nullptr;
    QLabel *m_duration = nullptr;
    widgets::ImageButton *m_btnBrowse = nullptr;
    bool m_isCurrent = false;
};

} // namespace tarvelo::lectures
