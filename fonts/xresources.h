#pragma once

#include <QByteArray>

/// Flag of applyXResources(): with the user's own resources, merge what the Qt settings tell about fonts.
inline constexpr unsigned exportXftSettings = 8;

/// Merges the user's X resource file, and by \a flags the font rendering settings, into the X server with xrdb, and
/// tells running programs. Waits for xrdb.
void applyXResources(unsigned flags);

/// Removes a forced font DPI from the X server with xrdb. What other programs merged there stays.
void removeDpiFromServer();

/// What Xlib's lookup of the default "dpi" of "Xft" finds in the server's resources as they are now, or null.
QByteArray xftDpiResource();
