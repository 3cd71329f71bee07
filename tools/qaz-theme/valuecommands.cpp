#include "tools/qaz-theme/commands.h"

#include "base/atomicfile.h"
#include "freedesktop/dataroot.h"
#include "platform/qazsettings.h"
#include "settings/themekeys.h"
#include "tools/qaz-theme/output.h"

#include <QJsonArray>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

namespace {

const char *kindName(KeyKind kind)
{
    constexpr const char *names[] = {"text", "number", "truth", "color", "font", "word", "file"};
    static_assert(std::size(names) == std::size_t(KeyKind::File) + 1);
    return names[int(kind)];
}

JsonObject described(const ThemeKey &key, const QazSettings &store)
{
    const QString value = themeValue(store, QLatin1String(key.name));
    const QString defaultText = QString::fromLatin1(key.defaultText);
    JsonObject object;
    object.add(QStringLiteral("value"), value);
    object.add(QStringLiteral("default"), defaultText);
    object.add(QStringLiteral("differs"), differs(key, defaultText, value));
    object.add(QStringLiteral("set"), store.value(QLatin1String(key.name)).isValid());
    object.add(QStringLiteral("kind"), QLatin1String(kindName(key.kind)));
    if (key.kind == KeyKind::Number) {
        object.add(QStringLiteral("minimum"), key.minimum);
        object.add(QStringLiteral("maximum"), key.maximum);
    }
    if (const QStringList words = closedSet(key); !words.isEmpty())
        object.add(QStringLiteral("values"), QJsonArray::fromStringList(words));
    object.add(QStringLiteral("meaning"), meaning(key));
    return object;
}

/// The keys that \a pattern means: a key's whole name, a pattern with wildcards, or a part of names.
QVector<const ThemeKey *> matchingKeys(const QString &pattern)
{
    if (const ThemeKey *key = findThemeKey(pattern))
        return {key};
    const bool hasWildcard = pattern.contains(QRegularExpression(QStringLiteral("[*?[]")));
    const QString glob = hasWildcard ? pattern : QLatin1Char('*') + pattern + QLatin1Char('*');
    const QRegularExpression expression(QRegularExpression::wildcardToRegularExpression(glob),
                                        QRegularExpression::CaseInsensitiveOption);
    QVector<const ThemeKey *> keys;
    for (const ThemeKey &key : themeKeys) {
        if (expression.match(QLatin1String(key.name)).hasMatch())
            keys.append(&key);
    }
    return keys;
}

QString shown(const QString &value)
{
    return value.isEmpty() ? QStringLiteral("\"\"") : value;
}

void printChanges(const ThemeChanges &changes, const Arguments &arguments)
{
    JsonObject object;
    QStringList lines;
    for (const ThemeChange &change : changes) {
        JsonObject member;
        member.add(QStringLiteral("value"), change.after);
        member.add(QStringLiteral("before"), change.before);
        object.add(change.key, member);
        lines.append(QStringLiteral("%1: %2 -> %3").arg(change.key, change.before, change.after));
    }
    if (!arguments.quiet)
        print(arguments.json, object, lines);
}

} // namespace

bool isReadable(const QString &path, bool mustExist)
{
    const FileContent file = readRegularFile(path);
    if (file.state == FileState::Unreadable)
        complain(QStringLiteral("Can't read %1: %2").arg(path, file.error));
    else if (file.state == FileState::Missing && mustExist)
        complain(QStringLiteral("%1 does not exist").arg(path));
    else
        return true;
    return false;
}

Status complainOf(const QStringList &errors)
{
    for (const QString &error : errors)
        complain(error);
    return Misuse;
}

Status fail(const QString &reason)
{
    complain(reason);
    return Failure;
}

Status tell(const ThemeChanges &changes, const Arguments &arguments)
{
    printChanges(changes, arguments);
    if (!arguments.dryRun && !announce(changes) && !arguments.quiet)
        complain(QStringLiteral("No X display: nobody was told of the changes"));
    return Success;
}

Status storeValues(const ThemeValues &values, const Arguments &arguments)
{
    const ThemeChanges changes = changesBy(values, arguments.themeFile);
    QString error;
    if (!arguments.dryRun && !changes.isEmpty() && !writeChanges(changes, arguments.themeFile, &error))
        return fail(error);
    return tell(changes, arguments);
}

