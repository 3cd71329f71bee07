#include "platform/setxrdbparameterinfile.h"

#include "base/atomicfile.h"
#include "base/diagnostics.h"

#include <QByteArray>
#include <QFile>

namespace {

/// The position behind the logical line that starts at \a start: a backslash joins it with the next one.
int logicalLineEnd(const QByteArray &text, int start)
{
    for (int end = start;;) {
        end = text.indexOf('\n', end) + 1;
        if (end == 0)
            return text.size();
        int last = end - 2;
        if (last >= start && text.at(last) == '\r')
            --last;
        if (last < start || text.at(last) != '\\')
            return end;
    }
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

/// Whether \a line gives the resource \a name (without its colon) a value; blanks may stand around the name.
bool isLineOf(const QByteArray &line, const QByteArray &name)
{
    int at = 0;
    while (at < line.size() && isBlank(line.at(at)))
        ++at;
    if (line.mid(at, name.size()) != name)
        return false;
    at += name.size();
    while (at < line.size() && isBlank(line.at(at)))
        ++at;
    return at < line.size() && line.at(at) == ':';
}

QByteArray lineEnding(const QByteArray &line)
{
    if (line.endsWith("\r\n"))
        return "\r\n";
    return line.endsWith('\n') ? "\n" : "";
}

/// \a text with \a newLine (without ending; null: none) as the only line of the resource \a name.
QByteArray withParameter(const QByteArray &text, const QByteArray &name, const QByteArray &newLine)
{
    QByteArray result;
    int place = -1; // in result, of the last line of the resource
    QByteArray ending;
    for (int start = 0; start < text.size();) {
        const int end = logicalLineEnd(text, start);
        const QByteArray line = text.mid(start, end - start);
        if (isLineOf(line, name)) {
            place = result.size();
            ending = lineEnding(line);
        } else {
            result += line;
        }
        start = end;
    }
    if (newLine.isNull())
        return result;
    if (place >= 0)
        return result.insert(place, newLine + ending);
    if (!result.isEmpty() && !result.endsWith('\n'))
        result += '\n';
    return result + newLine + '\n';
}

} // namespace

bool setXrdbParameterInFile(const char *file, const char *parameter, const char *separator, const char *value,
                            bool /*reserved*/)
{
    const QString path = QFile::decodeName(file);
    // Without the lock (not every file system has one) the replacement is still atomic.
    const DirectoryLock lock(path);
    const FileContent old = readRegularFile(path);
    if (old.state == FileState::Unreadable) {
        printDiagnostic(QStringLiteral("Can't read %1: %2").arg(path, old.error));
        return false;
    }
    QByteArray name(parameter);
    if (name.endsWith(':'))
        name.chop(1);
    const QByteArray line = value ? QByteArray(parameter) + separator + value : QByteArray();
    const QByteArray content = withParameter(old.content, name, line);
    if (content == old.content)
        return true;
    QString reason;
    if (replaceFile(path, content, &reason))
        return true;
    printDiagnostic(QStringLiteral("Can't write %1: %2").arg(path, reason));
    return false;
}
