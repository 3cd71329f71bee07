#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QVector>

/// A directory of icons as a theme's index describes it. Sizes are in pixels.
struct IconDirectory {
    enum class Type { Threshold, Fixed, Scalable };

    QByteArray path;    ///< relative to the theme
    QByteArray context; ///< such as "Places"; empty when the index states none
    Type type = Type::Threshold;
    int size = 0;
    int scale = 1;
    int minSize = 0;
    int maxSize = 0;
    int threshold = 2;
};

/// What an icon or cursor theme's index.theme says.
struct IconThemeIndex {
    QByteArrayList inherits;
    QByteArrayList cursorInherits;      ///< the same line as Xcursor reads it: also split at ';' and blanks
    bool hasDirectories = false;        ///< the key is there: this is a theme of icons
    QVector<IconDirectory> directories; ///< in the order of the key; those without a size are left out
};

IconThemeIndex parseIconThemeIndex(const QByteArray &content);

/// Whether icons of \a size pixels are at home in \a directory.
bool matchesSize(const IconDirectory &directory, int size);

/// How far \a directory is from holding icons of \a size pixels: 0 for a match.
int sizeDistance(const IconDirectory &directory, int size);

/// An index.theme with \a name as the theme that it inherits from, or, for an empty name, without one. Every
/// other line of \a content stays as it is.
QByteArray withInherits(const QByteArray &content, const QByteArray &name);
