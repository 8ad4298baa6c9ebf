#pragma once

#include "widgets/ImageButton.h"

#include <QWidget>

#include <utility>

class QButtonGroup;

namespace tarvelo::widgets {

// A row of choices joined to one control, of which at most one is selected. Segments count from 0,
// in reading direction.
class SegmentedControl final : public QWidget
{
    Q_OBJECT

public:
    explicit SegmentedControl(QWidget *parent = nullptr);

    int segmentCount() const;
    // -1 while none is.
    int selectedSegment() const;
    QByteArray actionName() const { return m_action.name; }

    // `accessibleName` says what the label abbreviates.
    void addSegment(const QString &label, const QString &accessibleName);
    // Sends no action. A segment that is not there changes nothing.
    void setSelectedSegment(int segment);
    // Sent for every choice of the user's, also for that of the segment which is selected already.
    void setAction(Action action) { m_action = std::move(action); }

private:
    QButtonGroup *m_segments = nullptr;
    Action m_action;
};

} // namespace tarvelo::widgets
