#include "freedesktop/sounddirectories.h"

#include "base/xdgdirectories.h"
#include "freedesktop/dataroot.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <tuple>

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

QHash<QString, SoundCandidate> soundsIn(const QString &directory)
{
    const QStringList endings{QStringLiteral("disabled"), QStringLiteral("wav"), QStringLiteral("au"),
                              QStringLiteral("oga"), QStringLiteral("ogg")}; // in the order of the ranks
    QHash<QString, SoundCandidate> sounds;
    // System files, too: a pipe may be played like any other sound.
    QDirIterator files(directory, QDir::Files | QDir::System | QDir::Hidden);
    while (files.hasNext()) {
        files.next();
        const QString fileName = files.fileName();
        const int dot = fileName.lastIndexOf(QLatin1Char('.'));
        if (dot <= 0)
            continue;
        const int rank = endings.indexOf(fileName.mid(dot + 1));
        const SoundCandidate candidate{rank < 0 ? SoundCandidate::Other : SoundCandidate::Rank(rank),
                                       directory + QLatin1Char('/') + fileName};
        const auto known = sounds.constFind(fileName.left(dot));
        if (known == sounds.constEnd()
            || std::tie(candidate.rank, candidate.path) < std::tie(known->rank, known->path))
            sounds.insert(fileName.left(dot), candidate);
    }
    return sounds;
}
