#include "store/DatedFiles.h"

#include <QDir>

#include <utility>

namespace tarvelo::store {

DatedFiles::DatedFiles(QString folder, const QString &kind)
    : m_folder(std::move(folder))
    , m_nameFormat(u'\'' + kind + QStringLiteral("' yyyy-MM-dd HH.mm.ss.zzz'.db'"))
    , m_nameFilter(kind + QStringLiteral(" *.db"))
{
}

QStringList DatedFiles::names() const
{
    QStringList names = QDir(m_folder).entryList({m_nameFilter}, QDir::Files);
    names.removeIf([this](const QString &name) { return !madeAt(name).isValid(); });
    names.sort();
    return names;
}

QDateTime DatedFiles::madeAt(const QString &name) const
{
    return QDateTime::fromString(name, m_nameFormat);
}

QString DatedFiles::nameOf(const QDateTime &made) const
{
    return made.toString(m_nameFormat);
}

} // namespace tarvelo::store
