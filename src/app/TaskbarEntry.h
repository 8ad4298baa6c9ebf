#pragma once

#include <QObject>

class QWidget;

namespace tarvelo::app {

// The entry of one window in the desktop's task bar or dock: there, unless it is not wanted. X11
// alone can be asked for it; elsewhere the wish is kept and changes nothing.
class TaskbarEntry final : public QObject
{
    Q_OBJECT

public:
    // A child of `window`.
    explicit TaskbarEntry(QWidget &window);

    bool isWanted() const { return m_wanted; }
    void setWanted(bool wanted);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void tellWindowManager();

    QWidget &m_window;
    bool m_wanted = true;
};

} // namespace tarvelo::app
