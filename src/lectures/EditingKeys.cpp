#include "lectures/EditingKeys.h"

#include "audio/RecordingOutlets.h"
#include "widgets/ImageButton.h"

#include <QKeySequence>
#include <QLineEdit>
#include <QObject>
#include <QShortcut>
#include <QTextEdit>
#include <QWidget>

#include <functional>
#include <memory>
#include <utility>

namespace tarvelo::lectures {

using widgets::ImageButton;

namespace {

const QList<Qt::Key> PlayKeys{Qt::Key_F8, Qt::Key_MediaTogglePlayPause};

void onKey(QWidget &place, const QKeySequence &key, std::function<void()> run)
{
    auto *shortcut = new QShortcut(key, &place);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &place, std::move(run));
}

// The first of the buttons that shows is pressed; the keyboard stays where it is.
void pressWithKeys(QWidget &window, const QKeySequence &keys, const QList<ImageButton *> &buttons)
{
    for (ImageButton *button : buttons)
        button->setKeys(keys);
    onKey(window, keys, [buttons] {
        for (ImageButton *button : buttons) {
            if (button->isVisible()) {
                button->click();
                return;
            }
        }
    });
}

// A button that has the keyboard loses it to whichever control is next when its press disables it.
void handKeyboardOver(ImageButton &from, ImageButton &to)
{
    const auto hadFocus = std::make_shared<bool>(false);
    QObject::connect(&from, &ImageButton::pressed, &to,
                     [&from, hadFocus] { *hadFocus = from.hasFocus(); });
    QObject::connect(&from, &ImageButton::clicked, &to, [&from, &to, hadFocus] {
        if (*hadFocus && !from.isEnabled() && to.isEnabled())
            to.setFocus(Qt::ShortcutFocusReason);
    });
}

} // namespace

void doneWithControlReturn(QWidget &place, ImageButton &done)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        onKey(place, QKeySequence(Qt::CTRL | key), [&done] { done.click(); });
}

void returnGoesOnToNotes(QLineEdit &subject, QTextEdit &notes)
{
    QObject::connect(&subject, &QLineEdit::returnPressed, &notes,
                     [&notes] { notes.setFocus(Qt::OtherFocusReason); });
}

void escapeCloses(QWidget &window)
{
    for (const QKeySequence &key :
         {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_W)})
        onKey(window, key, [&window] { window.close(); });
}

void playAndPauseWithF8(QWidget &place, ImageButton &play, ImageButton &pause,
                        const QList<Qt::Key> &alsoBy)
{
    for (const Qt::Key key : alsoBy + PlayKeys)
        onKey(place, QKeySequence(key),
              [&play, &pause] { play.isEnabled() ? play.click() : pause.click(); });
    handKeyboardOver(play, pause);
    handKeyboardOver(pause, play);
}

void recordWithKeys(const audio::RecordingOutlets &controls)
{
    QWidget &window = *controls.newNoteWindow;
    const QKeySequence record(Qt::CTRL | Qt::Key_R);
    pressWithKeys(window, record, {controls.btnStartRecord, controls.btnPauseResumeRecording});
    pressWithKeys(window, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R), {controls.btnStopRecord});
    pressWithKeys(window, QKeySequence(Qt::CTRL | Qt::Key_T), {controls.btnTimeTag});
    // The button that stopped the take plays it then; it never stops a take by this key.
    ImageButton *const stop = controls.btnStopRecord;
    for (const Qt::Key key : PlayKeys)
        onKey(window, QKeySequence(key), [stop] {
            if (stop->actionName() != "stopRecording")
                stop->click();
        });
}

} // namespace tarvelo::lectures
