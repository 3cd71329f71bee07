#pragma once

#include "base/keyfiletext.h"
#include "platform/list.h"

#include <QByteArray>
#include <QMap>

/// A desktop-entry file (`.directory`, `.desktop`) and the keys of its "Desktop Entry" group.
class QazDesktopEntry
{
public:
    /// Binds the entry to the file at \a path (local 8-bit encoding); nothing is read before load().
    explicit QazDesktopEntry(const char *path);
    QazDesktopEntry(const QazDesktopEntry &) = delete; // its end writes the file
    QazDesktopEntry &operator=(const QazDesktopEntry &) = delete;

    /// Reads the file. False when there is no regular file to read.
    bool load();

    /// The value of a key that this class does not interpret itself, or null without the key in the file as load() read it. The text
    /// belongs to the entry and is valid until the next call of one of its functions.
    const char *getUnknownValue(const char *key);

    /// Adds or replaces \a keys, each with the value at the same place of \a values, which must have no line break;
    /// other keys stay.
    void setUnknowns(const List<char> &keys, const List<char> &values);

    /// Writes the values that were set into the file as it is now, atomically; everything else in it stays.
    /// \a flags is 0. A failure is one line on standard error.
    bool save(int flags);

private:
    QByteArray m_path;
    KeyFileText m_text;
    QByteArray m_lastValue;
    QMap<QByteArray, QByteArray> m_changes;
};
