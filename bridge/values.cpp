#include "bridge/values.h"

#include "platform/qazsettings.h"

Values::Values(const QString &themeFile)
    : m_themeFile(themeFile)
{
    refresh();
}

Values::~Values() = default;

void Values::reload()
{
    m_announced.clear();
    refresh();
}

void Values::refresh()
{
    m_file = std::make_unique<QazSettings>(m_themeFile);
    m_file->sync(true);
}

void Values::announce(const QString &key, const QString &value)
{
    m_announced.insert(key, value);
}

QString Values::text(const char *key, const char *defaultText) const
{
    const auto announced = m_announced.constFind(QLatin1String(key));
    return announced != m_announced.constEnd() ? *announced : fileText(key, defaultText);
}

QString Values::fileText(const char *key, const char *defaultText) const
{
    return m_file->value(QLatin1String(key), QString::fromLatin1(defaultText)).toString();
}

int Values::number(const char *key, const char *defaultText, int limit) const
{
    return qBound(0, text(key, defaultText).toInt(), limit);
}
