#include "settings/renderingstore.h"

#include <QSettings>

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace {

QString text(const QSettings &store, const char *key, const char *defaultText)
{
    return store.value(QLatin1String(key), QLatin1String(defaultText)).toString();
}

bool has(const QSettings &store, const char *key)
{
    return store.contains(QLatin1String(key));
}

/// The decimal number that \a bytes begin with, without its fraction.
std::optional<int> leadingNumber(const QByteArray &bytes)
{
    QByteArray number = bytes.trimmed();
    if (number.startsWith('+'))
        number.remove(0, 1);
    double value = 0;
    const auto result = std::from_chars(number.cbegin(), number.cend(), value);
    if (result.ec != std::errc() || !std::isfinite(value))
        return std::nullopt;
    constexpr double limit = std::numeric_limits<int>::max();
    return int(qBound(-limit, value, limit));
}

} // namespace

bool storeValue(QSettings *store, const char *key, const QVariant &value)
{
    if (store->value(QLatin1String(key)).toString() == value.toString())
        return false;
    store->setValue(QLatin1String(key), value);
    return true;
}

QByteArray xftSettingsCommand(const QSettings &store)
{
    const QByteArray dpi = text(store, RenderingKey::forceFontDpi, "0").toLocal8Bit();
    const bool systemDecides = text(store, RenderingKey::dontChangeAaSettings, "true")
                               == QLatin1String("true");
    const QByteArray antialias = systemDecides ? QByteArrayLiteral("unknown")
                                               : text(store, RenderingKey::antialias, "false").toLocal8Bit();
    const QByteArray subPixel = text(store, RenderingKey::subPixel, "rgb").toLocal8Bit();
    const QByteArray hintStyle = text(store, RenderingKey::hintStyle, "full").toLocal8Bit();
    char command[256];
    qsnprintf(command, sizeof command, "QAZWM_UPDATE_VAL XftSettings %s %s %s %s\n", dpi.constData(),
              antialias.constData(), subPixel.constData(), hintStyle.constData());
    return command;
}

QString xftResourceLines(const QSettings &store)
{
    QString lines;
    if (has(store, RenderingKey::antialias)) {
        const bool on = store.value(QLatin1String(RenderingKey::antialias), true).toBool();
        lines += QLatin1String(on ? "Xft.antialias: 1\n" : "Xft.antialias: 0\n");
    }
    if (has(store, RenderingKey::hintStyle)) {
        const QString style = text(store, RenderingKey::hintStyle, "hintmedium");
        if (style.isEmpty()) {
            lines += QLatin1String("Xft.hinting: -1\n");
        } else {
            const bool hinted = style != QLatin1String("hintnone");
            lines += QLatin1String(hinted ? "Xft.hinting: 1\n" : "Xft.hinting: 0\n");
            lines += QLatin1String("Xft.hintstyle: ") + style + QLatin1Char('\n');
        }
    }
    const QString subPixel = text(store, RenderingKey::subPixel, "");
    if (!subPixel.isEmpty())
        lines += QLatin1String("Xft.rgba: ") + subPixel + QLatin1Char('\n');
    const QVariant dpi = store.value(QLatin1String(RenderingKey::forceFontDpi), 0);
    if (dpi.toInt() != 0)
        lines += QLatin1String("Xft.dpi: ") + dpi.toString() + QLatin1Char('\n');
    return lines;
}

int forcedDpi(int stored, const QByteArray &resource)
{
    if (stored == 0)
        return 0;
    const std::optional<int> dpi = leadingNumber(resource);
    if (!dpi)
        return stored;
    return *dpi == 96 ? 0 : *dpi; // what a server has without anybody's wish
}
