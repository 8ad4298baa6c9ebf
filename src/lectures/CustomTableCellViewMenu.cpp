#include "lectures/CustomTableCellView.h"

#include "lectures/LectureRowHost.h"
#include "widgets/ImageButton.h"
#include "widgets/LightPalette.h"

#include <QAction>
#include <QMenu>
#include <QMouseEvent>
#include <QObject>

#include <functional>
#include <utility>

namespace tarvelo::lectures {

namespace {

void insertItem(QMenu &menu, int position, const char *title, const char *actionName,
                std::function<void()> action)
{
    auto *item = new QAction(QString::fromLatin1(title), &menu);
    item->setObjectName(QString::fromLatin1(actionName));
    QObject::connect(item, &QAction::triggered, &menu, std::move(action));
    menu.insertAction(menu.actions().value(position), item);
}

} // namespace

// The base class hears the press first.
void CustomTableCellView::rightMouseDown(QMouseEvent *event)
{
    QFrame::mousePressEvent(event);
    getMenu()->popup(event->globalPosition().toPoint());
    event->accept();
}

void CustomTableCellView::rightMouseDown_New(QMouseEvent *event)
{
    QFrame::mousePressEvent(event);
    event->accept();
    if (QMenu *menu = exportMenu())
        menu->popup(event->globalPosition().toPoint());
}

QMenu *CustomTableCellView::exportMenu()
{
    if (!m_host || !m_host->isSupportedIniTunes(this))
        return nullptr;
    QMenu *menu = newMenu();
    insertItem(*menu, 0, "Export file to iTunes", "exportAction", [this] { exportAction(); });
    return menu;
}

QMenu *CustomTableCellView::newMenu()
{
    closeMenu();
    m_menu = new QMenu(QStringLiteral("Contextual Menu"), this);
    widgets::setLightPalette(*m_menu);
    // Its title shows nowhere. Who listens wants to know whose menu it is.
    m_menu->setAccessibleName(accessibleName());
    // The command that was chosen is sent after the menu has gone from the screen.
    connect(m_menu, &QMenu::aboutToHide, m_menu, &QObject::deleteLater);
    return m_menu;
}

// Not deleted here and now: it may be the one whose command is being carried out.
void CustomTableCellView::closeMenu()
{
    if (!m_menu)
        return;
    m_menu->close();
    m_menu->deleteLater();
    m_menu = nullptr;
}

// Whether the music library takes the file is asked for and changes nothing here: the export has a
// menu of its own.
QMenu *CustomTableCellView::getMenu()
{
    if (m_host)
        m_host->isSupportedIniTunes(this);
    QMenu *menu = newMenu();
    insertItem(*menu, 0, "Edit", "editAction", [this] { editAction(); });
    insertItem(*menu, 1, "Delete", "deleteAction", [this] { deleteAction(); });
    menu->addSeparator();
    insertItem(*menu, 3, "Show in Finder", "browseAction", [this] { browseAction(); });
    insertItem(*menu, 4, "Share via Email", "shareAction", [this] { shareAction(); });
    return menu;
}

// The button itself is the sender, as for a click on it; one that is disabled does nothing.
void CustomTableCellView::editAction()
{
    m_btnEdit->click();
}

void CustomTableCellView::deleteAction()
{
    m_btnDelete->click();
}

void CustomTableCellView::browseAction()
{
    m_btnBrowse->click();
}

void CustomTableCellView::exportAction()
{
    m_btnExport->click();
}

void CustomTableCellView::shareAction()
{
    m_btnEmail->click();
}

void CustomTableCellView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::RightButton)
        QFrame::mousePressEvent(event);
    else if (event->modifiers() & Qt::ControlModifier)
        rightMouseDown_New(event);
    else
        rightMouseDown(event);
}

} // namespace tarvelo::lectures
