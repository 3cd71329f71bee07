#include "tests/support/environment.h"

#include <QtGlobal>

ScopedEnvironment::ScopedEnvironment(const char *name, const QByteArray &value)
    : m_name(name)
    , m_before(qgetenv(name))
    , m_wasSet(qEnvironmentVariableIsSet(name))
{
    if (value.isNull())
        qunsetenv(name);
    else
        qputenv(name, value);
}

ScopedEnvironment::~ScopedEnvironment()
{
    if (m_wasSet)
        qputenv(m_name.constData(), m_before);
    else
        qunsetenv(m_name.constData());
}
