#include "settings/wallpapertexts.h"

namespace {

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
