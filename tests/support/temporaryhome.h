#pragma once

#include <QByteArrayList>
#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <vector>

#include "tests/support/environment.h"

/// A home of a test's own: HOME and every XDG directory point into a temporary directory until the end of the
/// scope, Qt's settings included. The directories below it do not exist until something makes them.
class TemporaryHome
{
public:
    TemporaryHome();
    ~TemporaryHome();

    /// The absolute path of \a relative below the home; the home itself for an empty text.
    QString path(const QString &relative = {}) const;
    /// Writes a file below the home, with its directories, and returns its absolute path.
    QString write(const QString &relative, const QByteArray &content) const;
    /// The content of a file below the home; a null array when there is none.
    QByteArray read(const QString &relative) const;
    bool exists(const QString &relative) const;
    bool makeDirectory(const QString &relative) const;
    /// Makes a FIFO in an existing directory and returns its absolute path.
    QString makeFifo(const QString &relative) const;
    /// The permission bits of what stands there, through a link; 0 when nothing does.
    unsigned mode(const QString &relative) const;
    /// The contents of the backups, sorted; empty for a directory.
    QByteArrayList backups() const;
    /// Every file below the home with its content's digest and modification time, sorted: equal texts mean
    /// that nothing was written.
    QString fingerprint() const;

private:
    QTemporaryDir m_directory;
    std::vector<std::unique_ptr<ScopedEnvironment>> m_environment;
};
