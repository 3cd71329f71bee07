#include "platform/qazsoundtheme.h"

#include "base/atomicfile.h"
#include "freedesktop/desktopentry.h"
#include "freedesktop/sounddirectories.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSet>
#include <QVector>

#include <cstring>
#include <optional>

namespace {

constexpr int soundBufferSize = 4096;
constexpr char themeGroup[] = "Sound Theme";
const QLatin1String defaultProfile("stereo");

/// What one theme's index says, and where the theme's directories are.
struct ThemeIndex {
    QString directory;      // holds the index
    QStringList placements; // the theme's directory in each base directory that has one
    QString shownName;
    QStringList parents;
    QMap<QString, QStringList> directoriesOfProfile;
};

QString indexPath(const QString &baseDirectory, const QString &themeName)
{
    return baseDirectory + QLatin1Char('/') + themeName + QLatin1String("/index.theme");
}

bool isThemeName(const QString &name)
{
    return !name.isEmpty() && !name.startsWith(QLatin1Char('.')) && !name.contains(QLatin1Char('/'));
}

QString textOf(const KeyFileText &index, const QByteArray &group, const QByteArray &key)
{
    return QString::fromUtf8(index.value(group, key).value_or(QByteArray()));
}

QStringList listOf(const KeyFileText &index, const QByteArray &key)
{
    QStringList items;
    for (const QByteArray &item : listItems(index.value(themeGroup, key).value_or(QByteArray())))
        items.append(QString::fromUtf8(item));
    return items;
}

QString localisedName(const KeyFileText &index)
{
    for (const QString &locale : localeVariants({})) {
        const QByteArray key = locale.isEmpty() ? QByteArrayLiteral("Name") : "Name[" + locale.toUtf8() + ']';
        if (QString name = textOf(index, themeGroup, key); !name.isEmpty())
            return name;
    }
    return {};
}

void readIndex(const KeyFileText &text, ThemeIndex *index)
{
    index->shownName = localisedName(text);
    index->parents = listOf(text, "Inherits");
    for (const QString &directory : listOf(text, "Directories"))
        index->directoriesOfProfile[textOf(text, directory.toUtf8(), "OutputProfile")].append(directory);
}

/// The index of the theme \a name as the first of \a baseDirectories that has one gives it.
std::optional<ThemeIndex> loadIndex(const QString &name, const QStringList &baseDirectories)
{
    ThemeIndex index;
    if (!isThemeName(name))
        return std::nullopt;
    for (const QString &base : baseDirectories) {
        const QString placement = base + QLatin1Char('/') + name;
        if (!QFileInfo(placement).isDir())
            continue;
        index.placements.append(placement);
        if (!index.directory.isEmpty())
            continue;
        const FileContent file = readRegularFile(indexPath(base, name), themeIndexLimit);
        if (file.state == FileState::Missing)
            continue;
        index.directory = placement;
        readIndex(desktopEntryText(file.content), &index);
    }
    if (index.directoriesOfProfile.isEmpty() && index.parents.isEmpty())
        return std::nullopt;
    return index;
}

} // namespace

class QazSoundTheme::Private
{
public:
    QString findSound(const QString &name, const QString &profile, const QString &locale);

    QByteArray themeName;
    QByteArray shownName;
    QByteArray path;
    QStringList baseDirectories;
    QVector<ThemeIndex> chain; // the theme itself, then those it inherits from; empty unless loaded

    void loadChain();

private:
    std::optional<SoundCandidate> findInTheme(const ThemeIndex &theme, const QString &name,
                                              const QStringList &profiles, const QStringList &locales);
    std::optional<SoundCandidate> findBest(const QString &placement, const QStringList &directories,
                                           const QString &locale, const QString &name);

    SoundDirectories m_directories;
};

void QazSoundTheme::Private::loadChain()
{
    chain.clear();
    m_directories = {};
    QSet<QString> seen;
    // The standard's order: each parent is followed by its own parents; the common theme stands behind all.
    QStringList waiting{QString::fromLocal8Bit(themeName), QStringLiteral("freedesktop")};
    while (!waiting.isEmpty()) {
        const QString name = waiting.takeFirst();
        if (seen.contains(name))
            continue;
        seen.insert(name);
        const std::optional<ThemeIndex> index = loadIndex(name, baseDirectories);
        if (!index && chain.isEmpty())
            return;
        if (!index)
            continue;
        chain.append(*index);
        waiting = index->parents + waiting;
    }
}

