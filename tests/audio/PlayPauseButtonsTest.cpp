#include "audio/PlayPauseButtons.h"

#include "support/FakeAudioEngine.h"
#include "support/TestCase.h"
#include "widgets/ImageButton.h"

#include <memory>

using tarvelo::audio::PlayPauseButtons;
using tarvelo::tests::FakeAudioEngine;
using tarvelo::tests::inOrder;

class PlayPauseButtonsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void playingOffersThePause()
    {
        m_buttons.offerPlay();

        m_buttons.pressed(Play, *m_player);

        QCOMPARE(m_engine.takeAsked(), inOrder({"player play"}));
        QVERIFY(canOnlyPause());
    }

    void pausingOffersToPlay()
    {
        m_buttons.offerPause();

        m_buttons.pressed(Pause, *m_player);

        QCOMPARE(m_engine.takeAsked(), inOrder({"player pause"}));
        QVERIFY(m_play.isEnabled());
        QVERIFY(!m_pause.isEnabled());
    }

    void anotherTagDoesNothingToThePlayerAndOffersThePause()
    {
        m_buttons.offerPlay();

        m_buttons.pressed(-1, *m_player);

        QCOMPARE(m_engine.takeAsked(), QStringList());
        QVERIFY(canOnlyPause());
    }

    void withNothingToPlayNeitherCanBePressed()
    {
        m_buttons.offerNothing();

        QVERIFY(!m_play.isEnabled());
        QVERIFY(!m_pause.isEnabled());
    }

private:
    static constexpr int Play = 7;
    static constexpr int Pause = 0;

    void prepare() override
    {
        m_player = m_engine.makePlayer("a lecture");
        m_engine.takeAsked();
    }
    bool canOnlyPause() const { return m_pause.isEnabled() && !m_play.isEnabled(); }

    FakeAudioEngine m_engine;
    std::unique_ptr<tarvelo::engine::AudioPlayer> m_player;
    tarvelo::widgets::ImageButton m_play;
    tarvelo::widgets::ImageButton m_pause;
    PlayPauseButtons m_buttons{&m_play, &m_pause, Play, Pause};
};

QTEST_MAIN(PlayPauseButtonsTest)
#include "PlayPauseButtonsTest.moc"
