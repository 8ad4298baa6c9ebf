#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace tarvelo::app {

// What a pop-over over a day shows: the day, and two buttons. Nothing opens it yet; its controls
// are there, with their titles, for who does.
class DayPopover final : public QWidget
{
    Q_OBJECT

public:
    explicit DayPopover(QWidget *parent = nullptr);

    QLabel *lblDateDisplayOnPopover() const { return m_lblDateDisplayOnPopover; }
    QPushButton *btnViewFromPopover() const { return m_btnViewFromPopover; }
    QPushButton *btnRecordFromPopover() const { return m_btnRecordFromPopover; }

private:
    QLabel *m_lblDateDisplayOnPopover;
    QPushButton *m_btnViewFromPopover;
    QPushButton *m_btnRecordFromPopover;
};

} // namespace tarvelo::app
