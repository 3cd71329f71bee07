#include "fonts/xresources.h"

#include "fonts/serverresources.h"
#include "settings/directories.h"
#include "settings/renderingstore.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryFile>

namespace {

constexpr int xrdbTimeout = 30000; // ms, for its start and for its end
constexpr char xrdb[] = "xrdb";

QString userResourceFile()
{
    const QString home = directoryPath(DirectoryKind::Home);
    const QString file = home + QLatin1String("/.Xresources");
    return QFileInfo::exists(file) ? file : home + QLatin1String("/.Xdefaults");
}

/// Where the merged file goes. xrdb hands its name to a shell without quotes, so the path must not need any.
QString temporaryDirectory()
{
    static const QRegularExpression needsQuotes(QStringLiteral("[^A-Za-z0-9/._+-]"));
    const QString usual = QDir::tempPath();
    return usual.contains(needsQuotes) ? QStringLiteral("/tmp") : usual;
}

/// Copies the user's own resources, ended by a newline, so that what follows stands on lines of its own.
void copyUserResources(QFile *target)
{
    QFile source(userResourceFile());
    // Opening a FIFO would wait for a writer.
    if (!QFileInfo(source).isFile() || !source.open(QIODevice::ReadOnly))
        return;
    QByteArray block = source.read(8192);
    char last = '\n';
    char beforeLast = '\n';
    for (; !block.isEmpty(); block = source.read(8192)) {
        target->write(block);
        beforeLast = block.size() > 1 ? block.at(block.size() - 2) : last;
        last = block.at(block.size() - 1);
    }
    if (last != '\n')
        target->write("\n");
    // A continued last line would swallow our first one.
    if (last == '\\' || (last == '\n' && beforeLast == '\\'))
        target->write("\n");
}

} // namespace

void applyXResources(unsigned flags)
{
    const QSettings store;
    QTemporaryFile merged(temporaryDirectory() + QLatin1String("/qaz-admin-theme.XXXXXX"));
    if (!merged.open())
        return;
    copyUserResources(&merged);
    if (flags & exportXftSettings) {
        const QString lines = xftResourceLines(store);
        if (store.value(QLatin1String(RenderingKey::forceFontDpi), 0).toInt() == 0)
            removeDpiFromServer();
        merged.write(lines.toLatin1());
    }
    merged.flush();
    QProcess process;
    process.start(QLatin1String(xrdb), {QStringLiteral("-merge"), merged.fileName()});
    process.waitForFinished(-1);
    stampSettingsChange();
}

void removeDpiFromServer()
{
    // Removing takes all of the server's resources, whatever xrdb is told to read.
    std::vector<ServerResource> resources = readServerResources();
    QProcess process;
    process.start(QLatin1String(xrdb),
                  {QStringLiteral("-quiet"), QStringLiteral("-remove"), QStringLiteral("-nocpp")},
                  QIODevice::ReadWrite);
    if (process.waitForStarted(xrdbTimeout)) {
        process.write("Xft.dpi\n");
        process.closeWriteChannel();
        process.waitForFinished(xrdbTimeout);
    }
    for (ServerResource &resource : resources)
        resource.text = withoutResource(resource.text, QByteArrayLiteral("Xft.dpi"));
    writeServerResources(resources);
}
