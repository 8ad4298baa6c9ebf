#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

namespace tarvelo::store {

// The database files of one kind in a folder, each named by the local time of its making, so that
// names sort by the time: "TarveloInfo 2024-03-05 10.00.00.000.db".
class DatedFiles final
{
public:
    // `kind` begins the names.
    DatedFiles(QString folder, const QString &kind);

    const QString &folder() const { return m_folder; }
    // Oldest first, without files of another kind.
    QStringList names() const;
    // Invalid for the name of another kind.
    QDateTime madeAt(const QString &name) const;
    QString nameOf(const QDateTime &made) const;
    QString pathOf(const QString &name) const { return m_folder + u'/' + name; }
    // The file that holds room for the next one, of whichever kind.
    QString roomPath() const { return pathOf(QStringLiteral(".room")); }

private:
    QString m_folder;
    QString m_nameFormat;
    QString m_nameFilter;
};

} // namespace tarvelo::store
