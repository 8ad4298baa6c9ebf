#pragma once

#include <QStringList>

#include <functional>

class QWidget;

namespace tarvelo::platform {

struct Alert
{
    QString message;
    QString button;
    QString informativeText;
};

// Warnings, as sheets that are modal for their window only and never block the caller; the few that
// the program cannot go on without an answer to, as windows of their own.
class Alerts
{
public:
    // What the end handler hears when the alert's one button was pressed.
    static constexpr int DefaultReturn = 1;
    // The answer of a modal alert's first button; the others count on from it.
    static constexpr int FirstButtonReturn = 1000;

    Alerts() = default;
    Alerts(const Alerts &) = delete;
    Alerts &operator=(const Alerts &) = delete;
    virtual ~Alerts() = default;

    // `didEnd` may be empty. What a sheet of `window` says already is not said by another; the end
    // of that one is heard by who began it.
    virtual void beginSheet(const Alert &alert, QWidget &window,
                            std::function<void(int)> didEnd) = 0;
    // Returns when it was answered; Escape and its close button count as the last button. One that
    // the end of the program takes away has the answer 0.
    virtual int runModal(const QString &message, const QString &informativeText,
                         const QStringList &buttons) = 0;
};

class WindowAlerts final : public Alerts
{
public:
    void beginSheet(const Alert &alert, QWidget &window, std::function<void(int)> didEnd) override;
    int runModal(const QString &message, const QString &informativeText,
                 const QStringList &buttons) override;
};

// Whether a sheet stands on `window`: a window-modal child that is showing.
bool hasAttachedSheet(const QWidget &window);

} // namespace tarvelo::platform
