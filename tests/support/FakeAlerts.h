#pragma once

#include "platform/Alerts.h"

#include <QList>
#include <QString>

namespace tarvelo::tests {

// Shows nothing and remembers what it was asked to show, and on which window.
class FakeAlerts final : public platform::Alerts
{
public:
    struct Sheet
    {
        QString message;
        QString button;
        QString informativeText;
        const QWidget *window;
        std::function<void(int)> didEnd;
    };

    QList<Sheet> sheets;

    // The message of the last sheet, if there was one.
    QString lastMessage() const { return sheets.isEmpty() ? QString() : sheets.last().message; }

    void beginSheet(const platform::Alert &alert, QWidget &window,
                    std::function<void(int)> didEnd) override
    {
        sheets.append(
            {alert.message, alert.button, alert.informativeText, &window, std::move(didEnd)});
    }
};

} // namespace tarvelo::tests
