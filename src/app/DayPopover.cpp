#include "app/DayPopover.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace tarvelo::app {

DayPopover::DayPopover(QWidget *parent)
    : QWidget(parent)
    , m_lblDateDisplayOnPopover(new QLabel(this))
    , m_btnViewFromPopover(new QPushButton(this))
    , m_btnRecordFromPopover(new QPushButton(this))
{
    m_lblDateDisplayOnPopover->setObjectName(QStringLiteral("lblDateDisplayOnPopover"));
    m_btnViewFromPopover->setObjectName(QStringLiteral("btnViewFromPopover"));
    m_btnRecordFromPopover->setObjectName(QStringLiteral("btnRecordFromPopover"));
    auto *layout = new QGridLayout(this);
    layout->addWidget(m_lblDateDisplayOnPopover, 0, 0, 1, 2);
    layout->addWidget(m_btnViewFromPopover, 1, 0);
    layout->addWidget(m_btnRecordFromPopover, 1, 1);
}

} // namespace tarvelo::app
