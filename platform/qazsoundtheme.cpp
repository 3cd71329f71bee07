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

#include <optional>

namespace {

constexpr int soundBufferSize = 4096;
constexpr char themeGroup[] = "Sound Theme";

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
    for (const QString &locale : localeVariants()) {
        const QString key = locale.isEmpty() ? QStringLiteral("Name")
                                             : QStringLiteral("Name[%1]").arg(locale);
        if (QString name = textOf(index, themeGroup, key.toUtf8()); !name.isEmpty())
            return name;
    }
    return {};
}

/// The index of the theme \a name as the first of \a baseDirectories that has one gives it.
std::optional<ThemeIndex> loadIndex(const QString &name, const QStringList &baseDirectories)
{
    ThemeIndex index;
    if (name.isEmpty() || name.startsWith(QLatin1Char('.')) || name.contains(QLatin1Char('/')))
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
        const KeyFileText text = desktopEntryText(file.content);
        index.shownName = localisedName(text);
        index.parents = listOf(text, "Inherits");
        for (const QString &directory : listOf(text, "Directories"))
            index.directoriesOfProfile[textOf(text, directory.toUtf8(), "OutputProfile")].append(directory);
    }
    if (index.directoriesOfProfile.isEmpty() && index.parents.isEmpty())
        return std::nullopt;
    return index;
}

} // namespace

struct QazSoundTheme::Lookup {
    QStringList baseDirectories = soundBaseDirectories();
    QVector<ThemeIndex> chain; // the theme itself, then those it inherits from; empty unless loaded
    QHash<QString, QHash<QString, SoundCandidate>>
        sounds; // by directory and name, each directory listed once

    void loadChain(const QString &themeName)
    {
        QSet<QString> seen;
        // The standard's order: each parent is followed by its own parents; the common theme stands behind all.
        QStringList waiting{themeName, QStringLiteral("freedesktop")};
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

    std::optional<SoundCandidate> findInDirectory(const QString &directory, const QString &name)
    {
        if (!sounds.contains(directory))
            sounds.insert(directory, soundsIn(directory));
        const auto sound = sounds[directory].constFind(name);
        return sound == sounds[directory].constEnd() ? std::nullopt : std::make_optional(*sound);
    }

    /// The sound for stereo, else for no profile, each in the first of \a locales that \a theme has it for.
    std::optional<SoundCandidate> findInTheme(const ThemeIndex &theme, const QString &name,
                                              const QStringList &locales)
    {
        std::optional<SoundCandidate> best;
        const auto findBetter = [&](const QString &path) {
            const std::optional<SoundCandidate> candidate = findInDirectory(QDir::cleanPath(path), name);
            if (candidate && (!best || candidate->rank < best->rank))
                best = candidate;
        };
        for (const QString &profile : {QStringLiteral("stereo"), QString()}) {
            const QStringList directories = theme.directoriesOfProfile.value(profile);
            for (const QString &locale : locales) {
                for (const QString &placement : theme.placements) {
                    for (const QString &directory : directories)
                        findBetter(placement + QLatin1Char('/') + directory + QLatin1Char('/') + locale);
                    if (best)
                        return best;
                }
            }
        }
        return std::nullopt;
    }

    QString findSound(const QString &name)
    {
        const QStringList locales = localeVariants();
        std::optional<SoundCandidate> found;
        for (const ThemeIndex &theme : qAsConst(chain)) {
            // Dashes separate levels of detail; a theme's own general sound fits better than another theme's special one.
            for (QString level = name; !found && !level.isEmpty();
                 level.truncate(level.lastIndexOf(QLatin1Char('-'))))
                found = findInTheme(theme, level, locales);
        }
        for (const QString &base : qAsConst(baseDirectories)) {
            if (!found)
                found = findInDirectory(base, name); // a sound of no theme
        }
        return found && found->rank != SoundCandidate::Disabled ? found->path : QString();
    }
};

QazSoundTheme::QazSoundTheme(const char *themeName, const char * /*firstDirectory*/)
    : m_themeName(themeName)
    , m_shownName(themeName)
    , m_lookup(std::make_unique<Lookup>())
{}

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
    for (auto theme = isListed.cbegin(); theme != isListed.cend(); ++theme) {
        if (theme.value())
            names->append(theme.key().toLocal8Bit().constData());
    }
    return !names->isEmpty();
}

bool QazSoundTheme::load()
{
    m_lookup = std::make_unique<Lookup>();
    m_lookup->loadChain(QString::fromLocal8Bit(m_themeName));
    if (m_lookup->chain.isEmpty())
        return false;
    const ThemeIndex &own = m_lookup->chain.constFirst();
    m_path = QFile::encodeName(own.directory);
    if (!own.shownName.isEmpty())
        m_shownName = own.shownName.toLocal8Bit();
    return true;
}

bool QazSoundTheme::getSound(const char *name, const char * /*profile*/, const char * /*locale*/,
                             char *buffer)
{
    if (m_lookup->chain.isEmpty())
        return false;
    const QByteArray path = QFile::encodeName(m_lookup->findSound(QString::fromLocal8Bit(name)));
    if (path.isEmpty() || path.size() >= soundBufferSize)
        return false;
    qstrcpy(buffer, path.constData());
    return true;
}
