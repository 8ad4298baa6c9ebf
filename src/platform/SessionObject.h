#pragma once

#include <QString>

class QObject;

namespace tarvelo::platform {

// An object on the session bus, under a name that the program owns as long as this lives. Its
// public slots are called from there. The bus is never waited for; the object is there before the
// name is, and who owns the name already keeps it. Without a bus nothing happens.
class SessionObject final
{
public:
    // `object` must outlive this.
    SessionObject(const QString &name, const QString &path, QObject &object);
    SessionObject(const SessionObject &) = delete;
    SessionObject &operator=(const SessionObject &) = delete;
    ~SessionObject();

private:
    QString m_name;
    QString m_path;
};

} // namespace tarvelo::platform
