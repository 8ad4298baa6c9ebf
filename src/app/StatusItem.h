#pragma once

#include "app/StatusBars.h"
#include "platform/Images.h"

#include <QObject>
#include <QSize>
#include <QSystemTrayIcon>

#include <memory>

class QMenu;

namespace tarvelo::app {

// The program's item in the desktop's status bar while it is wanted there, also in one that comes
// later. A desktop without a status bar shows none and says nothing.
class StatusItem final : public QObject
{
    Q_OBJECT

public:
    // In points; the item is as wide as the bar is high.
    static constexpr QSize ImageSize{20, 20};

    // `menu` must outlive this object.
    StatusItem(QMenu &menu, const QString &toolTip);

    bool exists() const { return m_bars != nullptr; }
    // Null as long as there is no bar for it.
    const QSystemTrayIcon *item() const { return m_item.get(); }

    // An image that is null leaves the item without one.
    void create(const platform::Image &image);
    void remove();

Q_SIGNALS:
    // The item itself was pressed, where the desktop keeps its menu under the other button.
    void pressed();

private:
    void show();

    QMenu &m_menu;
    QString m_toolTip;
    platform::Image m_image;
    std::unique_ptr<StatusBars> m_bars;
    std::unique_ptr<QSystemTrayIcon> m_item;
};

} // namespace tarvelo::app
