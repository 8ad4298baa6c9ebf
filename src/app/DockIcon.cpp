#include "app/DockIcon.h"

#include "app/TaskbarEntry.h"
#include "platform/Alerts.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

namespace tarvelo::app {

namespace {

const QString Message = QStringLiteral("You must now restart %1");
const QString InformativeText = QStringLiteral("Your new setting for the Dock icon won't show up "
                                               "until you relaunch this application.");
const QString RelaunchNow = QStringLiteral("Relaunch Now");
const QString Later = QStringLiteral("Later");

} // namespace

DockIcon::DockIcon(const std::vector<QWidget *> &windows, platform::Alerts &alerts, Around around)
    : m_alerts(alerts)
    , m_around(std::move(around))
{
    for (QWidget *window : windows)
        m_entries.push_back(new TaskbarEntry(*window));
}

void DockIcon::startWith(bool shown)
{
    for (TaskbarEntry *entry : m_entries)
        entry->setWanted(shown);
}

void DockIcon::setShowsDockIcon(bool shows)
{
    if (!shows) {
        offerRelaunch();
        return;
    }
    startWith(true);
    m_around.activateIgnoringOtherApps();
}

// In English whatever the language, as all questions of the program are.
void DockIcon::offerRelaunch()
{
    const QString name = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    const int answer = m_alerts.runModal(Message.arg(name), InformativeText, {RelaunchNow, Later});
    if (answer == platform::Alerts::FirstButtonReturn)
        relaunch();
}

// The other process waits for this one to be gone. The path stands between apostrophes as it is:
// one with an apostrophe in it brings no other process, and this one ends all the same; both are
// wanted.
void DockIcon::relaunch()
{
    m_around.onCloseSettingPanel();
    m_around.launch(QStringLiteral("/bin/sh"),
                    {QStringLiteral("-c"), QStringLiteral("sleep 3 ; /usr/bin/env '%1'")
                                               .arg(QCoreApplication::applicationFilePath())});
    m_around.terminate();
}

} // namespace tarvelo::app
