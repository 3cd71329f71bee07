#pragma once

#include <QSize>

class QWidget;

/// The window's size in the program's own settings; what is missing or can't be a size there is as in \a defaultSize.
QSize storedWindowSize(const QSize &defaultSize);

/// Keeps \a size for the next run. A failure is a line on standard error.
void storeWindowSize(const QSize &size);

/// \a size less what the screen of \a window has no room for, the frame of the window manager included.
QSize sizeOnScreen(const QSize &size, const QWidget *window);
