#include "pages/theme/themelists.h"

#include "base/diagnostics.h"
#include "freedesktop/cursorfiles.h"
#include "freedesktop/themedirectories.h"
#include "pages/theme/previews.h"
#include "pages/theme/themeimages.h"
#include "platform/qazicontheme.h"

#include <QFile>
#include <QIconEngine>
#include <QPixmap>

#include <algorithm>
#include <functional>

namespace {

constexpr unsigned pointerShape = 68;
constexpr unsigned watchShape = 150;
constexpr unsigned textShape = 152;
constexpr int themeIconSize = 32;

/// An icon of \a size whose picture \a draw makes when it is shown for the first time.
class LazyIconEngine : public QIconEngine
{
public:
    LazyIconEngine(const QSize &size, const std::function<QImage()> &draw)
        : m_size(size)
        , m_draw(draw)
    {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, mode, state);
    }
    QSize actualSize(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        const bool fits = size.width() >= m_size.width() && size.height() >= m_size.height();
        return fits ? m_size : m_size.scaled(size, Qt::KeepAspectRatio);
    }
    QIconEngine *clone() const override { return new LazyIconEngine(*this); }

private:
    const QIcon &icon()
    {
        if (m_icon.isNull())
            m_icon = QIcon(QPixmap::fromImage(m_draw()));
        return m_icon;
    }

    QSize m_size;
    std::function<QImage()> m_draw;
    QIcon m_icon;
};

QStringList sortedNames(const List<char> &list)
{
    QStringList names;
    for (int i = 0; i < list.count(); ++i)
        names.append(QFile::decodeName(list.at(i)));
    std::sort(names.begin(), names.end());
    return names;
}

QString iconPath(const QazIconTheme &theme, const char *name, const char *context)
{
    QString path;
    theme.getIcon(name, themeIconSize, context, &path);
    return path;
}

/// The preview of an icon theme from the paths of its home, trash and desktop icons.
QImage placesPreview(const QSize &size, const QStringList &paths)
{
    return threeImagesPreview(size, loadIconImage(paths.at(0), themeIconSize),
                              loadIconImage(paths.at(1), themeIconSize),
                              loadIconImage(paths.at(2), themeIconSize));
}

QIcon iconOf(const QImage &preview)
{
    return QIcon(QPixmap::fromImage(preview));
}

} // namespace

QVector<ThemeEntry> cursorThemeEntries(const QSize &size)
{
    QVector<ThemeEntry> entries;
    List<char> list;
    QazIconTheme::getCursorThemeNames(&list);
    ThemeDirectories directories(cursorSearchPath());
    for (const QString &name : sortedNames(list)) {
        const QImage pointer = loadCursorImage(pointerShape, name, directories);
        const QImage watch = loadCursorImage(watchShape, name, directories);
        const QImage text = loadCursorImage(textShape, name, directories);
        if (!pointer.isNull() && !watch.isNull() && !text.isNull())
            entries.append({name, iconOf(threeImagesPreview(size, pointer, watch, text))});
    }
    return entries;
}

QVector<ThemeEntry> iconThemeEntries(const QSize &size)
{
    QVector<ThemeEntry> entries;
    List<char> list;
    QazIconTheme common("hicolor", nullptr, false); // alive to the end: the themes share what they look up
    common.load();
    QazIconTheme::getThemesNames(&list);
    for (const QString &name : sortedNames(list)) {
        if (name == QLatin1String("hicolor") || name == QLatin1String("default"))
            continue;
        QazIconTheme theme(QFile::encodeName(name).constData(), nullptr, false);
        theme.load();
        QStringList places;
        for (const char *place : {"user-home", "user-trash", "user-desktop"})
            places.append(iconPath(theme, place, "Places"));
        if (!iconPath(theme, "preferences-system-time", "Applications").isEmpty())
            // Decoding the icons is most of the work; only the themes that come into view need it.
            entries.append({name, QIcon(new LazyIconEngine(
                                      size, [size, places] { return placesPreview(size, places); }))});
        else
            printDiagnostic(
                QStringLiteral("theme %1 is not full (no preferences-system-time in apps)").arg(name));
    }
    return entries;
}

QVector<ThemeEntry> decorThemeEntries(const QSize &size)
{
    QVector<ThemeEntry> entries;
    QStringList names;
    listDecorThemes(&names);
    std::sort(names.begin(), names.end());
    for (const QString &name : qAsConst(names)) {
        if (const std::optional<DecorImages> images = loadDecorImages(name))
            entries.append({name, iconOf(decorPreview(size, *images))});
    }
    return entries;
}
