#pragma once

#include <QString>

class QObject;

namespace tarvelo::platform {
class Workspace;
} // namespace tarvelo::platform

namespace tarvelo::app {

// What the entries of the menus that help or lead outside open. They are one action and differ in
// their tag, a property of the entry: 0 is the guide, every other one an address.
class Help
{
public:
    static constexpr int Guide = 0;
    static constexpr int WebPage = 1;
    static constexpr int StorePage = 3;
    static constexpr int MorePrograms = 5;
    static constexpr int AboutPage = 6; // and any tag that is none of the others

    // `resources` is the folder where the guide lies.
    Help(platform::Workspace &workspace, QString resources);

    // Without a sender, or with one that has no tag, the guide is what helps. A guide that is not
    // there, or an address that nothing can open, is not spoken of.
    void show(const QObject *sender) const;

    static void setTag(QObject &entry, int tag);
    static int tagOf(const QObject *entry);
    static QString addressFor(int tag);

private:
    void openGuide() const;

    platform::Workspace &m_workspace;
    QString m_resources;
};

} // namespace tarvelo::app
