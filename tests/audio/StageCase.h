#pragma once

#include "support/FakeAudioEngine.h"
#include "support/RecordingStage.h"
#include "support/TestCase.h"

#include <optional>

namespace tarvelo::tests {

// The base of tests of recording and playing without sound: every test has a stage of its own.
// Needs tarvelo_audio and tarvelo_resources.
class StageCase : public TestCase
{
protected:
    void prepare() override
    {
        m_engine.emplace();
        m_stage.emplace(*m_engine);
    }
    void finish() override
    {
        m_stage.reset();
        m_engine.reset();
    }

    RecordingWindow &window() { return m_stage->window; }
    audio::Playback &playback() { return m_stage->playback; }
    audio::RecordingControl &control() { return m_stage->control; }

    std::optional<FakeAudioEngine> m_engine;
    std::optional<RecordingStage> m_stage;
};

} // namespace tarvelo::tests
