#pragma once

class QProcess;

/// Waits until the started \a process has ended, and ends it after 30 seconds. True when it did its work: its status is 0.
/// Ends this process like Qt does, through exit(), when its X server is lost meanwhile: nobody else looks.
bool succeeds(QProcess &process);
