#pragma once

#include "base/atomicfile.h"
#include "base/chandle.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

#include <fontconfig/fontconfig.h>

/// The files that make up fontconfig's current configuration, directories included.
QStringList fontconfigFiles();

/// Keeps fontconfig, which would wait for a writer, from opening a FIFO in the place of one of the user's files. To be
/// called before anything uses fontconfig.
void guardFontconfig();

/// Loads fontconfig's configuration as its own start does, but without parsing each template that is not in use, too:
/// 8 % of the editor's start. What it can't load whole is left to that start, which then knows what to do.
void loadFontconfig();

/// The user's own file in the configuration directory, whether it exists or not.
QString userFontsFile();

/// Deletes the user's own fontconfig files, so that the system's configuration applies. Each is copied to the
/// backups first; one line on standard error names the copy.
void removeUserFontconfigFiles();

/// Which of \a configFiles (see fontconfigFiles()) the user's rendering settings belong into; userFontsFile(), whose
/// directory is created with mode 0700, when there is none yet.
QString chooseFontsFile(const QStringList &configFiles);

/// Reads a fontconfig file. One that is too big for a configuration and a link to nothing are Unreadable.
FileContent readFontsFile(const QString &path);

/// fontconfig's own lock on one of its files, for which it waits up to two seconds; one that a program left behind when
/// it was killed is removed. Symbolic links are followed.
class FontsFileLock
{
public:
    explicit FontsFileLock(const QString &path);
    ~FontsFileLock();
    FontsFileLock(const FontsFileLock &) = delete;
    FontsFileLock &operator=(const FontsFileLock &) = delete;

    bool isHeld() const { return m_error.isEmpty(); }
    /// Why it is not held.
    QString error() const { return m_error; }

    /// Replaces the locked file by \a content in one step if \a isCurrent still says so when all of it is on the disk;
    /// mode and ownership stay. Otherwise the old file stands whole and \a error says why, or is empty when it was
    /// not current.
    [[nodiscard]] bool replace(const QByteArray &content, const std::function<bool()> &isCurrent,
                               QString *error);

private:
    QByteArray m_target;
    std::unique_ptr<FcAtomic, Release<FcAtomicDestroy>> m_atomic;
    QString m_error;
};
