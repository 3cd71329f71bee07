#pragma once

#include <QByteArray>

#include <optional>

/// The bytes of a desktop-entry file (`.directory`, `.desktop`) and edits of its "Desktop Entry" group that
/// change the lines of one key only: comments, order, other groups, localised keys, blanks, line endings and
/// bytes that are not UTF-8 stay as they are. Keys are case-sensitive; "Name" is not "Name[de]".
class DesktopEntryText
{
public:
    explicit DesktopEntryText(const QByteArray &content = {})
        : m_content(content)
    {}

    const QByteArray &content() const { return m_content; }

    /// The value of \a key as it stands, less the blanks around it; of a key that stands twice the last one.
    std::optional<QByteArray> value(const QByteArray &key) const;

    /// Gives every line of \a key the \a value, which must have no line break. A new key is added below the last
    /// one of the group, a missing group at the end of the file.
    void setValue(const QByteArray &key, const QByteArray &value);

    /// Cuts the lines of \a key out, with their line ends. Returns whether there was one.
    bool removeKey(const QByteArray &key);

private:
    QByteArray m_content;
};
