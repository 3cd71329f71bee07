#pragma once

#include <QString>

/// Prints one line "qaz-admin-theme: TEXT" to standard error, in the local 8-bit encoding. Line breaks
/// inside \a text are printed as blanks, so that one diagnostic stays one line.
void printDiagnostic(const QString &text);

/// The same with another program name in front: a few lines carry the window manager's.
void printDiagnosticAs(const char *program, const QString &text);

/// The system's text for the error \a number of a failed call (errno).
QString systemErrorText(int number);

/// False, with \a reason in \a error.
bool failed(QString *error, const QString &reason);
