#pragma once

#include "lectures/LectureList.h"
#include "widgets/TrackingRects.h"

#include <QColor>
#include <QFrame>
#include <QPointer>

#include <array>

class QLabel;
class QMenu;
class QWidget;

namespace tarvelo::widgets {
class ImageButton;
class ImageView;
} // namespace tarvelo::widgets

namespace tarvelo::lectures {

class LectureRowHost;

// One row of the lecture table: the subject, the first words of the notes, the duration, and the
// row's buttons, which are its children. It shows whichever lecture it is given, and knows nothing
// of its place in the list. The commands of its menu press its buttons, so that each reaches the
// controller in one way only.
class CustomTableCellView final : public QFrame
{
    Q_OBJECT

public:
    static constexpr int RowHeight = 68;

    explicit CustomTableCellView(QWidget *parent = nullptr);

    const Lecture &objectValue() const { return m_lecture; }
    widgets::ImageButton *btnPlay() const { return m_btnPlay; }
    widgets::ImageButton *btnDelete() const { return m_btnDelete; }
    widgets::ImageButton *btnEmail() const { return m_btnEmail; }
    widgets::ImageButton *btnEdit() const { return m_btnEdit; }
    widgets::ImageButton *btnBrowse() const { return m_btnBrowse; }
    widgets::ImageButton *btnExport() const { return m_btnExport; }
    // Shows only while the mouse is over the row.
    widgets::ImageButton *btnInfo() const { return m_btnInfo; }
    // From where a line begins to its end.
    std::array<widgets::ImageButton *, 7> buttons() const;
    // The tag of the rectangle in which the row hears the mouse.
    int trackingTag() const { return m_trackingTag; }
    // Lies behind everything.
    widgets::ImageView *imageView() const { return m_imageView; }

    // Without a host nothing is supported and no confirmation shows.
    void setRowHost(LectureRowHost *host) { m_host = host; }
    // None empties the row.
    void setObjectValue(const Lecture &lecture);
    // Marks the row that the keyboard is on, and shows its buttons.
    void setCurrent(bool current);

    // To be called once when the row has its place in a window: begins to hear the mouse.
    void awakeFromNib();
    // Both leave everything as it is while a deletion waits for its confirmation.
    void mouseEntered();
    void mouseExited();
    // For a row that came or went under a mouse that stood still.
    void setMouseOver(bool over);

    // The right button opens the row's menu, and together with Ctrl that of the export.
    void rightMouseDown(QMouseEvent *event);
    // Offers the export to the music library, and nothing when that does not take the file.
    void rightMouseDown_New(QMouseEvent *event);
    // The menu of the export, a new one as the one below; null when there is nothing to offer.
    QMenu *exportMenu();
    // A new menu that the row owns; it is gone when it closes, when the next one is made, or when
    // the row shows another lecture.
    QMenu *getMenu();

    void editAction();
    void deleteAction();
    void browseAction();
    void exportAction();
    void shareAction();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *makeLabel(const char *name, double size, const QColor &colour);
    widgets::ImageButton *makeButton(const char *name, const char *image, const char *textKey);
    QMenu *newMenu();
    void closeMenu();
    bool isConfirmDeleteShowing() const;
    bool hasFile() const;
    void trackMouse();
    void showButtons();
    void layoutSubviews();

    LectureRowHost *m_host = nullptr;
    Lecture m_lecture;
    widgets::ImageView *m_imageView = nullptr;
    QLabel *m_subject = nullptr;
    QLabel *m_notes = nullptr;
    QLabel *m_duration = nullptr;
    widgets::ImageButton *m_btnPlay = nullptr;
    widgets::ImageButton *m_btnDelete = nullptr;
    widgets::ImageButton *m_btnEmail = nullptr;
    widgets::ImageButton *m_btnEdit = nullptr;
    widgets::ImageButton *m_btnBrowse = nullptr;
    widgets::ImageButton *m_btnExport = nullptr;
    widgets::ImageButton *m_btnInfo = nullptr;
    int m_trackingTag = 0;
    widgets::TrackingRects m_tracking;
    QPointer<QMenu> m_menu;
    bool m_isMouseOver = false;
    bool m_isCurrent = false;
};

} // namespace tarvelo::lectures
