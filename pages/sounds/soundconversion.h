#pragma once

#include <QStringList>

class QWidget;
class QazSoundTheme;

/// Tells the user when some of the theme's \a files can't be played, and converts the theme's ogg files if there is one
/// among them and the user agrees. Returns whether it did.
bool offerConversion(QWidget *page, const QazSoundTheme &theme, const QStringList &files);

/// The shell command that converts the ogg files below \a directory to wav files beside them.
QString conversionCommand(const QString &directory);

/// What keeps conversionCommand() from being safe: the first file below \a directory whose path the tools of the command
/// would take apart, or for an option, or a directory that can't be looked into. Empty when there is none.
QString unsafeForConversion(const QString &directory);

/// Runs the command, with the rights that it takes, and returns when that has ended, can't be started, or \a limit
/// milliseconds are over: it goes on alone then. Shows the wait cursor; windows are drawn, but take no input.
void convertToWav(const QString &directory, int limit = 30000);
