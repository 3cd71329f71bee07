#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

class TemporaryHome;

// Small themes below a temporary home, each picture all in one colour.

/// A cursor theme at \a path (".icons/Red") with the cursors \a names, \a size pixels each way.
void makeCursorTheme(const TemporaryHome &home, const QString &path, const QColor &color,
                     const QStringList &names = {QStringLiteral("left_ptr"), QStringLiteral("watch"),
                                                 QStringLiteral("xterm")},
                     int size = 24);

/// A complete icon theme at \a path with PNG icons of 32 pixels.
void makeIconTheme(const TemporaryHome &home, const QString &path, const QColor &color);

/// A complete decoration theme at \a path.
void makeDecorTheme(const TemporaryHome &home, const QString &path, const QColor &color);
