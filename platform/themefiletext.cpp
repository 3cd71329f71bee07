#include "platform/themefiletext.h"

#include <algorithm>
#include <vector>

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

constexpr char byteOrderMark[] = "\xEF\xBB\xBF";

/// Qt takes a byte order mark at the front for a file's; at the front of a value it is part of it.
QString decoded(const QByteArray &text)
{
    return text.startsWith(byteOrderMark) ? QString::fromUtf8('=' + text).mid(1) : QString::fromUtf8(text);
}

} // namespace

ThemeFileText::ThemeFileText(QByteArray text)
    : m_text(std::move(text))
{
    const char *data = m_text.constData();
    int next = m_text.startsWith(byteOrderMark) ? 3 : 0;
    m_insertAt = next;
    bool anyKey = false;
    while (next < m_text.size()) {
        int begin = next;
        const int newline = m_text.indexOf('\n', begin);
        int end = newline < 0 ? m_text.size() : newline;
        next = newline < 0 ? end : newline + 1;
        if (end > begin && data[end - 1] == '\r')
            --end;
        while (begin < end && isBlank(data[begin]))
            ++begin;
        while (end > begin && isBlank(data[end - 1]))
            --end;
        if (begin < end && data[begin] == '[' && data[end - 1] == ']')
            break;
        const bool isComment = begin < end && (data[begin] == '#' || data[begin] == ';');
        const auto *equals = isComment ? data + end : std::find(data + begin, data + end, '=');
        int keyEnd = int(equals - data);
        if (keyEnd < end) {
            Range value = {keyEnd + 1, end};
            while (keyEnd > begin && isBlank(data[keyEnd - 1]))
                --keyEnd;
            while (value.begin < value.end && isBlank(data[value.begin]))
                ++value.begin;
            if (keyEnd > begin) {
                m_values.insert(m_text.mid(begin, keyEnd - begin), value);
                m_insertAt = next;
                anyKey = true;
            }
        }
        if (!anyKey)
            m_insertAt = next;
    }
}

bool ThemeFileText::contains(const QString &key) const
{
    return m_values.contains(key.toUtf8());
}

QString ThemeFileText::value(const QString &key) const
{
    const auto found = m_values.constFind(key.toUtf8());
    return found == m_values.constEnd() ? QString()
                                        : unescaped(m_text.mid(found->begin, found->end - found->begin));
}

QByteArray ThemeFileText::withValues(const QMap<QString, QString> &values) const
{
    struct Edit {
        Range range;
        QByteArray text;
    };
    std::vector<Edit> edits;
    QByteArray added;
    const int firstNewline = m_text.indexOf('\n');
    const QByteArray lineEnd = firstNewline > 0 && m_text.at(firstNewline - 1) == '\r' ? "\r\n" : "\n";
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        const auto found = m_values.constFind(value.key().toUtf8());
        if (found != m_values.constEnd())
            edits.push_back({*found, escaped(*value)});
        else
            added += value.key().toUtf8() + '=' + escaped(*value) + lineEnd;
    }
    if (!added.isEmpty()) {
        // A file cut off inside its last line end gets the rest of it.
        if (m_insertAt > 0 && m_text.at(m_insertAt - 1) == '\r')
            added.prepend('\n');
        else if (m_insertAt > 0 && m_text.at(m_insertAt - 1) != '\n' && m_text != byteOrderMark)
            added.prepend(lineEnd);
        edits.push_back({{m_insertAt, m_insertAt}, added});
    }
    // An insertion at the end of a value's line comes after that value.
    std::stable_sort(edits.begin(), edits.end(),
                     [](const Edit &a, const Edit &b) { return a.range.begin < b.range.begin; });

    QByteArray result;
    result.reserve(m_text.size() + added.size() + 64);
    int copied = 0;
    for (const Edit &edit : edits) {
        result.append(m_text.constData() + copied, edit.range.begin - copied);
        result.append(edit.text);
        copied = edit.range.end;
    }
    result.append(m_text.constData() + copied, m_text.size() - copied);
    return result;
}

QString ThemeFileText::unescaped(const QByteArray &text)
{
    if (!text.contains('\\'))
        return decoded(text);
    QByteArray result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const char next = text.at(i) == '\\' && i + 1 < text.size() ? text.at(i + 1) : '\0';
        switch (next) {
        case '\\':
            result += '\\';
            break;
        case 'n':
            result += '\n';
            break;
        case 'r':
            result += '\r';
            break;
        case 't':
            result += '\t';
            break;
        case 's':
            result += ' ';
            break;
        default:
            result += text.at(i);
            continue;
        }
        ++i;
    }
    return decoded(result);
}

QByteArray ThemeFileText::escaped(const QString &value)
{
    const QByteArray text = value.toUtf8();
    QByteArray result;
    result.reserve(text.size() + 2);
    for (int i = 0; i < text.size(); ++i) {
        const char c = text.at(i);
        if (c == '\\')
            result += "\\\\";
        else if (c == '\n')
            result += "\\n";
        else if (c == '\r')
            result += "\\r";
        else if (c == '\t')
            result += "\\t";
        else if (c == ' ' && (i == 0 || i == text.size() - 1))
            result += "\\s";
        else
            result += c;
    }
    return result;
}
