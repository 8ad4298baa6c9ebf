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

    struct Question
    {
        QString message;
        QString informativeText;
        QStringList buttons;
    };

    QList<Question> questions;
    // What is answered to every question.
    int answer = FirstButtonReturn + 1;

    // The message of the last sheet, if there was one.
    QString lastMessage() const { return sheets.isEmpty() ? QString() : sheets.last().message; }

    void beginSheet(const platform::Alert &alert, QWidget &window,
                    std::function<void(int)> didEnd) override
    {
        sheets.append(
            {alert.message, alert.button, alert.informativeText, &window, std::move(didEnd)});
    }
    int runModal(const QString &message, const QString &informativeText,
                 const QStringList &buttons) override
    {
        questions.append({message, informativeText, buttons});
        return answer;
    }
};

} // namespace tarvelo::tests