std::optional<SoundCandidate> QazSoundTheme::Private::findBest(const QString &placement,
                                                               const QStringList &directories,
                                                               const QString &locale, const QString &name)
{
    std::optional<SoundCandidate> best;
    for (const QString &directory : directories) {
        QString path = QDir::cleanPath(placement + QLatin1Char('/') + directory);
        if (!locale.isEmpty())
            path += QLatin1Char('/') + locale;
        const std::optional<SoundCandidate> candidate = m_directories.find(path, name);
        if (candidate && (!best || candidate->rank < best->rank))
            best = candidate;
    }
    return best;
}

std::optional<SoundCandidate> QazSoundTheme::Private::findInTheme(const ThemeIndex &theme,
                                                                  const QString &name,
                                                                  const QStringList &profiles,
                                                                  const QStringList &locales)
{
    for (const QString &profile : profiles) {
        const QStringList directories = theme.directoriesOfProfile.value(profile);
        for (const QString &locale : locales) {
            for (const QString &placement : theme.placements) {
                if (auto found = findBest(placement, directories, locale, name))
                    return found;
            }
        }
    }
    return std::nullopt;
}

QString QazSoundTheme::Private::findSound(const QString &name, const QString &profile, const QString &locale)
{
    QStringList profiles{profile, defaultProfile, QString()};
    if (profile.isEmpty())
        profiles.removeFirst();
    const QStringList locales = localeVariants(locale);
    std::optional<SoundCandidate> found;
    for (const ThemeIndex &theme : qAsConst(chain)) {
        // Dashes separate levels of detail; a theme's own general sound fits better than another theme's special one.
        QString level = name;
        do {
            found = findInTheme(theme, level, profiles, locales);
            level.truncate(level.lastIndexOf(QLatin1Char('-')));
        } while (!found && !level.isEmpty());
        if (found)
            break;
    }
    for (int i = 0; !found && i < baseDirectories.size(); ++i)
        found = m_directories.find(baseDirectories.at(i), name); // sounds of no theme
    return found && found->rank != SoundCandidate::Disabled ? found->path : QString();
}

QazSoundTheme::QazSoundTheme(const char *themeName, const char *firstDirectory)
    : d(std::make_unique<Private>())
{
    d->themeName = themeName;
    d->shownName = themeName;
    d->baseDirectories = soundBaseDirectories();
    if (firstDirectory)
        d->baseDirectories.prepend(QFile::decodeName(firstDirectory));
}

QazSoundTheme::~QazSoundTheme() = default;

bool QazSoundTheme::getThemesNames(List<char> *names)
{
    QMap<QString, bool> isListed; // sorted by name; an index hides those of the same name behind it
    for (const QString &base : soundBaseDirectories()) {
        QDirIterator directories(base, QDir::Dirs | QDir::NoDotAndDotDot);
        while (directories.hasNext()) {
            directories.next();
            const QString name = directories.fileName();
            if (isListed.contains(name))
                continue;
            const FileContent index = readRegularFile(indexPath(base, name), themeIndexLimit);
            if (index.state != FileState::Missing)
                isListed.insert(name, desktopEntryText(index.content).value(themeGroup, "Hidden")
                                          != QByteArray("true"));
        }
    }
    const int before = names->count();
    for (auto theme = isListed.cbegin(); theme != isListed.cend(); ++theme) {
        if (theme.value())
            names->append(theme.key().toLocal8Bit().constData());
    }
    return names->count() > before;
}

bool QazSoundTheme::load()
{
    d->loadChain();
    if (d->chain.isEmpty())
        return false;
    const ThemeIndex &own = d->chain.constFirst();
    d->path = QFile::encodeName(own.directory);
    if (!own.shownName.isEmpty())
        d->shownName = own.shownName.toLocal8Bit();
    return true;
}

bool QazSoundTheme::getSound(const char *name, const char *profile, const char *locale, char *buffer)
{
    if (d->chain.isEmpty())
        return false;
    const QByteArray path = QFile::encodeName(d->findSound(
        QString::fromLocal8Bit(name), QString::fromLocal8Bit(profile), QString::fromLocal8Bit(locale)));
    if (path.isEmpty() || path.size() >= soundBufferSize)
        return false;
    std::memcpy(buffer, path.constData(), size_t(path.size()) + 1);
    return true;
}

const char *QazSoundTheme::getPath() const
{
    return d->path.constData();
}

const char *QazSoundTheme::getName() const
{
    return d->shownName.constData();
}

const char *QazSoundTheme::getThemeName() const
{
    return d->themeName.constData();
}
