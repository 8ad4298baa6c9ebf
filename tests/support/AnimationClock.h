#pragma once

#include <QAnimationDriver>
#include <QCoreApplication>
#include <QVariantAnimation>

#include <chrono>

namespace tarvelo::tests {

// As long as it lives, animations go on when they are told how much time has passed, and not
// otherwise.
class AnimationClock final : public QAnimationDriver
{
public:
    AnimationClock()
    {
        install();
        m_beat.setStartValue(0);
        m_beat.setEndValue(1);
        m_beat.setLoopCount(-1);
        m_beat.start();
        pass(std::chrono::milliseconds(0));
    }
    ~AnimationClock() override
    {
        m_beat.stop();
        uninstall();
    }

    qint64 elapsed() const override { return m_elapsed; }
    void pass(std::chrono::milliseconds time)
    {
        // What was started since begins now. The toolkit posts itself an event after another for
        // it.
        for (int event = 0; event < 10; ++event)
            QCoreApplication::processEvents();
        m_elapsed += time.count();
        advance();
    }

private:
    qint64 m_elapsed = 0;
    // Keeps the toolkit's own count of time going, which would begin with what has passed since an
    // earlier animation.
    QVariantAnimation m_beat;
};

} // namespace tarvelo::tests
