#pragma once

#include "support/PrivateSoundServer.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace tarvelo::tests {

// What comes out of the private server's speaker, from now on: mono at 44100 hertz. The listener
// also keeps the speaker from working in blocks of seconds.
class SpeakerRecording final
{
public:
    static constexpr int Rate = 44100;

    // Returns when it hears.
    bool start()
    {
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.start(QStringLiteral("parec"),
                        {QStringLiteral("-d"), PrivateSoundServer::speakerMonitor(),
                         QStringLiteral("--raw"), QStringLiteral("--format=float32le"),
                         QStringLiteral("--rate=44100"), QStringLiteral("--channels=1"),
                         QStringLiteral("--latency-msec=20")});
        return m_process.waitForStarted(Patience) && m_process.waitForReadyRead(Patience);
    }
    ~SpeakerRecording()
    {
        m_process.kill();
        m_process.waitForFinished(Patience);
    }

    std::vector<float> samples()
    {
        m_bytes += m_process.readAllStandardOutput();
        std::vector<float> all(static_cast<std::size_t>(m_bytes.size()) / sizeof(float));
        std::memcpy(all.data(), m_bytes.constData(), all.size() * sizeof(float));
        return all;
    }
    // From the first sound to the last, where silence ends it that lasts a second; empty before.
    std::vector<float> soundBeforeSilence()
    {
        const auto all = samples();
        const auto first = std::ranges::find_if(all, isLoud);
        const auto last = std::find_if(all.rbegin(), all.rend(), isLoud).base();
        if (first == all.end() || all.end() - last < Rate)
            return {};
        return {first, last};
    }
    // Without the event loop.
    bool waitForMore() { return m_process.waitForReadyRead(Patience); }
    bool hearsSound() { return std::ranges::any_of(samples(), isLoud); }

private:
    static constexpr int Patience = 60000;
    static bool isLoud(float sample) { return std::abs(sample) > 0.004F; }

    QProcess m_process;
    QByteArray m_bytes;
};

} // namespace tarvelo::tests
