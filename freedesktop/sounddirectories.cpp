#include "freedesktop/sounddirectories.h"

#include "base/xdgdirectories.h"
#include "freedesktop/dataroot.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

QString environmentText(const char *name)
{
    return QFile::decodeName(qgetenv(name));
}

void addDirectory(QStringList *directories, const QString &directory)
{
    // The base directory standard tells to ignore paths that are not absolute.
    const QString clean = QDir::cleanPath(directory);
    if (QDir::isAbsolutePath(clean) && !directories->contains(clean))
        directories->append(clean);
}

SoundCandidate::Rank rankOf(const QString &ending)
{
    constexpr const char *endings[] = {"disabled", "wav", "au", "oga", "ogg"}; // in the order of the ranks
    const auto found = std::find_if(std::begin(endings), std::end(endings),
                                    [&ending](const char *known) { return ending == QLatin1String(known); });
    return SoundCandidate::Rank(found - std::begin(endings));
}

QHash<QString, SoundCandidate> listSounds(const QString &directory)
{
    QHash<QString, SoundCandidate> sounds;
    // System files, too: a pipe may be played like any other sound.
    QDirIterator files(directory, QDir::Files | QDir::System | QDir::Hidden);
    while (files.hasNext()) {
        files.next();
        const QString fileName = files.fileName();
        const int dot = fileName.lastIndexOf(QLatin1Char('.'));
        if (dot <= 0)
            continue;
        const SoundCandidate candidate{rankOf(fileName.mid(dot + 1)),
                                       directory + QLatin1Char('/') + fileName};
        const auto known = sounds.find(fileName.left(dot));
        if (known == sounds.end())
            sounds.insert(fileName.left(dot), candidate);
        else if (candidate.rank < known->rank
                 || (candidate.rank == known->rank && candidate.path < known->path))
            *known = candidate;
    }
    return sounds;
}

} // namespace

QStringList soundBaseDirectories()
{
    QString system = environmentText("XDG_DATA_DIRS");
    if (system.isEmpty())
        system = QStringLiteral("/usr/local/share:/usr/share");

    QStringList directories;
    addDirectory(&directories, xdgDirectory("XDG_DATA_HOME", "/.local/share") + QLatin1String("/sounds"));
    for (const QString &directory : system.split(QLatin1Char(':'), Qt::SkipEmptyParts))
        addDirectory(&directories, directory + QLatin1String("/sounds"));
    addDirectory(&directories, QFileInfo(dataRoot()).absoluteFilePath() + QLatin1String("/sounds"));
    return directories;
}

QStringList localeVariants(const QString &locale)
{
    QString name = locale;
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (name.isEmpty())
            name = environmentText(variable);
    }
    const QString modifier = name.contains(QLatin1Char('@')) ? name.mid(name.indexOf(QLatin1Char('@')))
                                                             : QString();
    name = name.section(QLatin1Char('@'), 0, 0).section(QLatin1Char('.'), 0, 0);
    const QString language = name.section(QLatin1Char('_'), 0, 0);

    QStringList variants{name + modifier, name, language + modifier, language, QStringLiteral("C")};
    variants.removeAll(QString());
    // A locale never leads out of the theme's directory.
    variants.erase(std::remove_if(variants.begin(), variants.end(),
                                  [](const QString &variant) { return variant.contains(QLatin1Char('/')); }),
                   variants.end());
    variants.removeDuplicates();
    return variants << QString();
}

std::optional<SoundCandidate> SoundDirectoryCache::find(const QString &directory, const QString &name)
{
    const QFileInfo info(directory);
    if (!info.isDir())
        return std::nullopt;
    const QDateTime modified = info.lastModified();
    auto listing = m_listings.find(directory);
    if (listing == m_listings.end() || listing->modified != modified)
        listing = m_listings.insert(directory, {modified, listSounds(directory)});
    const auto sound = listing->sounds.constFind(name);
    return sound == listing->sounds.constEnd() ? std::nullopt : std::make_optional(*sound);
}
