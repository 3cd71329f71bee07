#pragma once

#include "tests/support/testing.h"

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
    Q_DISABLE_COPY(ScopedEnvironment)

private:
    void set(const QByteArray &value) const { value.isNull() ? qunsetenv(m_name) : qputenv(m_name, value); }

    const char *m_name;
    QByteArray m_before; // null: unset
};
