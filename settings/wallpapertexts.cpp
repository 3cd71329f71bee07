#include "settings/wallpapertexts.h"

#include "platform/findwallpaperbyname.h"
#include "settings/themekeys.h"

#include <QFile>

QString wordFromFit(Fit fit)
{
    return closedSet(themeKey("WallPaperPos")).value(int(fit));
}

Fit fitFromWord(const QString &word)
{
    return Fit(qMax(0, closedSet(themeKey("WallPaperPos")).indexOf(word)));
}

bool isColorText(const QString &text)
{
    return text.startsWith(QLatin1Char('#'));
}

QString wallpaperNamed(const QString &name, const QSize &screenSize, bool mayConvert)
{
    char found[4096] = "";
    FindWallPaperByName(name.toLocal8Bit().constData(), found, screenSize.width(), screenSize.height(),
                        mayConvert ? "qaz-svg2png -w %d -h %d -i \"%s\" -o \"%s\"" : "");
    return QFile::decodeName(found);
}
