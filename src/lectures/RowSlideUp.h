#pragma once

#include <QAbstractAnimation>
#include <QObject>
#include <QPixmap>
#include <QVariantAnimation>

#include <chrono>
#include <functional>

class QPainter;

namespace tarvelo::lectures {

// The way out of a row that was removed from the table: its picture slides up under the row above
// while the rows below close the gap. One row at a time.
class RowSlideUp final : public QObject
{
    Q_OBJECT

public:
    explicit RowSlideUp(QObject *parent = nullptr);

    bool isRunning() const { return m_animation.state() == QAbstractAnimation::Running; }
    // By how much the rows from `row` on still stand too low.
    int gapAbove(int row) const;
    // What is left of the room of the removed row.
    int gap() const { return m_gap; }

    // `height` is that of the row, `completion` hears once that the row is gone. One that still
    // runs ends first.
    void start(int row, int height, const QPixmap &picture, std::chrono::milliseconds duration,
               std::function<void()> completion);
    // Ends at once what runs, and tells it.
    void finish();
    // `top` is where the row lay.
    void paint(QPainter &painter, int top) const;
    int row() const { return m_row; }

Q_SIGNALS:
    void moved();

private:
    void end();

    QVariantAnimation m_animation;
    QPixmap m_picture;
    std::function<void()> m_completion;
    int m_row = -1;
    int m_height = 0;
    int m_gap = 0;
};

} // namespace tarvelo::lectures
