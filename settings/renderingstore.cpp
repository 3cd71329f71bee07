#include "settings/renderingstore.h"

#include "settings/inifile.h"
#include "settings/wmcommands.h"

#include <QCoreApplication>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

QVariant value(const QString &file, const char *key)
{
    return iniValue(file, QLatin1String(key));
}

QString text(const QString &file, const char *key, const char *defaultText)
{
    return iniValue(file, QLatin1String(key), QLatin1String(defaultText)).toString();
}

} // namespace

QString ownSettingsFile()
{
    return iniFile(QCoreApplication::organizationName(), QCoreApplication::applicationName());
}

QVariant storedRendering(const char *key)
{
    return value(ownSettingsFile(), key);
}

void storeRendering(const QMap<QString, QVariant> &values)
{
    writeIniValues(ownSettingsFile(), {}, values);
}

QByteArray xftSettingsCommand(const QString &file)
{
    const bool systemDecides = text(file, RenderingKey::dontChangeAaSettings, "true")
                               == QLatin1String("true");
    const QStringList values = {
        text(file, RenderingKey::forceFontDpi, "0"),
        systemDecides ? QStringLiteral("unknown") : text(file, RenderingKey::antialias, "false"),
        text(file, RenderingKey::subPixel, "rgb"), text(file, RenderingKey::hintStyle, "full")};
    return updateCommand(QStringLiteral("XftSettings"), values.join(QLatin1Char(' '))).left(255);
}

QString xftResourceLines(const QString &file)
{
    QString lines;
    if (const QVariant on = value(file, RenderingKey::antialias); on.isValid())
        lines += QLatin1String(on.toBool() ? "Xft.antialias: 1\n" : "Xft.antialias: 0\n");
    if (const QVariant stored = value(file, RenderingKey::hintStyle); stored.isValid()) {
        const QString style = stored.toString();
        const int hinting = style.isEmpty() ? -1 : style == QLatin1String("hintnone") ? 0 : 1;
        lines += QStringLiteral("Xft.hinting: %1\n").arg(hinting);
        if (!style.isEmpty())
            lines += QLatin1String("Xft.hintstyle: ") + style + QLatin1Char('\n');
    }
    const QString subPixel = text(file, RenderingKey::subPixel, "");
    if (!subPixel.isEmpty())
        lines += QLatin1String("Xft.rgba: ") + subPixel + QLatin1Char('\n');
    const QVariant dpi = value(file, RenderingKey::forceFontDpi);
    if (dpi.toInt() != 0)
        lines += QLatin1String("Xft.dpi: ") + dpi.toString() + QLatin1Char('\n');
    return lines;
}

int forcedDpi(int stored, const QByteArray &resource)
{
    char *end = nullptr;
    const double number = std::strtod(resource.constData(), &end);
    if (stored == 0 || end == resource.constData() || !std::isfinite(number))
        return stored;
    constexpr double limit = std::numeric_limits<int>::max();
    const int dpi = int(qBound(-limit, number, limit));
    return dpi == 96 ? 0 : dpi; // what a server has without anybody's wish
}
