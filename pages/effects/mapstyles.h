#pragma once

#include <QString>

/// The keyword stored for the window-map style at \a index of the combo box; "Normal" outside 0 to 8.
QString mapStyleKeyword(int index);

/// The index of a stored keyword, compared case-sensitively; 0 for a keyword that nobody knows.
int mapStyleIndex(const QString &keyword);
