#include "app/AppMenus.h"

#include "app/Help.h"
#include "platform/HighContrast.h"
#include "platform/Texts.h"
#include "widgets/LightPalette.h"

#include <QAction>
#include <QColor>
#include <QKeyCombination>
#include <QKeySequence>
#include <QMenu>
#include <QPalette>
#include <QPoint>
#include <QShortcut>
#include <QWidget>

#include <algorithm>

namespace tarvelo::app {

namespace {

using platform::text;

struct Entry
{
    Command command;
    const char *titleKey;
    const char *name;
    QKeyCombination shortcut;
    bool beginsGroup;
};

constexpr QKeyCombination NoKeys(Qt::Key(0));

// In the order of the commands, which is also that of the menus.
constexpr std::array<Entry, static_cast<std::size_t>(Command::Count)> entries()
{
    return {{
        {Command::NewLecture, "MENU_NEW_LECTURE", "newLecture", Qt::CTRL | Qt::Key_N, false},
        {Command::AllList, "MENU_ALL_LIST", "allList", Qt::CTRL | Qt::Key_L, true},
        {Command::FoldList, "MENU_FOLD_LIST", "foldList", Qt::Key_F9, false},
        {Command::ShowFolder, "MENU_SHOW_FOLDER", "showFolder", Qt::CTRL | Qt::Key_O, false},
        {Command::BringLecturesBack, "MENU_BRING_LECTURES_BACK", "bringLecturesBack", NoKeys,
         false},
        {Command::ShowPreferences, "MENU_PREFERENCES", "preferences", Qt::CTRL | Qt::Key_Comma,
         true},
        {Command::CloseWindow, "MENU_CLOSE_WINDOW", "closeWindow", Qt::CTRL | Qt::Key_W, true},
        {Command::Quit, "MENU_QUIT", "quit", Qt::CTRL | Qt::Key_Q, false},
        {Command::Open, "MENU_OPEN", "statusOpen", NoKeys, false},
        {Command::NewLectureFromOutside, "MENU_NEW_LECTURE", "statusNewLecture", NoKeys, false},
        {Command::PreferencesFromOutside, "MENU_PREFERENCES", "statusPreferences", NoKeys, true},
        {Command::QuitFromStatusItem, "MENU_QUIT", "statusQuit", NoKeys, false},
    }};
}

constexpr bool haveEachItsPlace()
{
    std::size_t place = 0;
    return std::ranges::all_of(entries(), [&place](const Entry &entry) {
        return entry.titleKey && static_cast<std::size_t>(entry.command) == place++;
    });
}
static_assert(haveEachItsPlace());

bool isLight(const QColor &ground)
{
    return platform::contrastOf(ground, Qt::white) < platform::contrastOf(ground, Qt::black);
}

struct HelpEntry
{
    int tag;
    QString title;
    QKeySequence shortcut;
    bool beginsGroup;
};

QList<HelpEntry> helpEntries()
{
    return {
        {Help::Guide, text("MENU_GUIDE"), Qt::Key_F1, false},
        {Help::WebPage, text("MENU_WEB_PAGE"), {}, true},
        {Help::StorePage, text("MENU_STORE_PAGE"), {}, false},
        {Help::MorePrograms, text("MENU_MORE_PROGRAMS"), {}, false},
        {Help::AboutPage, text("MENU_ABOUT"), {}, true},
    };
}

} // namespace

AppMenus::AppMenus(QWidget &mainWindow, const std::function<void(Command)> &run,
                   const std::function<void(QAction *)> &showHelp)
{
    m_mainMenu.setObjectName(QStringLiteral("mainMenu"));
    m_statusMenu.setObjectName(QStringLiteral("statusMenu"));
    m_mainMenu.setAccessibleName(text("MENU_MAIN"));
    // They belong to the windows, also in colour. The status menu is part of the desktop's bar, and
    // dark where that is.
    widgets::setLightPalette(m_mainMenu);
    widgets::setLightPalette(m_helpMenu);
    if (isLight(m_statusMenu.palette().color(QPalette::Base)))
        widgets::setLightPalette(m_statusMenu);
    for (const Entry &entry : entries()) {
        const Command command = entry.command;
        QMenu &menu = command < Command::Open ? m_mainMenu : m_statusMenu;
        if (entry.beginsGroup)
            menu.addSeparator();
        QAction *action = menu.addAction(text(entry.titleKey));
        action->setObjectName(QLatin1String(entry.name));
        action->setShortcut(QKeySequence(entry.shortcut));
        action->setShortcutContext(command == Command::CloseWindow ? Qt::WindowShortcut
                                                                   : Qt::ApplicationShortcut);
        connect(action, &QAction::triggered, this, [run, command] { run(command); });
        m_actions[static_cast<std::size_t>(command)] = action;
        if (command == Command::ShowPreferences)
            addHelpMenu(showHelp);
    }
    mainWindow.addActions(m_mainMenu.actions());
    mainWindow.addActions(m_helpMenu.actions());
}

void AppMenus::addHelpMenu(const std::function<void(QAction *)> &showHelp)
{
    m_helpMenu.setObjectName(QStringLiteral("helpMenu"));
    m_helpMenu.setTitle(text("MENU_HELP"));
    for (const HelpEntry &entry : helpEntries()) {
        if (entry.beginsGroup)
            m_helpMenu.addSeparator();
        QAction *action = m_helpMenu.addAction(entry.title);
        Help::setTag(*action, entry.tag);
        action->setShortcut(entry.shortcut);
        action->setShortcutContext(Qt::ApplicationShortcut);
        connect(action, &QAction::triggered, this, [showHelp, action] { showHelp(action); });
    }
    m_mainMenu.addMenu(&m_helpMenu);
}

void AppMenus::openWithF10(QWidget &button)
{
    connect(new QShortcut(Qt::Key_F10, &button), &QShortcut::activated, this, [this, &button] {
        m_mainMenu.popup(button.mapToGlobal(QPoint(0, button.height())));
        m_mainMenu.setActiveAction(m_mainMenu.actions().constFirst());
    });
}

} // namespace tarvelo::app
