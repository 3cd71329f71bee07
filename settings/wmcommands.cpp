#include "settings/wmcommands.h"

#include "platform/sendcommandtowm.h"

#include <QX11Info>

const char restartCommand[] = "QAZWM_RESTART\n";

QByteArray updateCommand(const QString &key, const QString &value)
{
    const QString command = QLatin1String("QAZWM_UPDATE_VAL ") + key + QLatin1Char(' ') + value
                            + QLatin1Char('\n');
    return command.toLocal8Bit();
}

void sendToWindowManager(const QByteArray &command)
{
    // QX11Info::display() answers only for the xcb plugin; elsewhere it would hand out a wild pointer.
    SendCommandToWM(QX11Info::isPlatformX11() ? QX11Info::display() : nullptr, command.constData());
}
