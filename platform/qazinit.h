#pragma once

/// Prepares the desktop's libraries: creates the per-user configuration directory (mode 0700), sets Qt's
/// organisation, application name and version, the fallback icon theme, and installs the user's translation.
/// Needs the application object. \a version and \a title are the program's own, in the local encoding.
bool qazInit(const char *version, const char *title);

/// The suffix of the session's configuration files, such as "-work", or an empty text. Only \a kind 0 is used.
/// The caller frees the text with delete[].
char *qazSessionConfigSuffix(int kind);

/// True when the desktop is used by touch and wants animated page changes.
bool qazInTabletMode();

/// \a length pixels of a 96 dpi screen in pixels of this one, by the logical DPI of the primary screen.
double qazDpiScaled(double length);
