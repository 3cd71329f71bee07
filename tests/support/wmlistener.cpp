#include "tests/support/wmlistener.h"

#include "platform/commandreceiver.h"

#include <QX11Info>

#include <X11/Xlib.h>

WmListener::WmListener()
    : m_display(XOpenDisplay(nullptr))
    , m_receiver(std::make_unique<CommandReceiver>(m_display))
{
    if (!m_display)
        qFatal("The test needs an X server");
    XSelectInput(m_display, DefaultRootWindow(m_display), SubstructureNotifyMask);
    XSync(m_display, False);
}

WmListener::~WmListener()
{
    XCloseDisplay(m_display);
}

QStringList WmListener::take()
{
    QStringList commands;
    // The server has handled what this process sent before it answers both of these.
    if (QX11Info::isPlatformX11() && QX11Info::display())
        XSync(QX11Info::display(), False);
    XSync(m_display, False);
    while (XPending(m_display) > 0) {
        XEvent event;
        XNextEvent(m_display, &event);
        QByteArray command = m_receiver->take(event);
        if (command.isNull())
            continue;
        if (command.endsWith('\n'))
            command.chop(1);
        commands.append(QString::fromLocal8Bit(command));
    }
    return commands;
}

QString WmListener::takeUpdates()
{
    return take().replaceInStrings(QStringLiteral("QAZWM_UPDATE_VAL "), QString()).join(QLatin1Char('|'));
}
