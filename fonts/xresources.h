#pragma once

/// Flag of applyXResources(): with the user's own resources, merge what the Qt settings tell about fonts.
inline constexpr unsigned exportXftSettings = 8;

/// Merges the user's X resource file, and by \a flags the font rendering settings, into the X server with xrdb, and
/// tells running programs. Waits for xrdb; a failure of it is not reported.
void applyXResources(unsigned flags);

/// Removes a forced font DPI from the X server with xrdb. What other programs merged there stays.
void removeDpiFromServer();
