#pragma once

#include "settings/wmcommands.h"
#include "tests/support/programprocess.h"

struct BridgeProcess : ProgramProcess {
    explicit BridgeProcess(const QStringList &arguments = {})
        : ProgramProcess(QStringLiteral("qaz-wm-bridge"), arguments)
    {}

    /// Whether a bridge serves the screen.
    static bool isServing()
    {
        return output("/usr/bin/xwininfo"_s, {"-root"_s, "-children"_s}).contains("\"qaz-wm-bridge\""_s);
    }
};

/// Announces a value as the editor does.
inline void announce(const char *key, const QString &value)
{
    sendToWindowManager(updateCommand(QLatin1String(key), value));
}

/// Sets a property of the root window, in a format of xprop's.
inline void setOnRoot(const QString &name, const QString &format, const QString &value)
{
    output("/usr/bin/xprop"_s, {"-root"_s, "-f"_s, name, format, "-set"_s, name, value});
}

/// The colour on the screen; where no window is unless told otherwise.
inline QColor pixel(int x = 3, int y = 1020)
{
    return QGuiApplication::primaryScreen()->grabWindow(0, x, y, 1, 1).toImage().pixelColor(0, 0);
}
