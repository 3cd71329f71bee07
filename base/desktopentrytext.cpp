#include "base/desktopentrytext.h"

#include <algorithm>
#include <vector>

namespace {

const QByteArray groupName = QByteArrayLiteral("Desktop Entry");

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

/// A "Key=Value" line as offsets into the content; the line's end is behind its line break.
struct KeyLine {
    int begin;
    int valueBegin;
    int valueEnd; // blanks at the end of the line not included
    int end;
};

/// What stands where: the lines of one key in the group, and where a new line of the group belongs.
struct Layout {
    std::vector<KeyLine> keyLines;
    int insertAt = -1; // no such group: -1
};

int lineTextEnd(const QByteArray &content, int begin)
{
    const auto end = std::find_if(content.begin() + begin, content.end(), isLineEnd);
    return int(end - content.begin());
}

int nextLine(const QByteArray &content, int textEnd)
{
    if (content.mid(textEnd, 2) == "\r\n")
        return textEnd + 2;
    return std::min(textEnd + 1, content.size());
}

int skipBlanks(const QByteArray &content, int from, int end)
{
    while (from < end && isBlank(content[from]))
        ++from;
    return from;
}

int skipBlanksBackwards(const QByteArray &content, int from, int begin)
{
    while (from > begin && isBlank(content[from - 1]))
        --from;
    return from;
}

QByteArray trimmedPart(const QByteArray &content, int begin, int end)
{
    begin = skipBlanks(content, begin, end);
    return content.mid(begin, skipBlanksBackwards(content, end, begin) - begin);
}

Layout layoutOf(const QByteArray &content, const QByteArray &key)
{
    Layout layout;
    bool inGroup = false;
    int end = 0;
    for (int begin = content.startsWith("\xEF\xBB\xBF") ? 3 : 0; begin < content.size(); begin = end) {
        const int textEnd = lineTextEnd(content, begin);
        end = nextLine(content, textEnd);
        const int first = skipBlanks(content, begin, textEnd);
        if (first == textEnd || content[first] == '#' || content[first] == ';')
            continue;
        if (content[first] == '[') {
            const int close = content.indexOf(']', first);
            if (close < 0 || close >= textEnd)
                continue; // no header: readers of INI files skip the line
            inGroup = trimmedPart(content, first + 1, close) == groupName;
            if (inGroup)
                layout.insertAt = end;
            continue;
        }
        const int equals = content.indexOf('=', first);
        if (!inGroup || equals < 0 || equals >= textEnd)
            continue;
        layout.insertAt = end;
        if (trimmedPart(content, first, equals) == key) {
            const int valueBegin = skipBlanks(content, equals + 1, textEnd);
            layout.keyLines.push_back(
                {begin, valueBegin, skipBlanksBackwards(content, textEnd, valueBegin), end});
        }
    }
    return layout;
}

/// The line break that the file uses, taken from its first line.
QByteArray lineBreakOf(const QByteArray &content)
{
    const int textEnd = lineTextEnd(content, 0);
    return textEnd == content.size() ? QByteArrayLiteral("\n")
                                     : content.mid(textEnd, nextLine(content, textEnd) - textEnd);
}

} // namespace

std::optional<QByteArray> DesktopEntryText::value(const QByteArray &key) const
{
    const Layout layout = layoutOf(m_content, key);
    if (layout.keyLines.empty())
        return std::nullopt;
    const KeyLine &line = layout.keyLines.back();
    return m_content.mid(line.valueBegin, line.valueEnd - line.valueBegin);
}

void DesktopEntryText::setValue(const QByteArray &key, const QByteArray &value)
{
    Layout layout = layoutOf(m_content, key);
    // From the last to the first, so that the offsets still to come stay right.
    for (auto line = layout.keyLines.rbegin(); line != layout.keyLines.rend(); ++line)
        m_content.replace(line->valueBegin, line->valueEnd - line->valueBegin, value);
    if (!layout.keyLines.empty())
        return;

    const QByteArray lineBreak = lineBreakOf(m_content);
    QByteArray addition;
    if (layout.insertAt < 0) {
        layout.insertAt = m_content.size();
        addition = '[' + groupName + ']' + lineBreak;
    }
    const bool lineIsOpen = layout.insertAt == m_content.size() && !m_content.isEmpty()
                            && !isLineEnd(m_content.back());
    addition += key + '=' + value + lineBreak;
    m_content.insert(layout.insertAt, lineIsOpen ? lineBreak + addition : addition);
}

bool DesktopEntryText::removeKey(const QByteArray &key)
{
    const Layout layout = layoutOf(m_content, key);
    for (auto line = layout.keyLines.rbegin(); line != layout.keyLines.rend(); ++line)
        m_content.remove(line->begin, line->end - line->begin);
    return !layout.keyLines.empty();
}
