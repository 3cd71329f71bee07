#pragma once

#include <QByteArray>
#include <QString>

/// The text that asks the window manager to restart the session.
extern const char restartCommand[];

/// The command that announces a new \a value of \a key, ended by a newline, in the local 8-bit encoding.
/// Both are taken as they are: nothing is quoted.
QByteArray updateCommand(const QString &key, const QString &value);

/// The reverse: \a key and \a value of such a command. False for any other command.
bool readUpdateCommand(const QByteArray &command, QString *key, QString *value);

/// Sends \a command to the window manager on the application's own X connection.
void sendToWindowManager(const QByteArray &command);
