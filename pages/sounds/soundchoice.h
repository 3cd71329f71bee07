#pragma once

#include <QString>

/// Where to start choosing a file for an event that has the sound \a value: the file in use, or a directory. Empty when
/// there is none.
QString startOfChoice(const QString &value, bool hasTheme, const QString &soundsDirectory);

/// The assignment for a chosen file: a file in the sounds directory itself is a built-in file.
QString assignmentForFile(const QString &path, const QString &soundsDirectory);
