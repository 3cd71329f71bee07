#pragma once

#include <QFont>
#include <QList>

/// The installed font nearest to \a wanted. A family that is not installed gives way to the system's general
/// font, and if that is only an alias to fontconfig's match for it, which one line on standard error tells.
/// A font that does not scale takes the nearest of its sizes. Bold and slant stay, also in a family without such a face.
QFont nearestInstalledFont(const QFont &wanted);

/// The size of \a sizes with the smallest distance to \a wanted, the first of equally near ones; \a wanted
/// itself when no size is nearer than 1000.
int nearestSize(const QList<int> &sizes, int wanted);
