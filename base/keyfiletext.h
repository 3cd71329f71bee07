#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QMap>

#include <optional>
#include <string_view>
#include <vector>

/// In what key files differ.
struct KeyFileFormat {
    const char *comments = "#;";    ///< what a comment begins with
    bool opensUnclosedGroup = true; ///< a "[" without a "]" opens a group, too; else its line means nothing
    /// As QSettings writes: a line goes on inside of quotes and behind a backslash, and a ';' ends it.
    bool continuesLines = false;
};

/// The text of a key file: lines "Key=Value" in groups "[Group]". Gives values out, and texts with some lines
/// changed, in which every other byte is as it was. Names are case-sensitive; a group that stands twice is one; of a
/// key that stands twice the last line counts. The lines above the first group have the empty group.
class KeyFileText
{
public:
    struct Range {
        int begin;
        int end;
    };
    /// "[Group]" and the lines below it, up to the next one.
    struct Group {
        Range name;
        Range line; ///< with its line break
    };
    /// "Key=Value"; key and value without the blanks around them.
    struct Entry {
        int group; ///< 0: none
        Range key;
        Range value;
        Range line; ///< with its line break
    };

    explicit KeyFileText(const QByteArray &content = {}, const KeyFileFormat &format = {});

    const QByteArray &content() const { return m_content; }
    /// In the order of the file.
    const std::vector<Entry> &entries() const { return m_entries; }
    QByteArray part(const Range &range) const { return m_content.mid(range.begin, range.end - range.begin); }
    QByteArray groupName(const Entry &entry) const { return part(m_groups[std::size_t(entry.group)].name); }

    /// The value of \a key as it stands; nothing without the key.
    std::optional<QByteArray> value(const QByteArray &group, const QByteArray &key) const;

    /// The text with these \a values, which must have no line break: on the last line of each key, or on new lines
    /// below the last key of the group. A missing group is added at the end.
    QByteArray withValues(const QByteArray &group, const QMap<QByteArray, QByteArray> &values) const;

    /// The text without the lines of \a key.
    QByteArray withoutKey(const QByteArray &group, const QByteArray &key) const;

private:
    struct Edit {
        Range range;
        QByteArray text;
    };

    std::string_view from(int begin) const;
    std::string_view view(const Range &range) const;
    int firstOf(std::string_view characters, int begin) const;
    bool isComment(int begin) const;
    int lineTextEnd(int begin) const;
    void readLine(const Range &text, const Range &line);
    bool isAt(const Range &range, const QByteArray &text) const;
    bool isNamed(int group, const QByteArray &name) const;
    const Entry *find(const QByteArray &group, const QByteArray &key) const;
    Edit insertion(const QByteArray &group, const QByteArray &lines) const;
    QByteArray lineBreak() const;
    QByteArray edited(std::vector<Edit> edits) const;

    QByteArray m_content;
    KeyFileFormat m_format;
    std::vector<Group> m_groups;
    std::vector<Entry> m_entries;
};

/// The items of a list \a value of one line, cut at any of \a separators, without the blanks around them; empty ones are left out.
QByteArrayList listItems(QByteArray value, const QByteArray &separators = ",;");

/// \a text with `\\`, `\n`, `\r` and `\t` for a backslash, line breaks and tabs: one line without a tab.
QByteArray escaped(QByteArray text);

/// What \a text stands for; `\s` is a blank. An unknown escape is kept as it stands.
QByteArray unescaped(const QByteArray &text);
