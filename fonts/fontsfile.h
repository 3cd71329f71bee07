#pragma once

#include "base/atomicfile.h"
#include "base/chandle.h"

#include <QString>
#include <QStringList>

#include <memory>

#include <fontconfig/fontconfig.h>

/// The files that make up fontconfig's current configuration, directories included.
QStringList fontconfigFiles();

/// The user's own file in the configuration directory, whether it exists or not.
QString userFontsFile();

/// Which of \a configFiles (see fontconfigFiles()) the rendering settings belong into; the default place when
/// there is none yet. The directory of the user's default place is created with mode 0700.
QString chooseFontsFile(const QStringList &configFiles, bool system);

/// Reads a fontconfig file. One that is too big for a configuration and a link to nothing are Unreadable.
FileContent readFontsFile(const QString &path);

/// Tells versions of a regular file apart; empty when there is none at \a path.
QString fontsFileStamp(const QString &path);

/// Whether a file can be made at \a path: its directory exists and is writable.
bool canMakeFile(const QString &path);

/// fontconfig's own lock on one of its files, for which it waits up to a second. Symbolic links are followed.
class FontsFileLock
{
public:
    explicit FontsFileLock(const QString &path);
    ~FontsFileLock();
    FontsFileLock(const FontsFileLock &) = delete;
    FontsFileLock &operator=(const FontsFileLock &) = delete;

    bool isHeld() const { return m_held; }

    /// Replaces the locked file by \a content in one step; mode and ownership stay. On failure the old file
    /// stands whole and \a error says why.
    [[nodiscard]] bool replace(const QByteArray &content, QString *error);

private:
    QByteArray m_target;
    std::unique_ptr<FcAtomic, Release<FcAtomicDestroy>> m_atomic;
    bool m_held = false;
};
