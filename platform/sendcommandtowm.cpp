#include "platform/sendcommandtowm.h"

#include "base/diagnostics.h"
#include "platform/commandreceiver.h"

#include <algorithm>
#include <cstring>

#include <X11/Xlib.h>

void SendCommandToWM(Display *display, const char *text)
{
    if (!display) {
        static bool told = false;
        if (!told)
            printDiagnostic(QStringLiteral("No X display: the window manager is not told of changes"));
        told = true;
        return;
    }
    const std::size_t length = std::strlen(text);
    if (length > longestCommand) {
        printDiagnostic(
            QStringLiteral("A window-manager command of %1 bytes is too long and was not sent").arg(length));
        return;
    }

    // Names the sender: never mapped, gone with its connection.
    static const Window sender = XCreateWindow(display, DefaultRootWindow(display), -10, -10, 1, 1, 0, 0,
                                               InputOnly, CopyFromParent, 0, nullptr);
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = sender;
    event.xclient.message_type = XInternAtom(display, firstCommandAtom, False);
    event.xclient.format = 8;
    for (std::size_t sent = 0; sent <= length; sent += commandMessageBytes) { // the final NUL travels, too
        std::memset(event.xclient.data.b, 0, commandMessageBytes);
        std::memcpy(event.xclient.data.b, text + sent,
                    std::min<std::size_t>(commandMessageBytes, length + 1 - sent));
        XSendEvent(display, DefaultRootWindow(display), False,
                   SubstructureRedirectMask | SubstructureNotifyMask, &event);
        event.xclient.message_type = XInternAtom(display, nextCommandAtom, False);
    }
    XFlush(display);
}
