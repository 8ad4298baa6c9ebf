#pragma once

#include "audio/engine/AudioRecorder.h"
#include "audio/engine/Hearing.h"
#include "audio/engine/RecorderSettings.h"

#include <QTimer>

#include <memory>
#include <string>

namespace tarvelo::engine {

class PulseCapture;
class Take;

// A recorder over the session's sound server. Connects when it is prepared, lets go when it is
// stopped; it can be prepared again then, for another take in the same place.
class SoundServerRecorder final : public AudioRecorder
{
public:
    SoundServerRecorder(std::string path, const RecorderSettings &settings);
    ~SoundServerRecorder() override;

    void setDelegate(AudioRecorderDelegate *delegate) override;
    bool prepareToRecord() override;
    bool record() override;
    void pause() override;
    void stop() override;
    double currentTime() const override;
    SoundHeard soundHeard() const override;
    // There is no meter yet.
    void setMeteringEnabled(bool) override {}
    void updateMeters() override {}

private:
    std::string m_path;
    RecorderSettings m_settings;
    AudioRecorderDelegate *m_delegate = nullptr;
    double m_lastTime = 0; // of the take before
    std::unique_ptr<Take> m_take;
    std::unique_ptr<PulseCapture> m_capture; // gone before the take that it fills
    bool m_isComplete = false;
    QTimer m_tellDelegate;
};

} // namespace tarvelo::engine
