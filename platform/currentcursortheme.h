#pragma once

#include <QByteArray>

struct _XDisplay;
using Display = _XDisplay;

/// The name of the cursor theme that new programs on \a display use; empty when nothing names one.
QByteArray currentCursorTheme(Display *display);

/// Writes \a name to the user's "default" theme and the X resources (file and server), and gives the programs
/// that run the new cursors. False, after a line on standard error, when a file can't be written.
bool setCurrentCursorTheme(const QByteArray &name);
