#pragma once

/// Deletes the user's own fontconfig files, so that the system's configuration applies. Each is copied to the
/// backups first; one line on standard error names the copy.
void removeUserFontconfigFiles();
