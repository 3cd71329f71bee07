#pragma once

class ConfigDialog;
class MyApplication;
struct _XDisplay;

// The two objects that the handlers end. Set once at the start; null before, and dlg after its end.
extern MyApplication *myApp;
extern ConfigDialog *dlg;

/// Installs TrapSignal for SIGTERM, so that the event loop ends normally. Needs myApp.
void handleTermination();

/// Makes a lost X connection store the window's size, whether Xlib or Qt's X11 plugin notices it first.
/// Needs dlg.
void handleLostDisplay();

/// Handler of SIGTERM (\a sig is 15): asks the application to quit. Other numbers are ignored.
void TrapSignal(int sig);

/// Xlib's handler of a lost connection; Xlib ends the process after it.
int CatchFatalIOError(_XDisplay *display);
