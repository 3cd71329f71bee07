#pragma once

#include "base/keyfiletext.h"

/// The group of a desktop-entry file (`.directory`, `.desktop`) that says what it is.
inline constexpr char desktopEntryGroup[] = "Desktop Entry";

/// A theme's index.theme that is larger than this many bytes is none.
inline constexpr qint64 themeIndexLimit = 1024 * 1024;

/// The text of a desktop-entry file or a theme's index.theme, less a signature of UTF-8, which not all of its readers take.
inline KeyFileText desktopEntryText(const QByteArray &content)
{
    return KeyFileText(content.startsWith("\xEF\xBB\xBF") ? content.mid(3) : content, {"#;", false});
}
