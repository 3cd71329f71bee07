#include "app/restore.h"

#include "app/configdialog.h"
#include "pages/common/messagebox.h"
#include "settings/backup.h"
#include "settings/desktopwallpapers.h"
#include "settings/directories.h"
#include "settings/wmcommands.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>

namespace {

/// Backs up what is to be removed; without a copy the user decides whether it goes all the same.
bool mayLose(QWidget *parent, const QString &path)
{
    QString reason;
    backUp(path, &reason);
    return reason.isEmpty()
           || showMessage(
                  parent, QMessageBox::Question, ConfigDialog::tr("Warning"),
                  ConfigDialog::tr("Can't back up '%1': %2\nRemove it all the same?").arg(path, reason),
                  QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
                  == QMessageBox::Yes;
}

/// Fails for a directory, which is not copied either: it may be large, and stays. What the user wants to keep is no
/// failure.
bool removeFile(QWidget *parent, const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir() && !info.isSymLink())
        return false;
    return !mayLose(parent, path) || QFile::remove(path);
}

/// Removes the directory \a path with everything in it; of a symbolic link only the link. Links inside are removed,
/// not followed.
bool removeTree(QWidget *parent, const QString &path, const QString &home)
{
    const QFileInfo info(path);
    if (info.isSymLink())
        return removeFile(parent, path);
    const bool mayRemove = mayRemoveTree(path, home)
                           && (!info.exists()
                               || mayRemoveTree(info.canonicalFilePath(),
                                                QFileInfo(home).canonicalFilePath()));
    return mayRemove && (!mayLose(parent, path) || QDir(path).removeRecursively());
}

} // namespace

bool mayRemoveTree(const QString &path, const QString &home)
{
    const QString directory = QDir::cleanPath(path);
    return QDir::isAbsolutePath(directory) && directory != QLatin1String("/")
           && !(QDir::cleanPath(home) + QLatin1Char('/')).startsWith(directory + QLatin1Char('/'));
}

void ConfigDialog::restoreSlot()
{
    const QString onlyTheme = tr("Theme only");
    bool accepted = false;
    const QString choice = QInputDialog::getItem(
        this, tr("Restore"),
        tr("Are you sure?\nIf yes then select restore type and press Yes\n\nRestore type:"),
        {onlyTheme, tr("All Qaz settings")}, 0, false, &accepted);
    if (!accepted)
        return;
    removeDesktopWallpapers();
    const QString home = directoryPath(DirectoryKind::Home);
    const QString toRemove = choice == onlyTheme ? themeFile : directoryPath(DirectoryKind::PersonalSettings);
    if (choice != onlyTheme)
        removeFile(this, home + QLatin1String("/.Xresources"));
    if (choice == onlyTheme ? !removeFile(this, toRemove) : !removeTree(this, toRemove, home))
        showMessage(this, QMessageBox::Critical, tr("Error"), tr("Can't remove '%1'").arg(toRemove));
    removeFile(this, home + QLatin1String("/.config/Trolltech.conf"));
    // Yes as the only button and No as the default one: Qt takes this form for the one with two buttons.
    if (QMessageBox::question(
            this, tr("Restore done"),
            tr("Selected settings are restored. You need to restart session. Do it now (recommended)?"),
            QMessageBox::Yes, QMessageBox::No)
        == QMessageBox::Yes)
        sendToWindowManager(restartCommand);
    close();
}
