#include "settings/backupmanifest.h"

#include "base/atomicfile.h"
#include "base/keyfiletext.h"

#include <QFile>

QVector<ManifestEntry> readManifest(const QString &manifest)
{
    QVector<ManifestEntry> entries;
    for (const QByteArray &line : readRegularFile(manifest).content.split('\n')) {
        const int tab = line.indexOf('\t');
        const QString copy = QFile::decodeName(line.left(tab));
        // Whoever wrote it: nothing outside the directory is a copy, nor is the directory.
        if (tab > 0 && !copy.contains(QLatin1Char('/')) && !copy.startsWith(QLatin1Char('.')))
            entries.append({copy, QFile::decodeName(unescaped(line.mid(tab + 1)))});
    }
    return entries;
}

bool writeManifest(const QString &manifest, const QVector<ManifestEntry> &entries, QString *error)
{
    QByteArray text;
    for (const ManifestEntry &entry : entries)
        text += QFile::encodeName(entry.copy) + '\t' + escaped(QFile::encodeName(entry.original)) + '\n';
    return replaceFile(manifest, text, error, 0600);
}
