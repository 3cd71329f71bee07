#include "settings/wmcommands.h"

#include "platform/sendcommandtowm.h"

#include <QX11Info>

const char restartCommand[] = "QAZWM_RESTART\n";

namespace {

const QLatin1String updateWord("QAZWM_UPDATE_VAL ");

} // namespace

QByteArray updateCommand(const QString &key, const QString &value)
{
    const QString command = updateWord + key + QLatin1Char(' ') + value + QLatin1Char('\n');
    return command.toLocal8Bit();
}

bool readUpdateCommand(const QByteArray &command, QString *key, QString *value)
{
    const QString text = QString::fromLocal8Bit(command);
    if (!text.startsWith(updateWord) || text.count(QLatin1Char(' ')) < 2)
        return false;
    *key = text.section(QLatin1Char(' '), 1, 1);
    *value = text.section(QLatin1Char(' '), 2);
    if (value->endsWith(QLatin1Char('\n')))
        value->chop(1);
    return true;
}

void sendToWindowManager(const QByteArray &command)
{
    // QX11Info::display() answers only for the xcb plugin; elsewhere it would hand out a wild pointer.
    SendCommandToWM(QX11Info::isPlatformX11() ? QX11Info::display() : nullptr, command.constData());
}
