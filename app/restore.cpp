#include "app/restore.h"

#include "app/configdialog.h"
#include "pages/common/messagebox.h"
#include "pages/wallpaper/desktopwallpapers.h"
#include "settings/backup.h"
#include "settings/directories.h"
#include "settings/wmcommands.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>

#include <algorithm>
#include <iterator>
#include <optional>

namespace {

enum class Remove { ThemeFile, HomeFile, PersonalSettings };
enum class Report { No, Yes };

struct RestoreStep {
    Remove what;
    const char *suffix; // below the home directory
    Report report;
};

// In these orders; a failure never stops the steps after it.
constexpr RestoreStep themeOnly[] = {{Remove::ThemeFile, "", Report::Yes},
                                     {Remove::HomeFile, "/.config/Trolltech.conf", Report::No}};
constexpr RestoreStep allSettings[] = {{Remove::HomeFile, "/.Xresources", Report::No},
                                       {Remove::PersonalSettings, "", Report::Yes},
                                       {Remove::HomeFile, "/.config/Trolltech.conf", Report::No}};

QString pathOf(const RestoreStep &step, const QString &themeFile)
{
    switch (step.what) {
    case Remove::ThemeFile:
        return themeFile;
    case Remove::HomeFile:
        return directoryPath(DirectoryKind::Home) + QLatin1String(step.suffix);
    case Remove::PersonalSettings:
        return directoryPath(DirectoryKind::PersonalSettings);
    }
    return {};
}

/// Fails for a directory, which is not copied either: it may be large, and stays.
bool removeFile(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir() && !info.isSymLink())
        return false;
    backUp(path);
    return QFile::remove(path);
}

bool isWithin(const QString &path, const QString &directory)
{
    return path == directory || path.startsWith(directory + QLatin1Char('/'));
}

/// The depth that the user chose; none when the choice was cancelled.
std::optional<RestoreDepth> askDepth(QWidget *parent)
{
    const QString onlyTheme = ConfigDialog::tr("Theme only");
    bool accepted = false;
    const QString choice = QInputDialog::getItem(
        parent, ConfigDialog::tr("Restore"),
        ConfigDialog::tr("Are you sure?\nIf yes then select restore type and press Yes\n\nRestore type:"),
        {onlyTheme, ConfigDialog::tr("All Qaz settings")}, 0, false, &accepted);
    if (!accepted || choice.isEmpty())
        return std::nullopt;
    return choice == onlyTheme ? RestoreDepth::ThemeOnly : RestoreDepth::AllSettings;
}

void showFailure(QWidget *parent, const QString &path)
{
    showMessage(parent, QMessageBox::Critical, ConfigDialog::tr("Error"),
                ConfigDialog::tr("Can't remove '%1'").arg(path));
}

} // namespace

void removeSettings(RestoreDepth depth, const QString &themeFile,
                    const std::function<void(const QString &path)> &reportFailure)
{
    const auto run = [&](const RestoreStep &step) {
        const QString path = pathOf(step, themeFile);
        const bool removed = step.what == Remove::PersonalSettings
                                 ? removeDirectory(path, directoryPath(DirectoryKind::Home))
                                 : removeFile(path);
        if (!removed && step.report == Report::Yes)
            reportFailure(path);
    };
    if (depth == RestoreDepth::ThemeOnly)
        std::for_each(std::begin(themeOnly), std::end(themeOnly), run);
    else
        std::for_each(std::begin(allSettings), std::end(allSettings), run);
}

bool removeDirectory(const QString &path, const QString &home)
{
    const QString directory = QDir::cleanPath(path);
    if (path.isEmpty() || directory == QLatin1String("/") || isWithin(QDir::cleanPath(home), directory))
        return false;
    if (QFileInfo(directory).isSymLink())
        return removeFile(directory);
    const QString canonical = QFileInfo(directory).canonicalFilePath();
    if (!canonical.isEmpty() && isWithin(QFileInfo(home).canonicalFilePath(), canonical))
        return false;
    backUp(directory);
    return QDir(directory).removeRecursively();
}

void ConfigDialog::restoreSlot()
{
    const std::optional<RestoreDepth> depth = askDepth(this);
    if (!depth)
        return;
    removeDesktopWallpapers();
    removeSettings(*depth, themeFile, [this](const QString &path) { showFailure(this, path); });
    // Yes as the only button and No as the default one: Qt takes this form for the one with two buttons.
    if (QMessageBox::question(
            this, tr("Restore done"),
            tr("Selected settings are restored. You need to restart session. Do it now (recommended)?"),
            QMessageBox::Yes, QMessageBox::No)
        == QMessageBox::Yes)
        sendToWindowManager(restartCommand);
    close();
}
