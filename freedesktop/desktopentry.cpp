#include "freedesktop/desktopentry.h"

KeyFileText desktopEntryText(const QByteArray &content)
{
    KeyFileFormat format;
    format.opensUnclosedGroup = false;
    return KeyFileText(content.startsWith("\xEF\xBB\xBF") ? content.mid(3) : content, format);
}
