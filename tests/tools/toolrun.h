#pragma once

#include "tests/support/temporaryhome.h"
#include "tests/support/textfile.h"
#include "tests/support/wmlistener.h"

#include <functional>
#include <optional>

const QString themeFile = ".config/qaz/current.themerc"_s; // below the home

/// A text without what differs between two runs.
inline QString withoutPlaces(QByteArray text, const TemporaryHome &home)
{
    text.replace(home.path().toUtf8(), "HOME").replace(QAZ_BINARY_DIR, "BUILD");
    text.replace("xsettingsd-" + qgetenv("DISPLAY"), "xsettingsd-DISPLAY");
    return QString::fromUtf8(text)
        .replace(QRegularExpression("[0-9a-f]{40}"_s), "DIGEST"_s)
        .replace(QRegularExpression("\\b\\d+\\.\\d+\\.\\d+-\\d+\n"_s), "VERSION\n"_s);
}

/// What a line of shell prints in the home, "! " before lines on standard error, its status if that is not 0, and what it
/// did. The tools of the build come before all others.
inline QString answerTo(const QString &call, const TemporaryHome &home)
{
    const QByteArray theme = home.read(themeFile);
    const QString before = home.fingerprint();
    const ScopedEnvironment path("PATH", QAZ_BINARY_DIR "/bin:" + qgetenv("PATH"));
    WmListener listener;
    QProcess shell;
    shell.setWorkingDirectory(home.path());
    shell.start("/bin/sh"_s, {"-c"_s, call});
    const int status = shell.waitForFinished(60000) ? shell.exitCode() : -1;
    QByteArray text = shell.readAllStandardOutput();
    shell.setReadChannel(QProcess::StandardError);
    while (shell.bytesAvailable() > 0)
        text += "! " + shell.readLine();
    if (status != 0)
        text += "status " + QByteArray::number(status) + '\n';
    const bool isDry = status != 0 || call.contains(QRegularExpression(" (-n|--dry-run) "_s));
    if (isDry && home.fingerprint() != before)
        text += "files are changed\n";
    if (home.read(themeFile) != theme)
        text += "file: " + home.read(themeFile).replace('\n', '|') + '\n';
    if (const QString updates = listener.takeUpdates(); !updates.isEmpty())
        text += "told: " + updates.toUtf8() + '\n';
    return withoutPlaces(text, home);
}

/// Carries out a step that is no call, and returns what came of it, which should be \a expected.
using OtherStep = std::function<QString(const QString &step, const QString &expected)>;

/// Replays a session that is written beside the tests: "# " begins another home, "< NAME: TEXT" puts a file there, with
/// "/" at the name's end a directory and with "|" a FIFO, "$ " is a call, "> " what \a other does. What follows one of
/// the latter two is what must come of it.
inline void replay(const QString &name, const TemporaryHome *given = nullptr, const OtherStep &other = {})
{
    const QRegularExpression begin("^(?=[#<$>] )"_s, QRegularExpression::MultilineOption);
    QString actual;
    std::optional<TemporaryHome> fresh;
    const TemporaryHome *home = given;
    for (const QString &step : QString::fromUtf8(textOf(name)).split(begin, Qt::SkipEmptyParts)) {
        const QString line = step.section(u'\n', 0, 0), expected = step.mid(line.size() + 1);
        const QString text = line.mid(2).replace("\\n"_s, "\n"_s).replace("\\t"_s, "\t"_s);
        const QString file = text.section(u':', 0, 0);
        actual += line + u'\n';
        if (line.startsWith(u'#'))
            home = &fresh.emplace();
        else if (line.startsWith(u'$'))
            actual += answerTo(text, *home);
        else if (line.startsWith(u'>'))
            actual += other(text, expected);
        else if (file.endsWith(u'/'))
            home->makeDirectory(file);
        else if (file.endsWith(u'|'))
            home->makeFifo(file.chopped(1));
        else
            home->write(file, text.section(u':', 1).mid(1).replace("HOME"_s, home->path()).toUtf8());
    }
    verifyText(name, actual.toUtf8());
}
