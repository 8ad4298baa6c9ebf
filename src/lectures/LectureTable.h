#pragma once

#include "lectures/LectureList.h"

#include <QAbstractItemModel>
#include <QAbstractScrollArea>
#include <QPointer>

#include <map>
#include <vector>

namespace tarvelo::lectures {

class CustomTableCellView;
class LectureRowHost;

// The table of lectures: one column of rows of one height. A row has a view only while it shows;
// the views of rows that scroll out are used again for those that scroll in, so that ten thousand
// lectures open as fast as ten. Row and column indexes count from 0.
class LectureTable final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    // Under this role the model gives a row's Lecture.
    static constexpr int LectureRole = Qt::UserRole;

    enum class SelectionHighlightStyle { None, Regular };

    explicit LectureTable(QWidget *parent = nullptr);
    ~LectureTable() override;

    int rowCount() const;
    // The row's view when it shows, else null; `makeIfNecessary` scrolls the row into view first.
    CustomTableCellView *viewAtColumnRowMakeIfNecessary(int column, int row, bool makeIfNecessary);
    // The row that `view` is, or lies in; -1 when it is none.
    int rowForView(const QWidget *view) const;
    int viewCount() const { return static_cast<int>(m_shown.size() + m_spare.size()); }
    int selectedRow() const { return m_selectedRow; }
    SelectionHighlightStyle selectionHighlightStyle() const { return m_highlightStyle; }

    // The model must outlive the table or be taken off it. Its resets reload the table.
    void setModel(QAbstractItemModel *model);
    // Lets the rows ask their questions; null takes it back.
    void setRowHost(LectureRowHost *host);
    // Whether the selected row lies on a ground of its own. The mark of the row that the keyboard
    // is on shows under both styles.
    void setSelectionHighlightStyle(SelectionHighlightStyle style);
    void reloadData();
    void scrollRowToVisible(int row);
    // The row that the keyboard is on; -1 for none.
    void selectRow(int row);

Q_SIGNALS:
    // A row view came into being; whoever drives the table wires its buttons.
    void rowViewMade(tarvelo::lectures::CustomTableCellView *view);
    void selectedRowChanged(int row);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void updateScrollBar();
    // Gives every row that shows its view, in its place, and takes the others' away.
    void layoutRows();
    CustomTableCellView *takeView();
    void bind(CustomTableCellView &view, int row) const;
    void showCurrentRow();

    QPointer<QAbstractItemModel> m_model;
    LectureRowHost *m_host = nullptr;
    std::map<int, CustomTableCellView *> m_shown;
    std::vector<CustomTableCellView *> m_spare;
    int m_selectedRow = -1;
    SelectionHighlightStyle m_highlightStyle = SelectionHighlightStyle::Regular;
};

} // namespace tarvelo::lectures
