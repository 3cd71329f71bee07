#pragma once

#include <QColor>
#include <QString>

/// The colour of a stored `DesktopColor` text; the names of the old colour scheme ("qvblue") are known, and only
/// as they were written then. Invalid for a text that names no colour.
QColor desktopColor(const QString &stored);
