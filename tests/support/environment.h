#pragma once

#include <QByteArray>

/// Sets (or, with a null value, unsets) an environment variable until the end of the scope.
class ScopedEnvironment
{
public:
    ScopedEnvironment(const char *name, const QByteArray &value)
        : m_name(name)
        , m_before(qgetenv(name))
    {
        set(value);
    }
    ~ScopedEnvironment() { set(m_before); }
    ScopedEnvironment(const ScopedEnvironment &) = delete;
    ScopedEnvironment &operator=(const ScopedEnvironment &) = delete;

private:
    void set(const QByteArray &value) const
    {
        value.isNull() ? qunsetenv(m_name.constData()) : qputenv(m_name.constData(), value);
    }

    QByteArray m_name;
    QByteArray m_before; // null: unset
};
