#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace tarvelo::platform {

struct Alert
{
    QString message;
    QString button;
    QString informativeText;
};

// Warnings as sheets: modal for their window only, never blocking the caller.
class Alerts
{
public:
    // What the end handler hears when the alert's one button was pressed.
    static constexpr int DefaultReturn = 1;

    Alerts() = default;
    Alerts(const Alerts &) = delete;
    Alerts &operator=(const Alerts &) = delete;
    virtual ~Alerts() = default;

    // `didEnd` may be empty.
    virtual void beginSheet(const Alert &alert, QWidget &window,
                            std::function<void(int)> didEnd) = 0;
};

class WindowAlerts final : public Alerts
{
public:
    void beginSheet(const Alert &alert, QWidget &window, std::function<void(int)> didEnd) override;
};

// Whether a sheet stands on `window`: a window-modal child that is showing.
bool hasAttachedSheet(const QWidget &window);

} // namespace tarvelo::platform
