#pragma once

class QProcess;

/// Waits up to \a limit milliseconds until \a process has ended; false when it has not, or never started. Ends this
/// process like Qt does, through exit(), when its X server is lost meanwhile: nobody else looks.
bool waitForEnd(QProcess &process, int limit);
