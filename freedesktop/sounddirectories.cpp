#include "freedesktop/sounddirectories.h"

#include "base/xdgdirectories.h"
#include "freedesktop/dataroot.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <tuple>

namespace {

SoundCandidate::Rank rankOf(const QString &ending)
{
    static const QStringList endings{QStringLiteral("disabled"), QStringLiteral("wav"), QStringLiteral("au"),
                                     QStringLiteral("oga"),
                                     QStringLiteral("ogg")}; // in the order of the ranks
    const int rank = endings.indexOf(ending);
    return rank < 0 ? SoundCandidate::Other : SoundCandidate::Rank(rank);
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
        const auto known = sounds.constFind(fileName.left(dot));
        if (known == sounds.constEnd()
            || std::tie(candidate.rank, candidate.path) < std::tie(known->rank, known->path))
            sounds.insert(fileName.left(dot), candidate);
    }
    return sounds;
}

} // namespace

QStringList soundBaseDirectories()
{
    QStringList directories = xdgDataDirectories();
    directories.append(QFileInfo(dataRoot()).absoluteFilePath());
    for (QString &directory : directories)
        directory += QLatin1String("/sounds");
    directories.removeDuplicates();
    return directories;
}

QStringList localeVariants()
{
    QString name;
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (name.isEmpty())
            name = QFile::decodeName(qgetenv(variable));
    }
    const QString modifier = name.contains(QLatin1Char('@')) ? name.mid(name.indexOf(QLatin1Char('@')))
                                                             : QString();
    name = name.section(QLatin1Char('@'), 0, 0).section(QLatin1Char('.'), 0, 0);
    const QString language = name.section(QLatin1Char('_'), 0, 0);

    QStringList variants{name + modifier, name, language + modifier, language, QStringLiteral("C")};
    // A locale never leads out of the theme's directory.
    variants = variants.filter(QRegularExpression(QStringLiteral("^[^/]+$")));
    variants.removeDuplicates();
    return variants << QString();
}

std::optional<SoundCandidate> SoundDirectories::find(const QString &directory, const QString &name)
{
    auto sounds = m_sounds.constFind(directory);
    if (sounds == m_sounds.constEnd())
        sounds = m_sounds.insert(directory, listSounds(directory));
    const auto sound = sounds->constFind(name);
    return sound == sounds->constEnd() ? std::nullopt : std::make_optional(*sound);
}
