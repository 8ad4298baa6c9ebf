#pragma once

#include "support/PrivateSoundServer.h"

#include <QTest>

#include <cmath>
#include <cstring>
#include <vector>

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

    // All since the first sound, once it has been followed by silence for a second; empty before.
    std::vector<float> soundBeforeSilence()
    {
        take();
        if (m_end == 0 || m_samples.size() - m_end < Rate)
            return {};
        return {m_samples.begin() + static_cast<std::ptrdiff_t>(m_begin),
                m_samples.begin() + static_cast<std::ptrdiff_t>(m_end)};
    }
    // The same, waited for in the event loop; empty when it does not come.
    std::vector<float> untilSilence()
    {
        std::vector<float> heard;
        const auto isThere = [&] { return !(heard = soundBeforeSilence()).empty(); };
        return QTest::qWaitFor(isThere, Patience) ? heard : std::vector<float>();
    }
    // All of it, silence too.
    const std::vector<float> &all()
    {
        take();
        return m_samples;
    }
    // Without the event loop.
    bool waitForMore() { return m_process.waitForReadyRead(Patience); }
    bool hearsSound()
    {
        take();
        return m_end > 0;
    }
    // The last so many seconds were silent.
    bool isSilentFor(double seconds)
    {
        take();
        return static_cast<double>(m_samples.size() - m_end) > seconds * Rate;
    }
    // What was heard by now is no longer of interest.
    void forget()
    {
        take();
        m_samples.clear();
        m_begin = m_end = 0;
    }

private:
    static constexpr int Patience = 60000;
    // Looks at every sample once, so that asking often keeps no processor from making sound.
    void take()
    {
        m_bytes += m_process.readAllStandardOutput();
        const auto count = static_cast<std::size_t>(m_bytes.size()) / sizeof(float);
        const std::size_t before = m_samples.size();
        m_samples.resize(before + count);
        std::memcpy(m_samples.data() + before, m_bytes.constData(), count * sizeof(float));
        m_bytes.remove(0, static_cast<qsizetype>(count * sizeof(float)));
        for (std::size_t at = before; at < m_samples.size(); ++at) {
            if (!isLoud(m_samples[at]))
                continue;
            m_begin = m_end == 0 ? at : m_begin;
            m_end = at + 1;
        }
    }
    static bool isLoud(float sample) { return std::abs(sample) > 0.004F; }

    QProcess m_process;
    QByteArray m_bytes; // of an unfinished sample
    std::vector<float> m_samples;
    std::size_t m_begin = 0; // of what is loud
    std::size_t m_end = 0;
};

} // namespace tarvelo::tests
