#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace tarvelo::tests {

// Empty when it cannot be read.
inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Takes the place of what the file held before.
[[nodiscard]] inline bool writeContent(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace tarvelo::tests
