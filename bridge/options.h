#pragma once

#include <QString>
#include <QStringList>

/// What the command line asks for.
struct Options {
    QString themeFile;    ///< absolute
    bool once = false;    ///< apply and end
    bool dryRun = false;  ///< print the command lines, run and write nothing
    bool verbose = false; ///< tell what is run and what is not understood
    bool replace = false; ///< take over from a running bridge
    bool openbox = false; ///< edit Openbox's own configuration file
    QString answer;       ///< the text that was asked for instead: help or version
};

/// Reads \a arguments, the program's name first. False, with one line in \a error, when they are wrong.
bool readOptions(const QStringList &arguments, Options *options, QString *error);
