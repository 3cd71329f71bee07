#include "base/keyfiletext.h"

#include <algorithm>

constexpr std::string_view signature("\xEF\xBB\xBF"); // of UTF-8
constexpr std::string_view blanks(" \t");
constexpr std::string_view lineEnds("\r\n");

KeyFileText::KeyFileText(const QByteArray &content, const KeyFileFormat &format)
    : m_content(content)
    , m_format(format)
{
    const int start = content.startsWith(signature.data()) ? int(signature.size()) : 0;
    m_groups.push_back({{start, start}, {start, start}});
    for (int begin = start, next = start; begin < content.size(); begin = next) {
        const std::string_view line = from(begin);
        const int textBegin = begin + int(std::min(line.find_first_not_of(blanks), line.size()));
        const int textEnd = lineTextEnd(textBegin);
        next = firstOf(lineEnds, textEnd);
        const std::string_view lineBreak = from(next).substr(0, 2);
        next += int((lineBreak == "\r\n" ? lineBreak : lineBreak.substr(0, 1)).size());
        readLine({textBegin, textEnd}, {begin, next});
    }
}

/// What stands at \a begin and behind it.
std::string_view KeyFileText::from(int begin) const
{
    return std::string_view(m_content.constData(), std::size_t(m_content.size())).substr(std::size_t(begin));
}

std::string_view KeyFileText::view(const Range &range) const
{
    return from(range.begin).substr(0, std::size_t(range.end - range.begin));
}

/// The place of the first of \a characters at \a begin or behind it; the end without one.
int KeyFileText::firstOf(std::string_view characters, int begin) const
{
    return begin + int(std::min(from(begin).find_first_of(characters), from(begin).size()));
}

bool KeyFileText::isComment(int begin) const
{
    return from(begin).substr(0, 1).find_first_of(m_format.comments) == 0;
}

/// Where the text that starts at \a begin ends: at a line end or, where the format has such, at a comment.
int KeyFileText::lineTextEnd(int begin) const
{
    if (!m_format.continuesLines || isComment(begin))
        return firstOf(lineEnds, begin);
    for (bool inQuotes = false;;) {
        begin = firstOf(inQuotes ? "\"\\" : "\"\\;\r\n", begin);
        const std::string_view sign = from(begin).substr(0, 3);
        if (sign.substr(0, 1) == "\"") {
            inQuotes = !inQuotes;
            ++begin;
        } else if (sign.substr(0, 1) != "\\") {
            return begin;
        } else {
            const bool isLineBreak = sign == "\\\r\n" || sign == "\\\n\r";
            begin += int((isLineBreak ? sign : sign.substr(0, 2)).size());
        }
    }
}

/// Notes what stands in \a text, a line without the blanks in front, whose whole range is \a line.
void KeyFileText::readLine(const Range &text, const Range &line)
{
    const auto trimmed = [this](int begin, int end) {
        const std::string_view part = view({begin, end});
        const int first = begin + int(std::min(part.find_first_not_of(blanks), part.size()));
        return Range{first, std::max(first, begin + int(part.find_last_not_of(blanks) + 1))};
    };
    if (isComment(text.begin))
        return;
    const std::string_view said = view(text);
    if (said.substr(0, 1) == "[") {
        const std::size_t close = said.find(']');
        if (close != said.npos || m_format.opensUnclosedGroup)
            m_groups.push_back(
                {trimmed(text.begin + 1, text.begin + int(std::min(close, said.size()))), line});
    } else if (const std::size_t equals = said.find('='); equals != 0 && equals != said.npos) {
        const int place = text.begin + int(equals);
        m_entries.push_back(
            {int(m_groups.size()) - 1, trimmed(text.begin, place), trimmed(place + 1, text.end), line});
    }
}

bool KeyFileText::isAt(const Range &range, const QByteArray &text) const
{
    return view(range) == std::string_view(text.constData(), std::size_t(text.size()));
}

bool KeyFileText::isNamed(int group, const QByteArray &name) const
{
    return name.isEmpty() ? group == 0 : isAt(m_groups[std::size_t(group)].name, name);
}

const KeyFileText::Entry *KeyFileText::find(const QByteArray &group, const QByteArray &key) const
{
    const auto found = std::find_if(m_entries.rbegin(), m_entries.rend(), [&](const Entry &entry) {
        return isAt(entry.key, key) && isNamed(entry.group, group);
    });
    return found == m_entries.rend() ? nullptr : &*found;
}

