#pragma once

#include <QByteArray>

struct _XDisplay;
using Display = _XDisplay;

/// Shows the cursors of \a theme in this program and, where the server can change cursors by their name, in
/// all others on \a display, and over the root window.
void showCursorTheme(Display *display, const QByteArray &theme);
