#pragma once

#include "audio/LeftLectures.h"
#include "audio/engine/AudioPlayer.h"

#include <QObject>

#include <memory>

class QDialog;
class QLabel;
class QPushButton;
class QWidget;

namespace tarvelo::engine {
class AudioEngine;
}
namespace tarvelo::platform {
class Dates;
}

namespace tarvelo::app {

// The sheet of the main window that offers, one after the other, the lectures that a process left
// which did not live to store them: to keep, to listen to first, or to discard. Closing it decides
// nothing.
class LeftLectureSheet final : public QObject, public engine::AudioPlayerDelegate
{
    Q_OBJECT

public:
    // All must outlive this object, which parents its sheet to `mainWindow`.
    LeftLectureSheet(audio::LeftLectures &left, const platform::Dates &dates,
                     engine::AudioEngine &engine, QWidget &mainWindow);
    ~LeftLectureSheet() override;

    QDialog *sheet() const { return m_sheet; }
    // Shows nothing when nothing is left; waits for the main window when that is not on screen.
    void offer();

    bool eventFilter(QObject *watched, QEvent *event) override;
    void audioPlayerDidFinishPlayingSuccessfully(engine::AudioPlayer *player,
                                                 bool successfully) override;

Q_SIGNALS:
    // Its row is stored, or will be as soon as there is room for it.
    void lectureKept();

private:
    void build();
    void showFirst();
    // Sheet and names, to what is shown.
    void fit();
    void goOn();
    void keep();
    void discard();
    void listenOrPause();
    void stopListening();
    void showWhetherPlaying();

    audio::LeftLectures &m_left;
    const platform::Dates &m_dates;
    engine::AudioEngine &m_engine;
    QWidget &m_mainWindow;
    QList<audio::LeftLectures::LeftLecture> m_waiting; // the first of them is shown
    std::unique_ptr<engine::AudioPlayer> m_player;
    QDialog *m_sheet; // child of the main window, and all below are its
    QLabel *m_explained = nullptr;
    QLabel *m_subject = nullptr;
    QLabel *m_day = nullptr;
    QLabel *m_length = nullptr;
    QLabel *m_outcome = nullptr;
    QPushButton *m_listen = nullptr;
    QPushButton *m_keep = nullptr;
};

} // namespace tarvelo::app
