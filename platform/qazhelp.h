#pragma once

#include <QString>

/// The help topic of the page in view: the class name of the visible page of the window's page stack,
/// in lower case and without "page" ("wallpaper", "theme", ...); "index" when there is none.
QString qazHelpLookForWidget();

/// Shows the user guide at \a topic in a window of its own, which never keeps the program running.
void qazHelpShow(const QString &topic);
