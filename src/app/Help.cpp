#include "app/Help.h"

#include "platform/Places.h"
#include "platform/Workspace.h"

#include <QObject>
#include <QUrl>
#include <QVariant>

#include <utility>

namespace tarvelo::app {

namespace {
constexpr const char *Tag = "tag";
}

Help::Help(platform::Workspace &workspace, QString resources)
    : m_workspace(workspace)
    , m_resources(std::move(resources))
{
}

void Help::setTag(QObject &entry, int tag)
{
    entry.setProperty(Tag, tag);
}

// What is no number counts as no tag.
int Help::tagOf(const QObject *entry)
{
    return entry ? entry->property(Tag).toInt() : Guide;
}

// Menus that say the same thing in several places may tag each place apart: 2 and 4 lead where 1
// does.
QString Help::addressFor(int tag)
{
    switch (tag) {
    case WebPage:
    case 2:
    case 4:
        return QStringLiteral(TARVELO_WEB_PAGE);
    case StorePage:
        return QStringLiteral(TARVELO_STORE_PAGE);
    case MorePrograms:
        return QStringLiteral(TARVELO_MORE_PROGRAMS);
    default:
        return QStringLiteral(TARVELO_ABOUT_PAGE);
    }
}

void Help::show(const QObject *sender) const
{
    const int tag = tagOf(sender);
    if (tag == Guide)
        openGuide();
    else
        m_workspace.openURL(QUrl(addressFor(tag), QUrl::StrictMode));
}

void Help::openGuide() const
{
    const QString guide =
        platform::pathForResource(m_resources, QStringLiteral("Guide"), QStringLiteral("pdf"));
    if (!guide.isEmpty())
        m_workspace.openFile(guide);
}

} // namespace tarvelo::app
