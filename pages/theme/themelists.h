#pragma once

#include <QIcon>
#include <QSize>
#include <QString>
#include <QVector>

/// A theme as the page lists it.
struct ThemeEntry {
    QString name;
    QIcon preview;
};

// All lists are sorted by name, case-sensitively. A preview has the given size.

/// The cursor themes that have the three cursors of the preview.
QVector<ThemeEntry> cursorThemeEntries(const QSize &size);

/// The complete icon themes but for the standard's own; each incomplete one is a line on standard error.
QVector<ThemeEntry> iconThemeEntries(const QSize &size);

/// The decoration themes whose images can all be read.
QVector<ThemeEntry> decorThemeEntries(const QSize &size);
