#pragma once

#include <QByteArray>
#include <QString>

/// Whether the application's X server lists the extension \a name; false without an X server.
bool serverHasExtension(const char *name);

/// The resolution of the default screen in dots per inch; 0 when the server states no size.
double screenDpi();

/// The name of the cursor theme of new programs, "default" when the desktop reports none.
QString currentCursorTheme();

/// Makes \a name the cursor theme of new programs and announces it to the window manager. False, with nothing
/// announced, when it can't be set.
[[nodiscard]] bool setCursorTheme(const QString &name);
