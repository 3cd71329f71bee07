#pragma once

#include "tests/support/programprocess.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <functional>

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

    int status = -1; // which no program has that ended by itself
    QByteArray out;
    QByteArray errors;
};

/// Runs qaz-theme with arguments that are separated by blanks.
inline ToolRun run(const QString &arguments)
{
    return {"qaz-theme"_s, arguments.split(u' ')};
}

/// A text without what differs between two runs.
inline QString withoutPlaces(QByteArray text, const TemporaryHome &home)
{
    text.replace(home.path().toUtf8(), "HOME").replace(QAZ_BINARY_DIR, "BUILD");
    text.replace("xsettingsd-" + qgetenv("DISPLAY"), "xsettingsd-DISPLAY");
    return QString::fromUtf8(text)
        .replace(QRegularExpression("[0-9a-f]{40}"_s), "DIGEST"_s)
        .replace(QRegularExpression("\\b\\d+\\.\\d+\\.\\d+-\\d+\n"_s), "VERSION\n"_s);
}

/// What a call prints, "! " before lines on standard error, its status if that is not 0, and what it did.
inline QString answerTo(const QString &call, const TemporaryHome &home, WmListener *listener)
{
    const QByteArray theme = home.read(themeFile);
    const QString before = home.fingerprint();
    const QStringList words = QProcess::splitCommand(call);
    const ToolRun run(words.first(), words.mid(1));
    QByteArray text = run.out;
    for (const QByteArray &line : run.errors.isEmpty() ? QByteArrayList() : run.errors.chopped(1).split('\n'))
        text += "! " + line + '\n';
    if (run.status != 0)
        text += "status " + QByteArray::number(run.status) + '\n';
    const bool isDry = run.status != 0 || words.contains("-n"_s) || words.contains("--dry-run"_s);
    if (isDry && home.fingerprint() != before)
        text += "files are changed\n";
    if (home.read(themeFile) != theme)
        text += "file: " + home.read(themeFile).replace('\n', '|') + '\n';
    if (const QString updates = listener ? listener->takeUpdates() : QString(); !updates.isEmpty())
        text += "told: " + updates.toUtf8() + '\n';
    return withoutPlaces(text, home);
}

/// Carries out a step that is no call, and returns what came of it, which should be \a expected.
using OtherStep = std::function<QString(const QString &step, const QString &expected)>;

/// Replays a session that is written beside the tests: "# " begins another home, "< NAME: TEXT" puts a file there, with
/// "/" at the name's end a directory and with "|" a FIFO, "$ " is a call, "> " what \a other does. What follows one of
/// the latter two is what must come of it.
inline void replay(const QString &name, WmListener *listener = nullptr, const TemporaryHome *given = nullptr,
                   const OtherStep &other = {})
{
    QFile session(QStringLiteral(QAZ_SOURCE_DIR "/tests/") + name);
    QFile actual(QStringLiteral(QAZ_BINARY_DIR "/") + QFileInfo(name).fileName());
    QVERIFY(session.open(QIODevice::ReadOnly) && actual.open(QIODevice::WriteOnly));
    const QRegularExpression begin("^(?=[#<$>] )"_s, QRegularExpression::MultilineOption);
    std::unique_ptr<TemporaryHome> fresh;
    const TemporaryHome *home = given;
    for (const QString &step : QString::fromUtf8(session.readAll()).split(begin, Qt::SkipEmptyParts)) {
        const QString line = step.section(u'\n', 0, 0), expected = step.mid(line.size() + 1);
        const QString text = line.mid(2).replace("\\n"_s, "\n"_s).replace("\\t"_s, "\t"_s);
        const QString file = text.section(u':', 0, 0);
        actual.write(line.toUtf8() + '\n');
        if (line.startsWith(u'#'))
            fresh.reset(), fresh = std::make_unique<TemporaryHome>(), home = fresh.get();
        else if (line.startsWith(u'$'))
            actual.write(answerTo(text, *home, listener).toUtf8());
        else if (line.startsWith(u'>'))
            actual.write(other(text, expected).toUtf8());
        else if (file.endsWith(u'/'))
            home->makeDirectory(file);
        else if (file.endsWith(u'|'))
            home->makeFifo(file.chopped(1));
        else
            home->write(file, text.section(u':', 1).mid(1).replace("HOME"_s, home->path()).toUtf8());
    }
    actual.close();
    const QString difference = output("diff"_s, {"-u"_s, session.fileName(), actual.fileName()});
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}
