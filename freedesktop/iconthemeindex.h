#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QVector>

/// A directory of icons as a theme's index describes it.
struct IconDirectory {
    QByteArray path;    ///< relative to the theme
    QByteArray context; ///< such as "Places"; empty when the index states none
    int scale;
    qint64 minSize; ///< in pixels, of the icons that are at home there
    qint64 maxSize;
};

/// What an icon or cursor theme's index.theme says.
struct IconThemeIndex {
    QByteArrayList inherits;
    QByteArrayList cursorInherits;      ///< the same line as Xcursor reads it: also split at ';' and blanks
    bool hasDirectories = false;        ///< the key is there: this is a theme of icons
    QVector<IconDirectory> directories; ///< in the order of the key; those without a size are left out
};

IconThemeIndex parseIconThemeIndex(const QByteArray &content);

/// How far \a directory is from holding icons of \a size pixels: -1 where they are at home, 0 and more elsewhere.
qint64 sizeDistance(const IconDirectory &directory, int size);

/// An index.theme with \a name as the theme that it inherits from, or, for an empty name, without one. Every
/// other line of \a content stays as it is.
QByteArray withInherits(const QByteArray &content, const QByteArray &name);
