#pragma once

struct _XDisplay;
using Display = _XDisplay;

/// Sends one command, such as "QAZWM_RESTART\n", to the window manager on \a display and flushes. It never
/// waits and needs no receiver. Without a display, and for a text of more than 65536 bytes, nothing is sent
/// and one line on standard error says so.
void SendCommandToWM(Display *display, const char *text);
