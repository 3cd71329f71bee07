#include "pages/effects/mapstyles.h"

#include <algorithm>
#include <iterator>

namespace {

// By index of the combo box. The first is shown as "None", but the window manager calls it "Normal".
constexpr const char *keywords[] = {
    "Normal",      "TopToBottom", "LeftToRight", "CenterToTopBottom", "CenterToLeftRight",
    "CenterToAll", "FromButton",  "RightToLeft", "BottomToTop"};
constexpr int styleCount = int(std::size(keywords));
static_assert(styleCount == 9);

} // namespace

QString mapStyleKeyword(int index)
{
    return QLatin1String(keywords[index >= 0 && index < styleCount ? index : 0]);
}

int mapStyleIndex(const QString &keyword)
{
    const auto *found = std::find_if(std::begin(keywords), std::end(keywords), [&keyword](const char *known) {
        return keyword == QLatin1String(known);
    });
    return found == std::end(keywords) ? 0 : int(found - std::begin(keywords));
}
