#pragma once

#include <QList>
#include <QSize>
#include <QString>
#include <QUrl>

/// Where the dialog that chooses a wallpaper starts: the file of \a text if it exists, else the best of the wallpaper
/// directories that exist for a screen of \a screenSize, else the home directory.
QString selectionStart(const QString &text, const QSize &screenSize);

/// The places beside the list of that dialog: the dialog's own ones and where pictures are.
QList<QUrl> sidebarPlaces(QList<QUrl> places);

/// The PNG that the SVG file \a path is converted to, in the user's wallpaper directory for \a screenSize.
QString conversionTarget(const QString &path, const QSize &screenSize);

/// Renders the SVG file \a source over all of a white picture of \a size and writes it to \a target, with the missing
/// directories. A file that stood there is backed up. Returns whether the file was written.
bool convertSvg(const QString &source, const QString &target, const QSize &size);
