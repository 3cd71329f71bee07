#include "settings/wallpapertexts.h"

#include "platform/findwallpaperbyname.h"

#include <QFile>

namespace {

constexpr int pathBufferSize = 4096;
constexpr char convertCommand[] = "qaz-svg2png -w %d -h %d -i \"%s\" -o \"%s\"";
constexpr const char *fitWords[] = {"Center", "Tile", "Stretch"};

} // namespace

QString wordFromFit(Fit fit)
{
    return QLatin1String(fitWords[int(fit)]);
}

Fit fitFromWord(const QString &word)
{
    for (Fit fit : {Fit::Tile, Fit::Stretch}) {
        if (word == QLatin1String(fitWords[int(fit)]))
            return fit;
    }
    return Fit::Center;
}

bool isColorText(const QString &text)
{
    return text.startsWith(QLatin1Char('#'));
}

QString wallpaperNamed(const QString &name, const QSize &screenSize, bool mayConvert)
{
    char found[pathBufferSize] = "";
    FindWallPaperByName(name.toLocal8Bit().constData(), found, screenSize.width(), screenSize.height(),
                        mayConvert ? convertCommand : "");
    return QFile::decodeName(found);
}
