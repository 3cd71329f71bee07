#include "platform/qazicontheme.h"

#include "freedesktop/cursorfiles.h"
#include "freedesktop/iconfiles.h"
#include "freedesktop/themedirectories.h"

#include <QFile>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr int usualSizes[] = {16, 22, 32, 48, 64, 96, 128, 256};
constexpr int desktopKind = 1;

/// Whoever goes through many themes keeps one of them, and so what all of them look up.
std::shared_ptr<ThemeDirectories> sharedDirectories()
{
    static std::weak_ptr<ThemeDirectories> shared;
    std::shared_ptr<ThemeDirectories> directories = shared.lock();
    if (!directories)
        shared = directories = std::make_shared<ThemeDirectories>(iconSearchPath());
    return directories;
}

} // namespace

QazIconTheme::QazIconTheme(const char *name, const QazIconTheme * /*parent*/, bool /*isFallback*/)
    : m_name(name)
{}

bool QazIconTheme::load()
{
    m_directories = sharedDirectories();
    const IconThemeIndex *index = m_directories->index(m_directories->locations(m_name));
    return index && index->hasDirectories;
}

bool QazIconTheme::getIcon(const char *name, int size, const char *context, QString *resultPath) const
{
    const QByteArray file = m_directories ? iconFile(*m_directories, m_name, name, size, context)
                                          : QByteArray();
    *resultPath = QFile::decodeName(file);
    return !file.isEmpty();
}

bool QazIconTheme::getThemesNames(List<char> *list)
{
    const std::shared_ptr<ThemeDirectories> directories = sharedDirectories();
    QSet<QByteArray> names;
    for (const QByteArray &base : directories->searchPath()) {
        for (const QByteArray &name : directories->listing(base).directories) {
            const IconThemeIndex *index = directories->index(directories->locations(name));
            if (index && index->hasDirectories)
                names.insert(name);
        }
    }
    for (const QByteArray &name : qAsConst(names))
        list->append(name.constData());
    return !list->isEmpty();
}

bool QazIconTheme::getCursorThemeNames(List<char> *list)
{
    ThemeDirectories directories(cursorSearchPath());
    for (const QByteArray &name : cursorThemeNames(directories))
        list->append(name.constData());
    return !list->isEmpty();
}

int QazIconTheme::GetIconSizeForDPI(double dpi, int kind)
{
    const double wanted = (kind == desktopKind ? 48 : 32) * dpi / 96;
    return *std::min_element(std::begin(usualSizes), std::end(usualSizes), [wanted](int size, int other) {
        return std::abs(size - wanted) < std::abs(other - wanted);
    });
}
