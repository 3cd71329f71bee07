#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// \a text with the files of its `@include` lines in their place, relative ones below \a directory. Nothing when
/// one can't be read, includes nest too deeply, or the files have more than \a sizeLimit bytes together.
std::optional<QByteArray> withIncludes(const QByteArray &text, const QString &directory, int sizeLimit);

/// \a text with the value of the root's setting \a name replaced by a boolean, or with such a setting as a new first
/// line. Every other byte stays, comments included.
QByteArray withRootBoolean(const QByteArray &text, const QByteArray &name, bool value);
