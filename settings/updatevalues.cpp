#include "settings/updatevalues.h"

#include "platform/qazsettings.h"
#include "settings/textvalues.h"
#include "settings/themekeys.h"
#include "settings/wmcommands.h"

namespace {

bool storeAndAnnounce(QazSettings *store, const QString &key, const QString &text)
{
    store->setValue(key, text);
    sendToWindowManager(updateCommand(key, text));
    return true;
}

} // namespace

QString storedText(const QazSettings *store, const ThemeKey &key)
{
    return store->value(QLatin1String(key.name), QLatin1String(key.defaultText)).toString();
}

bool updateBoolValue(QazSettings *store, const QString &key, const QString &defaultText, bool value)
{
    return countsAsTrue(store->value(key, defaultText).toString()) != value
           && storeAndAnnounce(store, key, boolText(value));
}

bool updateIntValue(QazSettings *store, const QString &key, const QString &defaultText, int value)
{
    return store->value(key, defaultText).toString().toInt() != value
           && storeAndAnnounce(store, key, QString::number(value));
}

bool updateStringValue(QazSettings *store, const QString &key, const QString &defaultText,
                       const QString &value)
{
    return store->value(key, defaultText).toString() != value && storeAndAnnounce(store, key, value);
}
