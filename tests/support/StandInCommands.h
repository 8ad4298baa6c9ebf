#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace tarvelo::tests {

// Commands that stand in for those of the desktop: each writes down the arguments that reached it,
// and does nothing else. While one of these lives, this process and its children find the
// stand-ins first, under their names, and behind them what `Path` says.
class StandInCommands final
{
public:
    enum class Path { TheSystemsBehind, NothingBehind };

    explicit StandInCommands(const QStringList &names, Path path = Path::TheSystemsBehind);
    StandInCommands(const StandInCommands &) = delete;
    StandInCommands &operator=(const StandInCommands &) = delete;
    ~StandInCommands();

    QString folder() const { return m_folder.path(); }
    QString pathOf(const QString &name) const { return m_folder.filePath(name); }
    // The arguments of each call of `name` that has come to its end.
    QList<QStringList> callsOf(const QString &name) const;
    // Makes `name` print `text` on both its streams as well.
    bool makeTalkative(const QString &name, const QString &text) const;

private:
    bool writeCommand(const QString &name, const QByteArray &more = {}) const;

    QTemporaryDir m_folder;
    QTemporaryDir m_records;
    QByteArray m_pathBefore;
};

} // namespace tarvelo::tests
