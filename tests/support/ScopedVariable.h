#pragma once

#include <QByteArray>

/// Sets a variable of the environment until it goes.
class ScopedVariable
{
public:
    ScopedVariable(const char* name, const char* value)
        : m_name(name)
        , m_before(qgetenv(name))
    {
        qputenv(name, value);
    }
    ~ScopedVariable() { m_before.isNull() ? qunsetenv(m_name) : qputenv(m_name, m_before); }
    Q_DISABLE_COPY_MOVE(ScopedVariable)

private:
    const char* m_name;
    QByteArray m_before;
};
