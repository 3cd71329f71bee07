#pragma once

#include <QByteArray>

/// Sets (or, with a null value, unsets) an environment variable until the end of the scope.
class ScopedEnvironment
{
public:
    ScopedEnvironment(const char *name, const QByteArray &value);
    ~ScopedEnvironment();
    ScopedEnvironment(const ScopedEnvironment &) = delete;
    ScopedEnvironment &operator=(const ScopedEnvironment &) = delete;

private:
    QByteArray m_name;
    QByteArray m_before;
    bool m_wasSet;
};
