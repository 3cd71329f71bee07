#pragma once

class ConfigDialog;
class MyApplication;
struct _XDisplay;

// What the handlers work on. Set once at the start; null before, and after its end.
extern MyApplication *myApp;
extern ConfigDialog *dlg;

/// Installs TrapSignal for SIGTERM, so that the event loop ends normally. Needs myApp.
void handleTermination();

/// Makes a lost X connection store the window's size and end the child processes and this one, whether Xlib or Qt's
/// X11 plugin notices it first. Needs dlg.
void handleLostDisplay();

/// Handler of SIGTERM (\a sig is 15): asks the application to quit. Other numbers are ignored.
void TrapSignal(int sig);

/// Xlib's handler of a lost connection; ends the process.
int CatchFatalIOError(_XDisplay *display);
