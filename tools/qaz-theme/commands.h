#pragma once

#include "tools/qaz-theme/arguments.h"

/// The command called \a name; null when there is none.
const Command *findCommand(const QString &name);

QStringList commandNames();

/// What the program prints for --help, of one \a command or, without one, of all.
QString helpText(const Command *command);
