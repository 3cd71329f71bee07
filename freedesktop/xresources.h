#pragma once

#include <QByteArray>
#include <QStringList>

/// The file of the user's own X resources.
QString userXresources();

/// \a text with \a line (without its end; null: none) as the only one of the resource \a name; every other byte stays.
/// Of several lines the last one, which counts, is replaced; a new one is appended. A backslash continues a line on
/// the next one, also in a comment; one that is itself written with a backslash does not.
QByteArray withXresource(const QByteArray &text, const QByteArray &name, const QByteArray &line);

/// \a text, ended so that what is appended stands on a line of its own.
QByteArray endedXresources(QByteArray text);

/// Runs xrdb with \a arguments and \a input, waiting up to 30 s each for its start and its end. False when it did not
/// start, which is not told, and when it took too long or failed, which one line on standard error tells.
bool runXrdb(const QStringList &arguments, const QByteArray &input = {});
