#include "support/StandInCommands.h"

#include <QDir>
#include <QFile>

namespace tarvelo::tests {

StandInCommands::StandInCommands(const QStringList &names, Path path)
    : m_pathBefore(qgetenv("PATH"))
{
    for (const QString &name : names)
        writeCommand(name);
    QByteArray places = QFile::encodeName(m_folder.path());
    if (path == Path::TheSystemsBehind)
        places += ":/usr/bin:/bin";
    qputenv("PATH", places);
}

StandInCommands::~StandInCommands()
{
    qputenv("PATH", m_pathBefore);
}

// A record gets its name when it is whole.
bool StandInCommands::writeCommand(const QString &name, const QByteArray &more) const
{
    QFile file(pathOf(name));
    const QByteArray record =
        QFile::encodeName(m_records.filePath(name)) + ".$$"; // one for each process
    return file.open(QIODevice::WriteOnly) &&
           file.write("#!/bin/sh\nPATH=/usr/bin:/bin\n" + more + "record=\"" + record +
                      "\"\nprintf '%s\\0' \"$@\" >\"$record.part\"\n"
                      "mv \"$record.part\" \"$record.done\"\n") > 0 &&
           file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

bool StandInCommands::makeTalkative(const QString &name, const QString &text) const
{
    const QByteArray said = "'" + text.toUtf8() + "'";
    return writeCommand(name, "echo " + said + "\necho " + said + " >&2\n");
}

QList<QStringList> StandInCommands::callsOf(const QString &name) const
{
    QList<QStringList> calls;
    const QDir records(m_records.path());
    for (const QString &record : records.entryList({name + QStringLiteral(".*.done")})) {
        QFile file(records.filePath(record));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        QStringList arguments = QString::fromUtf8(file.readAll()).split(QChar::Null);
        arguments.removeLast(); // what follows the last end mark
        calls.append(arguments);
    }
    return calls;
}

} // namespace tarvelo::tests
