#pragma once

#include "settings/themearchive.h"
#include "settings/themeedit.h"

#include <QTemporaryDir>

#include <memory>

/// Packs the theme file \a themeFile, the wallpaper and the sound files that it names and the names of its themes into the
/// archive \a path. An existing file there is backed up before it is replaced. What the theme file names and is not
/// there is listed in \a missing and stays a path.
[[nodiscard]] bool packTheme(const QString &themeFile, const QString &path, QStringList *missing,
                             QString *error);

/// A packed theme, unpacked beside the places where its files belong, and nowhere else before place().
class UnpackedTheme
{
public:
    /// Unpacks the archive at \a path and checks what is in it, but not whether its values fit.
    [[nodiscard]] bool read(const QString &path, QString *error);

    /// What the theme file in it sets; wallpaper and sounds as they are called when they are in place.
    ThemeValues values() const { return m_values; }
    /// The files that place() writes: those that do not stand there already.
    QStringList targets() const;
    /// Moves the files to their places. What stands there is backed up first; what can't be backed up stays.
    [[nodiscard]] bool place(QString *error);

private:
    struct Move {
        QString from;
        QString to;
    };

    bool planMoves(const QVector<ArchiveFile> &files, QString *error);

    std::unique_ptr<QTemporaryDir> m_staging;
    QVector<Move> m_moves;
    ThemeValues m_values;
};
