#include "platform/findwallpaperbyname.h"

#include "base/diagnostics.h"
#include "freedesktop/dataroot.h"
#include "freedesktop/images.h"
#include "freedesktop/processwait.h"
#include "platform/getqazdir.h"
#include "platform/wallpapersizeforscreen.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <cstring>

namespace {

constexpr int resultSize = 4096;
constexpr int cacheDirectory = 1;
constexpr int userWallpapers = 21;
constexpr const char *endings[] = {"", ".png", ".jpg", ".jpeg", ".xpm", ".svg", ".svgz"};

/// Where the rendering of \a source is kept: the digest keeps equal names of different directories apart.
QString renderedPath(const QString &source, int width, int height)
{
    const QString cache = QString::fromLocal8Bit(GetQazDir(cacheDirectory));
    if (cache.isEmpty())
        return {};
    const QByteArray digest = QCryptographicHash::hash(QFile::encodeName(source), QCryptographicHash::Sha1);
    return QStringLiteral("%1/svg_%2x%3_%4.png")
        .arg(cache, QString::number(width), QString::number(height), QString::fromLatin1(digest.toHex()));
}

QString findProgram(const QString &name)
{
    const QString inPath = QStandardPaths::findExecutable(name);
    return inPath.isEmpty() ? QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()})
                            : inPath;
}

/// Splits a command at its blanks, keeping quoted parts together, before file names are filled in.
QStringList convertArguments(const QString &command, int width, int height, const QString &source,
                             const QString &target)
{
    QStringList numbers = {QString::number(width), QString::number(height)};
    QStringList files = {source, target};
    QStringList arguments = QProcess::splitCommand(command);
    for (QString &argument : arguments) {
        if (argument == QLatin1String("%d") && !numbers.isEmpty())
            argument = numbers.takeFirst();
        else if (argument == QLatin1String("%s") && !files.isEmpty())
            argument = files.takeFirst();
    }
    return arguments;
}

QString convertSvg(const QString &source, int width, int height, const char *command)
{
    QString target = renderedPath(source, width, height);
    if (target.isEmpty())
        return {};
    const QFileInfo rendered(target);
    if (rendered.isFile() && rendered.lastModified() > QFileInfo(source).lastModified())
        return target;

    QStringList arguments = convertArguments(QString::fromLocal8Bit(command), width, height, source, target);
    if (arguments.isEmpty())
        return {};
    const QString name = arguments.takeFirst();
    const QString program = findProgram(name);
    if (program.isEmpty()) {
        printDiagnostic(QStringLiteral("Can't convert %1: %2 is not installed").arg(source, name));
        return {};
    }
    QProcess converter;
    converter.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    converter.setStandardInputFile(QProcess::nullDevice());
    converter.start(program, arguments);
    return succeeds(converter) && QFileInfo(target).isFile() ? target : QString();
}

/// Every path at which the wallpaper may lie, best first: the directories of the screen's size, its standard size and
/// its aspect ratio before the others'.
QStringList candidates(const QString &name, int width, int height)
{
    int standardWidth, standardHeight, ratioWidth, ratioHeight;
    WallpaperSizeForScreen(width, height, &standardWidth, &standardHeight, &ratioWidth, &ratioHeight);
    const QString directories[] = {QStringLiteral("/%1x%2/").arg(width).arg(height),
                                   QStringLiteral("/%1x%2/").arg(standardWidth).arg(standardHeight),
                                   QStringLiteral("/%1:%2/").arg(ratioWidth).arg(ratioHeight),
                                   QStringLiteral("/")};
    QStringList paths;
    for (const QString &root :
         {QString::fromLocal8Bit(GetQazDir(userWallpapers)), QStringLiteral("/usr/share/wallpapers"),
          dataRoot() + QLatin1String("/wallpapers")}) {
        for (const QString &directory : directories) {
            for (const char *ending : endings)
                paths += root + directory + name + QLatin1String(ending);
        }
    }
    return paths;
}

} // namespace

void FindWallPaperByName(const char *name, char *result, int width, int height, const char *convertCommand)
{
    *result = '\0';
    const QString wanted = QString::fromLocal8Bit(name);
    if (wanted.isEmpty() || wanted.contains(QLatin1Char('/')))
        return;
    for (const QString &path : candidates(wanted, width, height)) {
        if (!QFileInfo(path).isFile())
            continue;
        const QByteArray image = QFile::encodeName(
            isSvg(path) ? convertSvg(path, width, height, convertCommand) : path);
        if (!image.isEmpty() && image.size() < resultSize) {
            std::strcpy(result, image.constData());
            return;
        }
    }
}
