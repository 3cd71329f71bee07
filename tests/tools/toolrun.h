#pragma once

#include "tests/support/testing.h"

const QString themeFile = ".config/qaz/current.themerc"_s; // below the home

/// A tool of the build that has run in the home and ended.
struct ToolRun {
    ToolRun(const QString &tool, const QStringList &arguments)
    {
        QProcess process;
        process.setWorkingDirectory(QDir::homePath());
        process.start(QStringLiteral(QAZ_BINARY_DIR "/bin/") + tool, arguments);
        if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit)
            status = process.exitCode();
        out = process.readAllStandardOutput();
        errors = process.readAllStandardError();
    }

    /// Everything printed, errors last; paths begin with HOME.
    QByteArray text() const { return QByteArray(out + errors).replace(qgetenv("HOME"), "HOME"); }

    int status = -1; // which no program has that ended by itself
    QByteArray out;
    QByteArray errors;
};

/// Runs qaz-theme.
inline ToolRun run(const QStringList &arguments)
{
    return {"qaz-theme"_s, arguments};
}

/// Runs \a tool with arguments that are separated by blanks.
inline ToolRun run(const char *arguments, const QString &tool = "qaz-theme"_s)
{
    return {tool, QString::fromUtf8(arguments).split(u' ')};
}
