#pragma once

#include "widgets/Menu.h"

#include <QObject>

#include <array>
#include <cstddef>
#include <functional>

class QAction;
class QMenu;
class QWidget;

namespace tarvelo::app {

enum class Command {
    NewLecture,
    AllList,
    FoldList,
    ShowFolder,
    BringLecturesBack,
    ShowPreferences,
    CloseWindow,
    Quit,
    // Of the status item alone, which also brings the application forward.
    Open,
    NewLectureFromOutside,
    PreferencesFromOutside,
    QuitFromStatusItem,
    Count
};

// The two menus of the program, the main window's and the status item's, and the shortcuts, which
// also work while no menu is open. What a command does is not known here.
class AppMenus final : public QObject
{
    Q_OBJECT

public:
    // `run` hears of every command that is chosen. Shortcuts work in `mainWindow`, and those that
    // are not for one window only in the other windows too, while it is on the screen.
    // `showHelp` hears of every entry of the help menu, which bears its tag.
    AppMenus(QWidget &mainWindow, const std::function<void(Command)> &run,
             const std::function<void(QAction *)> &showHelp);

    // F10 in the window of `button` opens the main menu under it, at its first command.
    void openWithF10(QWidget &button);

    QMenu &mainMenu() { return m_mainMenu; }
    QMenu &helpMenu() { return m_helpMenu; }
    QMenu &statusMenu() { return m_statusMenu; }
    QAction *action(Command command) const { return m_actions[static_cast<std::size_t>(command)]; }

private:
    void addHelpMenu(const std::function<void(QAction *)> &showHelp);

    std::array<QAction *, static_cast<std::size_t>(Command::Count)> m_actions{};
    widgets::Menu m_mainMenu;
    widgets::Menu m_helpMenu; // in the main menu
    widgets::Menu m_statusMenu;
};

} // namespace tarvelo::app
