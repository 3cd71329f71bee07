#pragma once

#include <QString>
#include <QStringList>

/// Every path at which the wallpaper \a name may lie, best first: for each of \a roots the directories of the screen's
/// size, its standard size and its aspect ratio and then the root itself, in each the name as it is and with the
/// endings of images. None for a name that is no plain file name.
QStringList wallpaperCandidates(const QString &name, const QStringList &roots, int width, int height);

/// Splits a command at its blanks, keeping quoted parts together, and fills each argument in: %d by \a width, then
/// \a height, %s by \a source, then \a target, %% by one percent sign.
QStringList convertArguments(const QString &command, int width, int height, const QString &source,
                             const QString &target);
