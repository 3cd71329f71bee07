#include "settings/backup.h"
#include "settings/themepackage.h"
#include "tools/qaz-theme/commands.h"
#include "tools/qaz-theme/output.h"

#include <QFileInfo>
#include <QJsonArray>

Status pack(const Arguments &arguments)
{
    const QString path = QFileInfo(arguments.operands.constFirst()).absoluteFilePath();
    if (!isReadable(arguments.themeFile))
        return Failure;
    QStringList missing;
    QString error;
    if (!arguments.dryRun && !packTheme(arguments.themeFile, path, &missing, &error))
        return fail(QStringLiteral("Can't pack %1: %2").arg(path, error));
    for (const QString &file : qAsConst(missing))
        complain(QStringLiteral("%1 is not there and was not packed").arg(file));
    JsonObject object;
    object.add(QStringLiteral("packed"), path);
    object.add(QStringLiteral("missing"), QJsonArray::fromStringList(missing));
    if (arguments.json || !arguments.quiet)
        print(arguments.json, object, {path});
    return Success;
}

Status unpack(const Arguments &arguments)
{
    const QString path = arguments.operands.constFirst();
    if (!isReadable(path, true) || !isReadable(arguments.themeFile))
        return Failure;
    UnpackedTheme theme;
    QString error;
    if (!theme.read(path, &error))
        return complainOf({QStringLiteral("Can't unpack %1: %2").arg(path, error)});
    if (const QStringList wrong = misfits(theme.values()); !wrong.isEmpty())
        return complainOf(wrong);
    const QStringList targets = theme.targets();
    if (!arguments.dryRun) {
        if (!changesBy(theme.values(), arguments.themeFile).isEmpty())
            backUp(arguments.themeFile, &error);
        if (!error.isEmpty() || !theme.place(&error))
            return fail(QStringLiteral("Can't unpack %1: %2").arg(path, error));
    }
    if (!arguments.quiet && !arguments.json)
        print(false, {}, targets);
    return storeValues(theme.values(), arguments);
}
