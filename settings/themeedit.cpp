#include "settings/themeedit.h"

#include "base/editfile.h"
#include "base/keyfiletext.h"
#include "platform/qazsettings.h"
#include "platform/sendcommandtowm.h"
#include "settings/themekeys.h"
#include "settings/wmcommands.h"

#include <algorithm>
#include <memory>

#include <X11/Xlib.h>

namespace {

/// Whether storing \a wanted, in its stored form, in place of \a before is news to anybody.
bool isChange(const QazSettings &store, const ThemeValue &wanted, const QString &before)
{
    const ThemeKey *key = findThemeKey(wanted.key);
    const bool isMissing = !store.value(wanted.key).isValid();
    if (!key || (key->isNewWhenMissing && isMissing))
        return isMissing || before != wanted.value;
    return differs(*key, before, wanted.value);
}

} // namespace

QString themeValue(const QazSettings &store, const QString &key)
{
    const ThemeKey *known = findThemeKey(key);
    const QVariant value = store.value(key);
    if (value.isValid())
        return value.toString();
    return known ? QString::fromLatin1(known->defaultText) : QString();
}

ThemeValues knownValues(const QString &path)
{
    QazSettings store(path);
    store.sync(true);
    ThemeValues values;
    for (const ThemeKey &key : themeKeys) {
        const QString name = QLatin1String(key.name);
        if (const QVariant value = store.value(name); value.isValid())
            values.append({name, value.toString()});
    }
    return values;
}

QStringList misfits(const ThemeValues &values, bool takeUnknown)
{
    QStringList wrong;
    for (const ThemeValue &value : values) {
        const ThemeKey *key = findThemeKey(value.key);
        if (!isKeyName(value.key))
            wrong.append(QStringLiteral("'%1' can't be a key of a theme file").arg(value.key));
        else if (!key && !takeUnknown)
            wrong.append(QStringLiteral("%1 is no known key; --force takes it all the same").arg(value.key));
        else if (key && !fits(*key, value.value))
            wrong.append(QStringLiteral("%1 can't be '%2': it takes %3")
                             .arg(value.key, value.value, allowedValues(*key)));
        else if (!fitsAnyKey(value.value))
            wrong.append(QStringLiteral("%1 can't be '%2': a value is one line of at most 4096 characters")
                             .arg(value.key, value.value));
    }
    return wrong;
}

ThemeChanges changesBy(const ThemeValues &values, const QString &path)
{
    QazSettings store(path);
    store.sync(true);
    ThemeChanges changes;
    for (int i = 0; i < values.size(); ++i) {
        ThemeValue wanted = values.at(i);
        const bool isOverridden = std::any_of(
            values.begin() + i + 1, values.end(),
            [&wanted](const auto &later) { return later.key == wanted.key; });
        if (const ThemeKey *key = findThemeKey(wanted.key))
            wanted.value = storedForm(*key, wanted.value);
        const QString before = themeValue(store, wanted.key);
        if (!isOverridden && isChange(store, wanted, before))
            changes.append({wanted.key, before, wanted.value});
    }
    return changes;
}

ThemeChanges changesWithout(const QStringList &keys, const QString &path)
{
    QazSettings store(path);
    store.sync(true);
    const QazSettings defaults({});
    ThemeChanges changes;
    for (const QString &key : keys) {
        const QString before = themeValue(store, key);
        const QString after = themeValue(defaults, key);
        if (before != after)
            changes.append({key, before, after});
    }
    return changes;
}

ThemeChanges differences(const QString &from, const QString &to)
{
    QazSettings before(from);
    before.sync(!from.isEmpty());
    QazSettings after(to);
    after.sync(!to.isEmpty());
    ThemeChanges changes;
    for (const ThemeKey &key : themeKeys) {
        const QString name = QLatin1String(key.name);
        const ThemeChange change = {name, themeValue(before, name), themeValue(after, name)};
        if (differs(key, change.before, change.after))
            changes.append(change);
    }
    return changes;
}

bool writeChanges(const ThemeChanges &changes, const QString &path, QString *error)
{
    {
        QazSettings store(path);
        for (const ThemeChange &change : changes)
            store.setValue(change.key, change.after);
    }
    QazSettings written(path);
    written.sync(true);
    const bool isWritten = std::all_of(changes.begin(), changes.end(), [&written](const ThemeChange &change) {
        return written.value(change.key).toString() == change.after;
    });
    if (!isWritten)
        *error = QStringLiteral("%1 does not hold the new values").arg(path);
    return isWritten;
}

bool removeKeys(const QStringList &keys, const QString &path, QString *error)
{
    const auto withoutKeys = [&keys](const QByteArray &content) {
        QByteArray text = content;
        for (const QString &key : keys)
            text = KeyFileText(text).withoutKey({}, key.toUtf8());
        return std::make_optional(text);
    };
    return editFile(path, withoutKeys, error);
}

bool announce(const ThemeChanges &changes)
{
    if (changes.isEmpty())
        return true;
    const std::unique_ptr<Display, int (*)(Display *)> display(XOpenDisplay(nullptr), XCloseDisplay);
    if (!display)
        return false;
    for (const ThemeChange &change : changes) {
        if (!change.after.isNull())
            SendCommandToWM(display.get(), updateCommand(change.key, change.after).constData());
    }
    return true;
}