std::optional<QByteArray> KeyFileText::value(const QByteArray &group, const QByteArray &key) const
{
    const Entry *entry = find(group, key);
    return entry ? std::make_optional(part(entry->value)) : std::nullopt;
}

QByteArray KeyFileText::withValues(const QByteArray &group, const QMap<QByteArray, QByteArray> &values) const
{
    std::vector<Edit> edits;
    QByteArray added;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        if (const Entry *entry = find(group, value.key()))
            edits.push_back({entry->value, *value});
        else
            added += value.key() + '=' + *value + lineBreak();
    }
    if (!added.isEmpty())
        edits.push_back(insertion(group, added));
    return edited(std::move(edits));
}

QByteArray KeyFileText::withoutKey(const QByteArray &group, const QByteArray &key) const
{
    std::vector<Edit> edits;
    for (const Entry &entry : m_entries) {
        if (isAt(entry.key, key) && isNamed(entry.group, group))
            edits.push_back({entry.line, {}});
    }
    return edited(std::move(edits));
}

/// Adds \a lines below the last line of \a group that says anything.
KeyFileText::Edit KeyFileText::insertion(const QByteArray &group, const QByteArray &lines) const
{
    int at = -1;
    for (int i = 0; i < int(m_groups.size()); ++i) {
        if (isNamed(i, group))
            at = m_groups[std::size_t(i)].line.end;
    }
    const bool isNew = at < 0;
    const auto last = std::find_if(m_entries.rbegin(), m_entries.rend(),
                                   [&](const Entry &entry) { return isNamed(entry.group, group); });
    if (last != m_entries.rend())
        at = std::max(at, last->line.end);
    else if (group.isEmpty() && m_groups.size() > 1)
        at = m_groups[1].line.begin; // below the remarks at the top
    else if (group.isEmpty() || isNew)
        at = m_content.size();

    QByteArray text = isNew ? '[' + group + ']' + lineBreak() + lines : lines;
    const QByteArray before = part({m_groups.front().line.end, at});
    if (before.endsWith('\r') && lineBreak() == "\r\n")
        text.prepend('\n'); // a file cut off inside its last line end gets the rest of it
    else if (!before.isEmpty() && !before.endsWith('\r') && !before.endsWith('\n'))
        text.prepend(lineBreak());
    return {{at, at}, text};
}

/// The line break that the file uses: its first one, of which a file may be cut off inside.
QByteArray KeyFileText::lineBreak() const
{
    const std::string_view first = from(firstOf(lineEnds, 0)).substr(0, 2);
    if (first.substr(0, 1) != "\r")
        return QByteArrayLiteral("\n");
    return first == "\r" || first == "\r\n" ? QByteArrayLiteral("\r\n") : QByteArrayLiteral("\r");
}

QByteArray KeyFileText::edited(std::vector<Edit> edits) const
{
    // An insertion at the end of a value's line comes after that value.
    std::stable_sort(edits.begin(), edits.end(), [](const Edit &left, const Edit &right) {
        return left.range.begin < right.range.begin;
    });
    QByteArray result;
    int copied = 0;
    for (const Edit &edit : edits) {
        result += part({copied, edit.range.begin}) + edit.text;
        copied = edit.range.end;
    }
    return result + part({copied, m_content.size()});
}

QByteArrayList listItems(QByteArray value, const QByteArray &separators)
{
    for (const char separator : separators)
        value.replace(separator, '\n');
    QByteArrayList items;
    for (const QByteArray &item : value.split('\n')) {
        if (const QByteArray trimmed = item.trimmed(); !trimmed.isEmpty())
            items.append(trimmed);
    }
    return items;
}

QByteArray escaped(QByteArray text)
{
    return text.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r").replace('\t', "\\t");
}

QByteArray unescaped(const QByteArray &text)
{
    constexpr std::string_view signs("\\nrts"), characters("\\\n\r\t ");
    QByteArray result;
    for (int i = 0; i < text.size(); ++i) {
        const std::size_t place = text[i] == '\\' ? signs.find(text.constData()[i + 1]) : signs.npos;
        result += place == signs.npos ? text[i] : characters[place];
        i += place == signs.npos ? 0 : 1;
    }
    return result;
}
