#include "tools/qaz-theme/valuecommands.h"

#include "base/atomicfile.h"
#include "freedesktop/dataroot.h"
#include "platform/qazsettings.h"
#include "settings/themekeys.h"
#include "tools/qaz-theme/commands.h"
#include "tools/qaz-theme/output.h"

#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

#include <algorithm>

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
    object.add(QStringLiteral("kind"), QString::fromLatin1(kindName(key.kind)));
    if (key.kind == KeyKind::Number) {
        object.add(QStringLiteral("minimum"), key.minimum);
        object.add(QStringLiteral("maximum"), key.maximum);
    }
    if (const QStringList words = closedSet(key); !words.isEmpty())
        object.add(QStringLiteral("values"), words);
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

/// Known keys in the order of the pages, then the others as they came.
QStringList inPageOrder(QStringList keys)
{
    const auto place = [](const QString &name) {
        const ThemeKey *key = findThemeKey(name);
        return key ? key - std::begin(themeKeys) : std::ptrdiff_t(std::size(themeKeys));
    };
    std::stable_sort(keys.begin(), keys.end(), [&place](const QString &left, const QString &right) {
        return place(left) < place(right);
    });
    return keys;
}

} // namespace

bool isReadable(const QString &path)
{
    const FileContent file = readRegularFile(path);
    if (file.state == FileState::Unreadable)
        complain(QStringLiteral("Can't read %1: %2").arg(path, file.error));
    return file.state != FileState::Unreadable;
}

bool isThere(const QString &path)
{
    if (!isReadable(path))
        return false;
    if (!QFileInfo::exists(path))
        complain(QStringLiteral("%1 does not exist").arg(path));
    return QFileInfo::exists(path);
}

Status complainOf(const QStringList &errors)
{
    for (const QString &error : errors)
        complain(error);
    return errors.isEmpty() ? Success : Misuse;
}

void tell(const ThemeChanges &changes, const Arguments &arguments)
{
    if (!arguments.quiet)
        printChanges(changes, arguments.json);
    if (!arguments.dryRun && !announce(changes) && !arguments.quiet)
        complain(QStringLiteral("No X display: nobody was told of the changes"));
}

Status storeValues(const ThemeValues &values, const Arguments &arguments)
{
    const ThemeChanges changes = changesBy(values, arguments.themeFile);
    QString error;
    if (!arguments.dryRun && !changes.isEmpty() && !writeChanges(changes, arguments.themeFile, &error)) {
        complain(error);
        return Failure;
    }
    tell(changes, arguments);
    return Success;
}

Status getValues(const Arguments &arguments)
{
    if (!isReadable(arguments.themeFile))
        return Failure;
    QazSettings store(arguments.themeFile);
    store.sync(true);
    Status status = Success;
    JsonObject object;
    for (const QString &key : arguments.json ? inPageOrder(arguments.operands) : arguments.operands) {
        if (!findThemeKey(key) && !store.value(key).isValid()) {
            complain(QStringLiteral("%1 is not set and has no default").arg(key));
            status = NotSame;
        } else if (arguments.json) {
            object.add(key, themeValue(store, key));
        } else {
            printLine(themeValue(store, key));
        }
    }
    if (arguments.json)
        print(object);
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
        && !removeKeys(arguments.operands, arguments.themeFile, &error)) {
        complain(QStringLiteral("Can't write %1: %2").arg(arguments.themeFile, error));
        return Failure;
    }
    tell(changes, arguments);
    return Success;
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
    for (const ThemeKey *key : matchingKeys(arguments.operands.value(0))) {
        const QString name = QLatin1String(key->name);
        if (arguments.json) {
            object.add(name, described(*key, store));
            continue;
        }
        const QString value = themeValue(store, name);
        const QString defaultText = QString::fromLatin1(key->defaultText);
        printLine(QStringLiteral("%1 %2 %3 %4 %5")
                      .arg(QLatin1String(differs(*key, defaultText, value) ? "*" : " "))
                      .arg(name, -24)
                      .arg(value.isEmpty() ? QStringLiteral("\"\"") : value, -20)
                      .arg(defaultText.isEmpty() ? QStringLiteral("\"\"") : defaultText, -20)
                      .arg(meaning(*key)));
    }
    if (arguments.json)
        print(object);
    return Success;
}

Status diffFiles(const Arguments &arguments)
{
    const QString first = arguments.operands.value(0);
    const QString second = arguments.operands.value(1);
    for (const QString &path : arguments.operands) {
        if (!isThere(path))
            return Failure;
    }
    const QString from = first.isEmpty() ? QString() : second.isEmpty() ? arguments.themeFile : first;
    const QString to = first.isEmpty() ? arguments.themeFile : second.isEmpty() ? first : second;
    if (!isReadable(arguments.themeFile))
        return Failure;
    const ThemeChanges changes = differences(from, to);
    if (!arguments.quiet)
        printChanges(changes, arguments.json);
    return changes.isEmpty() ? Success : NotSame;
}

Status applyFile(const Arguments &arguments)
{
    const QString path = arguments.operands.constFirst();
    if (!isThere(path) || !isReadable(arguments.themeFile))
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
    for (const QString &word : qAsConst(words))
        printLine(word);
    return Success;
}
