#pragma once

#include "tests/support/programprocess.h"

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
        command = tool + u' ' + arguments.join(u' ');
    }

    QStringList lines() const { return QString::fromUtf8(out.trimmed()).split(u'\n'); }
    /// The call as a user sees it: "! " before lines on standard error, then a status that is not 0.
    QByteArray transcript() const
    {
        QByteArray text = "$ " + command.toUtf8() + '\n' + out;
        for (const QByteArray &line : errors.isEmpty() ? QByteArrayList() : errors.chopped(1).split('\n'))
            text += "! " + line + '\n';
        if (status != 0)
            text += "status " + QByteArray::number(status) + '\n';
        return text.replace(qgetenv("HOME"), "HOME");
    }

    QString command;
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
inline ToolRun run(const QString &arguments, const QString &tool = "qaz-theme"_s)
{
    return {tool, arguments.split(u' ')};
}

/// Runs \a tool once for each of the lines of \a calls.
inline QByteArray transcriptOf(const QString &calls, const QString &tool = "qaz-theme"_s)
{
    QByteArray text;
    for (const QString &arguments : calls.split(u'\n'))
        text += run(arguments, tool).transcript();
    return text;
}

/// Compares with a file beside the tests, which was read by eye.
inline void compareWithFile(const QByteArray &text, const QString &name)
{
    const QString expected = QStringLiteral(QAZ_SOURCE_DIR "/tests/tools/") + name;
    QFile actual(QStringLiteral(QAZ_BINARY_DIR "/") + name);
    QVERIFY(actual.open(QIODevice::WriteOnly) && actual.write(text) == text.size() && actual.flush());
    const QString difference = output("diff"_s, {"-u"_s, expected, actual.fileName()});
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}
