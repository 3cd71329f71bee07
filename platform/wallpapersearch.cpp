#include "platform/wallpapersearch.h"

#include "platform/wallpapersizeforscreen.h"

#include <QProcess>

namespace {

constexpr const char *endings[] = {"", ".png", ".jpg", ".jpeg", ".xpm", ".svg", ".svgz"};

/// Replaces the placeholders by the first of what is left, which is taken out. Others stay as they stand.
QString filledIn(const QString &argument, QStringList *numbers, QStringList *files)
{
    QString filled;
    for (int i = 0; i < argument.size(); ++i) {
        const QStringRef placeholder = argument.midRef(i, 2);
        if (placeholder == QLatin1String("%d") && !numbers->isEmpty())
            filled += numbers->takeFirst();
        else if (placeholder == QLatin1String("%s") && !files->isEmpty())
            filled += files->takeFirst();
        else if (placeholder == QLatin1String("%%"))
            filled += QLatin1Char('%');
        else {
            filled += argument[i];
            continue;
        }
        ++i;
    }
    return filled;
}

} // namespace

QStringList wallpaperCandidates(const QString &name, const QStringList &roots, int width, int height)
{
    QStringList candidates;
    if (name.isEmpty() || name == QLatin1String(".") || name == QLatin1String("..")
        || name.contains(QLatin1Char('/')))
        return candidates;
    int standardWidth = 0, standardHeight = 0, ratioWidth = 0, ratioHeight = 0;
    WallpaperSizeForScreen(width, height, &standardWidth, &standardHeight, &ratioWidth, &ratioHeight);
    const QString directories[] = {QStringLiteral("/%1x%2/").arg(width).arg(height),
                                   QStringLiteral("/%1x%2/").arg(standardWidth).arg(standardHeight),
                                   QStringLiteral("/%1:%2/").arg(ratioWidth).arg(ratioHeight),
                                   QStringLiteral("/")};
    for (const QString &root : roots) {
        if (root.isEmpty())
            continue;
        for (const QString &directory : directories) {
            for (const char *ending : endings)
                candidates += root + directory + name + QLatin1String(ending);
        }
    }
    return candidates;
}

QStringList convertArguments(const QString &command, int width, int height, const QString &source,
                             const QString &target)
{
    QStringList numbers = {QString::number(width), QString::number(height)};
    QStringList files = {source, target};
    QStringList arguments = QProcess::splitCommand(command);
    for (QString &argument : arguments)
        argument = filledIn(argument, &numbers, &files);
    return arguments;
}
