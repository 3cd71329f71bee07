#include "pages/effects/mapstyles.h"

#include "settings/themekeys.h"

namespace {

/// By index of the combo box. The first is shown as "None", but the window manager calls it "Normal".
QStringList keywords()
{
    return closedSet(themeKey("GradWindowMapStyle"));
}

} // namespace

QString mapStyleKeyword(int index)
{
    return keywords().value(index, keywords().constFirst());
}

int mapStyleIndex(const QString &keyword)
{
    return qMax(0, keywords().indexOf(keyword));
}
