#include "platform/findwallpaperbyname.h"

#include "base/diagnostics.h"
#include "freedesktop/dataroot.h"
#include "freedesktop/images.h"
#include "freedesktop/processwait.h"
#include "platform/getqazdir.h"
#include "platform/wallpapersearch.h"

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
constexpr int convertTimeoutMs = 30000;
constexpr int cacheDirectory = 1;
constexpr int userWallpapers = 21;

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
    const bool converted = waitForEnd(converter, convertTimeoutMs)
                           && converter.exitStatus() == QProcess::NormalExit && converter.exitCode() == 0;
    return converted && QFileInfo(target).isFile() ? target : QString();
}

QString findWallpaper(const QString &name, int width, int height, const char *convertCommand)
{
    const QStringList roots = {QString::fromLocal8Bit(GetQazDir(userWallpapers)),
                               QStringLiteral("/usr/share/wallpapers"),
                               dataRoot() + QLatin1String("/wallpapers")};
    const QStringList candidates = wallpaperCandidates(name, roots, width, height);
    for (const QString &candidate : candidates) {
        if (!QFileInfo(candidate).isFile())
            continue;
        QString image = isSvg(candidate) ? convertSvg(candidate, width, height, convertCommand) : candidate;
        if (!image.isEmpty())
            return image;
    }
    return {};
}

} // namespace

void FindWallPaperByName(const char *name, char *result, int width, int height, const char *convertCommand)
{
    const QByteArray path = QFile::encodeName(
        findWallpaper(QString::fromLocal8Bit(name), width, height, convertCommand));
    const bool fits = path.size() < resultSize;
    std::strcpy(result, fits ? path.constData() : "");
}
