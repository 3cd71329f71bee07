#include "freedesktop/xresources.h"

#include "base/diagnostics.h"
#include "base/xdgdirectories.h"
#include "freedesktop/processwait.h"

#include <QProcess>

#include <cstring>

namespace {

constexpr int xrdbTimeoutMs = 30000;

/// The position behind the line that begins at \a begin, continued ones included.
int lineEnd(const QByteArray &text, int begin)
{
    int end = text.indexOf('\n', begin);
    for (; end >= 0; end = text.indexOf('\n', end + 1)) {
        int backslashes = 0;
        while (end - backslashes > begin && text.at(end - 1 - backslashes) == '\\')
            ++backslashes;
        if (backslashes % 2 == 0)
            return end + 1;
    }
    return text.size();
}

QByteArray lineBreakOf(const QByteArray &line)
{
    if (line.endsWith("\r\n"))
        return "\r\n";
    return line.endsWith('\n') ? "\n" : "";
}

} // namespace

QString userXresources()
{
    return homeDirectory() + QLatin1String("/.Xresources");
}

QByteArray withXresource(const QByteArray &text, const QByteArray &name, const QByteArray &line)
{
    QByteArray result;
    int place = -1; // in result, of the last line of the resource
    QByteArray lineBreak;
    for (int begin = 0; begin < text.size();) {
        const int end = lineEnd(text, begin);
        const QByteArray old = text.mid(begin, end - begin);
        const int colon = old.indexOf(':');
        if (colon >= 0 && old.left(colon).trimmed() == name) {
            place = result.size();
            lineBreak = lineBreakOf(old);
        } else {
            result += old;
        }
        begin = end;
    }
    if (line.isNull())
        return result;
    if (place >= 0)
        return result.insert(place, line + lineBreak);
    return endedXresources(result) + line + '\n';
}

QByteArray endedXresources(QByteArray text)
{
    if (text.isEmpty())
        return text;
    if (!text.endsWith('\n'))
        text += '\n';
    int last = text.size() - 2;
    while (last >= 0 && std::strchr(" \t\r", text.at(last)))
        --last;
    // The preprocessor joins lines at any backslash, blanks behind it or not.
    return last >= 0 && text.at(last) == '\\' ? text + '\n' : text;
}

bool runXrdb(const QStringList &arguments, const QByteArray &input)
{
    QProcess xrdb;
    xrdb.start(QStringLiteral("xrdb"), arguments);
    if (!xrdb.waitForStarted(xrdbTimeoutMs))
        return false;
    xrdb.write(input);
    xrdb.closeWriteChannel();
    if (!waitForEnd(xrdb, xrdbTimeoutMs)) {
        printDiagnostic(QStringLiteral("xrdb is ended: it takes longer than 30 s"));
        xrdb.kill();
        xrdb.waitForFinished();
        return false;
    }
    if (xrdb.exitStatus() == QProcess::NormalExit && xrdb.exitCode() == 0)
        return true;
    printDiagnostic(
        QStringLiteral("xrdb failed: %1").arg(QString::fromLocal8Bit(xrdb.readAllStandardError().trimmed())));
    return false;
}
