#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class QazSettings;

/// A value of a theme file that is, or would be, another one.
struct ThemeChange {
    QString key;
    QString before; ///< the default's text when the key was missing
    QString after;
};
using ThemeChanges = QVector<ThemeChange>;

/// A key and its value.
struct ThemeValue {
    QString key;
    QString value;
};
using ThemeValues = QVector<ThemeValue>;

/// The value of \a key in \a store, else its default; a null text for a key that has neither.
QString themeValue(const QazSettings &store, const QString &key);

/// The known keys that the theme file at \a path sets, in the order of the pages.
ThemeValues knownValues(const QString &path);

/// What is wrong with \a values, one line each; an unknown key is wrong unless \a takeUnknown.
QStringList misfits(const ThemeValues &values, bool takeUnknown = false);

/// What storing \a values, which fit, would change in the theme file at \a path, in their order. Of a key that is
/// given twice the last value counts.
ThemeChanges changesBy(const ThemeValues &values, const QString &path);

/// Which values cutting \a keys out of the theme file at \a path would change. A key without a default changes to a
/// null text.
ThemeChanges changesWithout(const QStringList &keys, const QString &path);

/// The known keys whose values differ between two theme files; an empty path stands for the defaults.
ThemeChanges differences(const QString &from, const QString &to);

/// Stores \a changes in the theme file at \a path. False with the reason when they are not in the file afterwards.
[[nodiscard]] bool writeChanges(const ThemeChanges &changes, const QString &path, QString *error);

/// Cuts \a keys out of the theme file at \a path. False with the reason when it can't be read or written.
[[nodiscard]] bool removeKeys(const QStringList &keys, const QString &path, QString *error);

/// Announces \a changes to the window manager on a display connection of its own, for programs without a window.
/// A null text is nothing to announce. False when there is no display.
[[nodiscard]] bool announce(const ThemeChanges &changes);
