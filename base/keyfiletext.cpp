#include "base/keyfiletext.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {

constexpr char signature[] = "\xEF\xBB\xBF"; // of UTF-8

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

} // namespace

KeyFileText::KeyFileText(const QByteArray &content, const KeyFileFormat &format)
    : m_content(content)
    , m_format(format)
{
    const int start = content.startsWith(signature) ? int(std::strlen(signature)) : 0;
    m_groups.push_back({{start, start}, {start, start}});
    for (int begin = start; begin < content.size();) {
        Range text = {begin, begin};
        while (text.begin < content.size() && isBlank(content[text.begin]))
            ++text.begin;
        text.end = lineTextEnd(text.begin);
        int next = text.end;
        while (next < content.size() && !isLineEnd(content[next]))
            ++next;
        if (next < content.size())
            next += content[next] == '\r' && next + 1 < content.size() && content[next + 1] == '\n' ? 2 : 1;
        readLine(text, {begin, next});
        begin = next;
    }
}

/// Where the text that starts at \a begin ends: at a line end or, where the format has such, at a comment.
int KeyFileText::lineTextEnd(int begin) const
{
    const int size = m_content.size();
    const char *data = m_content.constData();
    const bool continues = m_format.continuesLines && begin < size
                           && !std::strchr(m_format.comments, data[begin]);
    bool inQuotes = false;
    int i = begin;
    for (; i < size && (inQuotes || !isLineEnd(data[i])); ++i) {
        if (!continues)
            continue;
        if (data[i] == ';' && !inQuotes)
            break;
        if (data[i] == '"')
            inQuotes = !inQuotes;
        if (data[i] != '\\' || i + 1 == size)
            continue;
        ++i;
        if (i + 1 < size && isLineEnd(data[i]) && isLineEnd(data[i + 1]) && data[i] != data[i + 1])
            ++i;
    }
    return std::min(i, size);
}

/// Notes what stands in \a text, a line without the blanks in front, whose whole range is \a line.
void KeyFileText::readLine(Range text, Range line)
{
    const auto trimmed = [this](int begin, int end) {
        while (begin < end && isBlank(m_content[begin]))
            ++begin;
        while (end > begin && isBlank(m_content[end - 1]))
            --end;
        return Range{begin, end};
    };
    const char *data = m_content.constData();
    if (text.begin == text.end || (data[text.begin] && std::strchr(m_format.comments, data[text.begin])))
        return;
    const auto placeOf = [data, text](char c) {
        return int(std::find(data + text.begin, data + text.end, c) - data);
    };
    if (data[text.begin] == '[') {
        const int close = placeOf(']');
        if (close < text.end || m_format.opensUnclosedGroup)
            m_groups.push_back({trimmed(text.begin + 1, close), line});
        return;
    }
    const int equals = placeOf('=');
    if (equals > text.begin && equals < text.end)
        m_entries.push_back(
            {int(m_groups.size()) - 1, trimmed(text.begin, equals), trimmed(equals + 1, text.end), line});
}

bool KeyFileText::isAt(const Range &range, const QByteArray &text) const
{
    return range.end - range.begin == text.size()
           && std::memcmp(m_content.constData() + range.begin, text.constData(), std::size_t(text.size()))
                  == 0;
}

bool KeyFileText::isNamed(int group, const QByteArray &name) const
{
    return name.isEmpty() ? group == 0 : group > 0 && isAt(m_groups[std::size_t(group)].name, name);
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
    if (at > m_groups.front().line.end && !isLineEnd(m_content[at - 1]))
        text.prepend(lineBreak());
    else if (at > 0 && m_content[at - 1] == '\r' && lineBreak() == "\r\n")
        text.prepend('\n'); // a file cut off inside its last line end gets the rest of it
    return {{at, at}, text};
}

/// The line break that the file uses.
QByteArray KeyFileText::lineBreak() const
{
    const int newline = m_content.indexOf('\n');
    const int carriageReturn = m_content.indexOf('\r');
    if (carriageReturn < 0 || (newline >= 0 && carriageReturn != newline - 1))
        return QByteArrayLiteral("\n");
    return newline < 0 && carriageReturn < m_content.size() - 1 ? QByteArrayLiteral("\r")
                                                                : QByteArrayLiteral("\r\n");
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
        result.append(m_content.constData() + copied, edit.range.begin - copied);
        result.append(edit.text);
        copied = edit.range.end;
    }
    result.append(m_content.constData() + copied, m_content.size() - copied);
    return result;
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
        const bool isEscape = text[i] == '\\' && i + 1 < text.size();
        const std::size_t place = isEscape ? signs.find(text[i + 1]) : signs.npos;
        result += place == signs.npos ? text[i] : characters[place];
        i += place == signs.npos ? 0 : 1;
    }
    return result;
}
