#include "settings/backup.h"
#include "tools/qaz-theme/commands.h"
#include "tools/qaz-theme/output.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

QString absolute(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QVector<Backup> newestFirst()
{
    QVector<Backup> copies = backups();
    std::reverse(copies.begin(), copies.end());
    return copies;
}

/// When the copy was made, from its name, in local time.
QString timeOf(const Backup &backup)
{
    QDateTime time = QDateTime::fromString(QFileInfo(backup.copy).fileName().section(QLatin1Char('.'), 0, 0),
                                           QStringLiteral("yyyyMMdd'T'HHmmss"));
    time.setTimeSpec(Qt::UTC);
    return time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

/// The copy with that number in the list, the copy itself, or the newest one of a file; an empty one for no such copy.
Backup chosenCopy(const QString &text)
{
    const QVector<Backup> copies = newestFirst();
    const QString path = absolute(text);
    const Backup numbered = copies.value(text.toInt() - 1);
    const auto *named = std::find_if(copies.begin(), copies.end(), [&path](const Backup &each) {
        return each.copy == path || each.original == path;
    });
    return numbered.copy.isEmpty() && named != copies.end() ? *named : numbered;
}

} // namespace

Status listBackups(const Arguments &arguments)
{
    const QString file = arguments.operands.isEmpty() ? QString() : absolute(arguments.operands.constFirst());
    QVector<JsonObject> objects;
    QStringList lines;
    int number = 0;
    for (const Backup &backup : newestFirst()) {
        ++number; // the same whether all copies are listed or some
        if (!file.isEmpty() && backup.original != file)
            continue;
        JsonObject object;
        object.add(QStringLiteral("number"), number);
        object.add(QStringLiteral("time"), timeOf(backup));
        object.add(QStringLiteral("original"), backup.original);
        object.add(QStringLiteral("copy"), backup.copy);
        objects.append(object);
        lines.append(QStringLiteral("%1  %2  %3  %4")
                         .arg(number, 3)
                         .arg(timeOf(backup), backup.original, backup.copy));
    }
    JsonObject all;
    all.add(QStringLiteral("backups"), objects);
    return print(arguments.json, all, lines);
}

Status restore(const Arguments &arguments)
{
    const QString text = arguments.operands.constFirst();
    const Backup backup = chosenCopy(text);
    if (backup.copy.isEmpty())
        return complainOf({QStringLiteral("There is no copy '%1'; see qaz-theme backups").arg(text)});
    const bool isThemeFile = backup.original == absolute(arguments.themeFile);
    const ThemeChanges changes = isThemeFile ? differences(arguments.themeFile, backup.copy) : ThemeChanges();
    QString error;
    if (!arguments.dryRun && !restoreCopy(backup, &error))
        return fail(QStringLiteral("Can't restore %1: %2").arg(backup.original, error));
    if (!arguments.quiet && !arguments.json)
        printLine(QStringLiteral("%1: restored from %2").arg(backup.original, backup.copy));
    return tell(changes, arguments);
}
