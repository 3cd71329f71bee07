#include "pages/sounds/soundconversion.h"

#include "pages/common/messagebox.h"
#include "pages/common/waitcursor.h"
#include "pages/sounds/soundpage.h"
#include "platform/qazsoundtheme.h"

#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTimer>

#include <algorithm>
#include <filesystem>

namespace {

/// \a path as a shell reads it as one word; a path without special characters stays as it is.
QString shellWord(const QString &path)
{
    const auto isOrdinary = [](QChar c) {
        return c.isLetterOrNumber() || QLatin1String("/._-+,:@%=").contains(c);
    };
    if (std::all_of(path.begin(), path.end(), isOrdinary))
        return path;
    const QString quoted = QString(path).replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}

/// xargs splits at blanks, whatever they are in the user's language, and understands quotes and backslashes.
bool isSafe(const QString &path)
{
    const auto isHarmful = [](QChar c) {
        return c.isSpace() || c.category() == QChar::Other_Control || QLatin1String("\"'`\\").contains(c);
    };
    return !path.startsWith(QLatin1Char('-')) && std::none_of(path.begin(), path.end(), isHarmful);
}

/// Whether the command's find prints it: directories and links, too.
bool isOgg(const QString &path)
{
    return path.endsWith(QLatin1String(".ogg")) || path.endsWith(QLatin1String(".oga"));
}

bool isWav(const QString &path)
{
    return path.endsWith(QLatin1String(".wav")) || path.endsWith(QLatin1String(".au"));
}

} // namespace

bool offerConversion(QWidget *page, const QazSoundTheme &theme, const QStringList &files)
{
    if (std::all_of(files.begin(), files.end(), isWav))
        return false;
    const QString name = QString::fromLocal8Bit(theme.getName());
    const QString directory = QFile::decodeName(theme.getPath());
    const auto tell = [&](QMessageBox::Icon icon, const QString &text, QMessageBox::StandardButtons buttons) {
        return showMessage(page, icon, SoundPage::tr("Attention"), text, buttons);
    };
    const QString question = SoundPage::tr("Not all files in theme '%1' are in wav format\n"
                                           "Would you like to convert them to wav now?");
    const QString unsafe = unsafeForConversion(directory);
    if (std::none_of(files.begin(), files.end(), isOgg)) {
        tell(QMessageBox::Information,
             SoundPage::tr("Not all files in theme '%1' are in wav format\nYou should convert them to wav.")
                 .arg(name),
             QMessageBox::Ok);
    } else if (!unsafe.isEmpty()) {
        tell(QMessageBox::Warning,
             SoundPage::tr("Not all files in theme '%1' are in wav format\n"
                           "They can't be converted: '%2' has to be renamed first.\n"
                           "Blanks, quotation marks, backslashes and control characters are not safe.")
                 .arg(name, unsafe),
             QMessageBox::Ok);
    } else if (tell(QMessageBox::Question, question.arg(name), QMessageBox::Yes | QMessageBox::No)
               == QMessageBox::Yes) {
        convertToWav(directory);
        return true;
    }
    return false;
}

QString conversionCommand(const QString &directory)
{
    return QStringLiteral("find %1 -name \"*.og[ga]\" | xargs oggdec").arg(shellWord(directory));
}

QString unsafeForConversion(const QString &directory)
{
    std::error_code error;
    QString path = directory;
    std::filesystem::recursive_directory_iterator entry(QFile::encodeName(directory).constData(), error);
    while (!error) {
        if (isOgg(path) && !isSafe(path))
            return path;
        if (entry == end(entry))
            return {};
        path = QFile::decodeName(entry->path().c_str());
        entry.increment(error);
    }
    // What runs with more rights would look further.
    return path;
}

void convertToWav(const QString &directory, int limit)
{
    const WaitCursor waitCursor;
    // Without an owner: it deletes itself at its end. Its destruction before that would kill the conversion, or,
    // where it runs with other rights, wait for it in vain.
    auto *process = new QProcess;
    QObject::connect(process, &QProcess::stateChanged, process, [process](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning)
            process->deleteLater();
    });
    QEventLoop waiting;
    QObject::connect(process, &QObject::destroyed, &waiting, &QEventLoop::quit);
    QTimer::singleShot(limit, &waiting, &QEventLoop::quit);
    process->start(QStringLiteral("qaz-su"), {QStringLiteral("-c"), conversionCommand(directory)});
    if (process->state() != QProcess::NotRunning)
        waiting.exec(QEventLoop::ExcludeUserInputEvents);
}
