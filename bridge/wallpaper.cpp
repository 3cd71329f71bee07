#include "bridge/wallpaper.h"

#include "bridge/programs.h"
#include "bridge/wallpaperpicture.h"
#include "bridge/xconnection.h"
#include "freedesktop/images.h"
#include "settings/colortexts.h"
#include "settings/desktopwallpapers.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <chrono>

namespace {

constexpr int longestPeriod = 3600; // minutes, as in the editor

/// The name of the rendering of the SVG file \a path for \a size.
QString renderedName(const QString &path, const QSize &size)
{
    const QByteArray digest = QCryptographicHash::hash(QFile::encodeName(path), QCryptographicHash::Sha1);
    return QStringLiteral("%1x%2-%3.png")
        .arg(QString::number(size.width()), QString::number(size.height()),
             QString::fromLatin1(digest.toHex()));
}

QStringList showCommand(const QString &path, Fit fit, const QColor &background)
{
    constexpr const char *options[] = {"--bg-center", "--bg-tile", "--bg-scale"};
    return {QStringLiteral("feh"), QStringLiteral("--no-fehbg"),           QStringLiteral("--image-bg"),
            background.name(),     QString::fromLatin1(options[int(fit)]), path};
}

} // namespace

Wallpaper::Wallpaper(const Session &session)
    : m_session(session)
{
    connect(&m_slideTimer, &QTimer::timeout, this, &Wallpaper::showNext);
}

void Wallpaper::apply()
{
    setUpSlides();
    m_shown.clear();
    show();
}

void Wallpaper::setUpSlides()
{
    const QString wallpaper = m_session.values.text("WallPaper", "qaz-default");
    const int minutes = m_session.values.number("WallPaperPeriod", longestPeriod);
    if (wallpaper == m_wallpaper && minutes == m_minutes)
        return;
    m_wallpaper = wallpaper;
    m_minutes = minutes;
    m_slide.clear();
    m_slideTimer.stop();
    if (minutes)
        m_slideTimer.start(std::chrono::minutes(minutes));
}

void Wallpaper::showNext()
{
    const QString current = m_slide.isEmpty() ? found(m_wallpaper) : m_slide;
    if (current.isEmpty())
        return;
    m_slide = nextPicture(current);
    show();
}

void Wallpaper::show()
{
    // A desktop's own wallpaper may stand in quotation marks, and fills the screen.
    const QString own = desktopWallpaper(m_session.x.currentDesktop() + 1).remove(QLatin1Char('"'));
    const Fit fit = fitFromWord(m_session.values.text("WallPaperPos", "Stretch"));
    const QVector<QStringList> commands = !own.isEmpty()
                                              ? commandsFor(own, Fit::Stretch)
                                              : commandsFor(m_slide.isEmpty() ? m_wallpaper : m_slide, fit);
    if (commands == m_shown)
        return;
    m_shown = commands;
    m_session.programs.run(commands);
}

QString Wallpaper::found(const QString &wallpaper) const
{
    // A dry run converts nothing.
    return wallpaper.startsWith(QLatin1Char('/'))
               ? wallpaper
               : wallpaperNamed(wallpaper, m_session.x.screenSize(), !m_session.options.dryRun);
}

QVector<QStringList> Wallpaper::commandsFor(const QString &wallpaper, Fit fit) const
{
    const QColor background = desktopColor(m_session.values.text("DesktopColor", "blue"));
    if (wallpaper.isEmpty() || isColorText(wallpaper))
        return colorCommands(wallpaper.isEmpty() ? background : QColor(wallpaper));
    const QString path = found(wallpaper);
    if (!isImageFile(path)) {
        tell(QStringLiteral("The wallpaper '%1' is no image file").arg(wallpaper));
        return colorCommands(background);
    }
    if (!isSvg(path))
        return {showCommand(path, fit, background)};
    const QSize size = m_session.x.screenSize();
    const QString rendered = ownFile(renderedName(path, size));
    const QStringList show = showCommand(rendered, fit, background);
    if (QFileInfo(rendered).isFile() && QFileInfo(rendered).lastModified() > QFileInfo(path).lastModified())
        return {show};
    return {{QStringLiteral("qaz-svg2png"), QStringLiteral("-w"), QString::number(size.width()),
             QStringLiteral("-h"), QString::number(size.height()), QStringLiteral("-i"), path,
             QStringLiteral("-o"), rendered},
            show};
}

QVector<QStringList> Wallpaper::colorCommands(const QColor &color) const
{
    const QString path = ownFile(QLatin1String("color-") + color.name().mid(1) + QLatin1String(".ppm"));
    if (!QFileInfo::exists(path))
        m_session.write(path, "P6 1 1 255\n" + QByteArray(1, char(color.red())) + char(color.green())
                                  + char(color.blue()));
    return {showCommand(path, Fit::Tile, color)};
}
