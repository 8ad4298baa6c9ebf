#include "platform/DetachedCommand.h"

#include <QProcess>

namespace tarvelo::platform {

void runDetached(const QString &program, const QStringList &arguments)
{
    QProcess command;
    command.setProgram(program);
    command.setArguments(arguments);
    command.setStandardInputFile(QProcess::nullDevice());
    command.setStandardOutputFile(QProcess::nullDevice());
    command.setStandardErrorFile(QProcess::nullDevice());
    command.startDetached();
}

} // namespace tarvelo::platform
