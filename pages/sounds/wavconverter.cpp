#include "pages/sounds/wavconverter.h"

#include "pages/common/waitcursor.h"

#include <QEventLoop>
#include <QProcess>
#include <QTimer>

#include <algorithm>

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

} // namespace

QString conversionCommand(const QString &directory)
{
    return QStringLiteral("find %1 -name \"*.og[ga]\" | xargs oggdec").arg(shellWord(directory));
}

void WavConverter::convert(const QString &directory) const
{
    const WaitCursor waitCursor;
    // Without an owner: it deletes itself at its end. Its destruction before that would kill the conversion, or,
    // where it runs with other rights, wait for it in vain.
    auto *process = new QProcess;
    QEventLoop waiting;
    QObject::connect(process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &waiting,
                     &QEventLoop::quit);
    QObject::connect(process, &QProcess::errorOccurred, &waiting, &QEventLoop::quit);
    QTimer::singleShot(m_limit, &waiting, &QEventLoop::quit);
    process->start(QStringLiteral("qaz-su"), {QStringLiteral("-c"), conversionCommand(directory)});
    if (process->state() != QProcess::NotRunning)
        waiting.exec(QEventLoop::ExcludeUserInputEvents);
    if (process->state() == QProcess::NotRunning)
        process->deleteLater();
    else
        QObject::connect(process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), process,
                         &QObject::deleteLater);
}
