#pragma once

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <functional>

/// Tells when another program has changed the theme file, in place or by renaming a new one over it.
class ThemeFileWatcher : public QObject
{
    Q_OBJECT
public:
    /// Watches the file at \a path, which need not exist, and takes what stands there now for known.
    explicit ThemeFileWatcher(const QString &path, QObject *parent = nullptr);

    /// Runs \a change, which may write the file: that is nothing to tell.
    void runOwnChange(const std::function<void()> &change);
    /// Takes what stands in the file now for known.
    void accept();
    /// Tells again after a moment what was told and not accepted.
    void lookAgain();

signals:
    /// The file is another one than the known one. Emitted again after its next change, if it was not accepted.
    void changedByOthers();

private:
    void watch();
    void look();
    QByteArray state() const;

    QString m_path;
    QByteArray m_known;
    QFileSystemWatcher m_watcher;
    QTimer m_timer;
};
