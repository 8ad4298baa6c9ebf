#pragma once

#include "platform/Places.h"
#include "support/FileContent.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace tarvelo::tests {

// A home of its own for a test: the program's folder is missing at first, as on a first run.
class TemporaryPlaces final
{
public:
    platform::Places places() const
    {
        return {m_dir.path(), QStringLiteral("Tarvelo"), m_dir.filePath(QStringLiteral("Music")),
                m_dir.filePath(QStringLiteral("Resources"))};
    }
    QString folder() const { return m_dir.filePath(QStringLiteral("Tarvelo")); }
    QString databaseFile() const { return folder() + QStringLiteral("/TarveloInfo.db"); }

    // For a test that puts something in the database's place before the program runs.
    void makeFolder() const { QDir().mkpath(folder()); }
    void writeDatabaseFile(const QByteArray &content) const
    {
        makeFolder();
        QFile file(databaseFile());
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
    }
    QByteArray readDatabaseFile() const { return contentOf(databaseFile()); }

private:
    QTemporaryDir m_dir;
};

} // namespace tarvelo::tests