Status getValues(const Arguments &arguments)
{
    if (!isReadable(arguments.themeFile))
        return Failure;
    QazSettings store(arguments.themeFile);
    store.sync(true);
    QStringList keys = arguments.operands;
    if (arguments.json) { // in the order of the pages, then those that no page knows
        for (auto key = std::rbegin(themeKeys); key != std::rend(themeKeys); ++key) {
            if (keys.removeAll(QLatin1String(key->name)) > 0)
                keys.prepend(QLatin1String(key->name));
        }
    }
    Status status = Success;
    JsonObject object;
    QStringList lines;
    for (const QString &key : qAsConst(keys)) {
        if (!findThemeKey(key) && !store.value(key).isValid()) {
            complain(QStringLiteral("%1 is not set and has no default").arg(key));
            status = NotSame;
            continue;
        }
        object.add(key, themeValue(store, key));
        lines.append(themeValue(store, key));
    }
    print(arguments.json, object, lines);
    return status;
}

Status setValues(const Arguments &arguments)
{
    ThemeValues values;
    for (const QString &operand : arguments.operands) {
        const int equals = operand.indexOf(QLatin1Char('='));
        if (equals < 0)
            return complainOf({QStringLiteral("'%1' is not KEY=VALUE").arg(operand)});
        values.append({operand.left(equals), operand.mid(equals + 1)});
    }
    if (const QStringList wrong = misfits(values, arguments.force); !wrong.isEmpty())
        return complainOf(wrong);
    return isReadable(arguments.themeFile) ? storeValues(values, arguments) : Failure;
}

Status unsetKeys(const Arguments &arguments)
{
    QStringList wrong;
    for (const QString &key : arguments.operands) {
        if (!isKeyName(key) || (!findThemeKey(key) && !arguments.force))
            wrong.append(QStringLiteral("%1 is no known key; --force takes it all the same").arg(key));
    }
    if (!wrong.isEmpty())
        return complainOf(wrong);
    if (!isReadable(arguments.themeFile))
        return Failure;
    const ThemeChanges changes = changesWithout(arguments.operands, arguments.themeFile);
    QString error;
    if (!arguments.dryRun && !changes.isEmpty()
        && !removeKeys(arguments.operands, arguments.themeFile, &error))
        return fail(QStringLiteral("Can't write %1: %2").arg(arguments.themeFile, error));
    return tell(changes, arguments);
}

Status listKeys(const Arguments &arguments)
{
    if (!isReadable(arguments.themeFile))
        return Failure;
    // Loaded by this command alone: the others print no text of the pages.
    QTranslator translator;
    if (translator.load(QLocale(), QStringLiteral("qaz-admin-theme"), QStringLiteral("_"),
                        dataRoot() + QLatin1String("/translations")))
        QCoreApplication::installTranslator(&translator);
    QazSettings store(arguments.themeFile);
    store.sync(true);
    JsonObject object;
    QStringList lines;
    for (const ThemeKey *key : matchingKeys(arguments.operands.value(0))) {
        const QString name = QLatin1String(key->name);
        const QString value = themeValue(store, name);
        const QString defaultText = QLatin1String(key->defaultText);
        object.add(name, described(*key, store));
        lines.append(QStringLiteral("%1 %2 %3 %4 %5")
                         .arg(QLatin1String(differs(*key, defaultText, value) ? "*" : " "))
                         .arg(name, -24)
                         .arg(shown(value), -20)
                         .arg(shown(defaultText), -20)
                         .arg(meaning(*key)));
    }
    return print(arguments.json, object, lines);
}

Status diffFiles(const Arguments &arguments)
{
    QStringList files = arguments.operands;
    for (const QString &path : arguments.operands) {
        if (!isReadable(path, true))
            return Failure;
    }
    if (!isReadable(arguments.themeFile))
        return Failure;
    if (files.size() < 2)
        files.prepend(arguments.themeFile);
    if (files.size() < 2)
        files.prepend({}); // the defaults
    const ThemeChanges changes = differences(files.at(0), files.at(1));
    printChanges(changes, arguments);
    return changes.isEmpty() ? Success : NotSame;
}

Status applyFile(const Arguments &arguments)
{
    const QString path = arguments.operands.constFirst();
    if (!isReadable(path, true) || !isReadable(arguments.themeFile))
        return Failure;
    const ThemeValues values = knownValues(path);
    if (const QStringList wrong = misfits(values); !wrong.isEmpty())
        return complainOf(wrong);
    return storeValues(values, arguments);
}

Status complete(const Arguments &arguments)
{
    const QString what = arguments.operands.constFirst();
    QStringList words;
    if (what == QLatin1String("commands")) {
        words = commandNames();
    } else if (what == QLatin1String("keys")) {
        for (const ThemeKey &key : themeKeys)
            words.append(QLatin1String(key.name));
    } else if (const ThemeKey *key = findThemeKey(arguments.operands.value(1))) {
        words = closedSet(*key);
    }
    return print(false, {}, words);
}
