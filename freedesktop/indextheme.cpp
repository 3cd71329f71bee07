#include "freedesktop/indextheme.h"

#include <QStringList>

IndexThemeGroups parseIndexTheme(const QByteArray &content)
{
    IndexThemeGroups groups;
    QHash<QString, QString> *group = nullptr;
    for (const QByteArray &rawLine : content.split('\n')) {
        const QString line = QString::fromUtf8(rawLine).trimmed();
        if (line.startsWith(QLatin1Char('['))) {
            const int end = line.indexOf(QLatin1Char(']'));
            group = end > 0 ? &groups[line.mid(1, end - 1).trimmed()] : nullptr;
            continue;
        }
        const int equals = line.indexOf(QLatin1Char('='));
        if (!group || equals <= 0 || line.startsWith(QLatin1Char('#')))
            continue;
        const QString key = line.left(equals).trimmed();
        if (!group->contains(key))
            group->insert(key, line.mid(equals + 1).trimmed());
    }
    return groups;
}

QStringList indexThemeList(const QString &value)
{
    QString separated = value;
    QStringList items = separated.replace(QLatin1Char(';'), QLatin1Char(',')).split(QLatin1Char(','));
    for (QString &item : items)
        item = item.trimmed();
    items.removeAll(QString());
    return items;
}
