#pragma once

#include <QByteArray>
#include <QFile>

namespace tarvelo::tests {

// Sets a variable for this process and its children while it lives.
class EnvironmentVariable final
{
public:
    EnvironmentVariable(const char *name, const QString &value)
        : m_name(name)
        , m_wasSet(qEnvironmentVariableIsSet(name))
        , m_before(qgetenv(name))
    {
        qputenv(name, QFile::encodeName(value));
    }
    EnvironmentVariable(const EnvironmentVariable &) = delete;
    EnvironmentVariable &operator=(const EnvironmentVariable &) = delete;
    ~EnvironmentVariable()
    {
        if (m_wasSet)
            qputenv(m_name, m_before);
        else
            qunsetenv(m_name);
    }

private:
    const char *m_name;
    bool m_wasSet;
    QByteArray m_before;
};

} // namespace tarvelo::tests
