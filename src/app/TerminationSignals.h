#pragma once

#include <QObject>

#include <array>

namespace tarvelo::app {

// Turns the system's requests to end (SIGTERM, SIGINT, SIGHUP) into a signal of the event loop, so
// that the program can leave its loop and put away what it holds. One a process.
class TerminationSignals final : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

Q_SIGNALS:
    void terminationRequested();

private:
    void drain();

    std::array<int, 2> m_pipe{-1, -1}; // read end, write end
};

} // namespace tarvelo::app
