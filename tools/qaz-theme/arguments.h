#pragma once

#include <QString>
#include <QStringList>

/// The program's exit statuses, as scripts see them.
enum Status {
    Success = 0,
    NotSame = 1, ///< `get`: not set and without a default; `diff`: something differs
    Misuse = 2,  ///< wrong arguments, or a value that does not fit: nothing was written
    Failure = 3  ///< a file can't be read or written
};

struct Arguments;

/// One command of the program: what comes behind its name, and what it does.
struct Command {
    const char *name;
    const char *operands; ///< as shown in the help
    int leastOperands;
    int mostOperands;
    const char *summary;
    const char *help;
    Status (*run)(const Arguments &arguments);
};

/// The command line, taken apart.
struct Arguments {
    const Command *command = nullptr;
    QStringList operands;
    QString themeFile; ///< absolute; the user's own when none was named
    bool json = false;
    bool dryRun = false;
    bool quiet = false;
    bool force = false;
    bool help = false;
    bool version = false;
};

/// Takes \a texts, the command line without the program's name, apart. False with the reason when it is wrong.
[[nodiscard]] bool parseArguments(const QStringList &texts, Arguments *arguments, QString *error);

QStringList commandNames();

/// What the program prints for --help, of one \a command or, without one, of all.
QString helpText(const Command *command);
