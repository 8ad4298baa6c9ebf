#pragma once

#include "platform/SleepInhibitor.h"

namespace tarvelo::tests {

// A computer that never sleeps, and knows whether it might.
class FakeSleepInhibitor final : public platform::SleepInhibitor
{
public:
    bool isHeld = false;

    void hold() override { isHeld = true; }
    void release() override { isHeld = false; }
};

} // namespace tarvelo::tests
