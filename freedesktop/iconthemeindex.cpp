#include "freedesktop/iconthemeindex.h"

#include <QHash>

#include <climits>
#include <functional>

namespace {

const QByteArray themeGroup = QByteArrayLiteral("Icon Theme");
const QByteArray inheritsKey = QByteArrayLiteral("Inherits");

/// The name of the group that \a line (trimmed) opens; null for any other line.
QByteArray groupName(const QByteArray &line)
{
    return line.startsWith('[') && line.endsWith(']') ? line.mid(1, line.size() - 2) : QByteArray();
}

/// Calls \a visit with the group, key and value of each entry. Entries above the first group have a null group.
void forEachEntry(
    const QByteArray &content,
    const std::function<void(const QByteArray &, const QByteArray &, const QByteArray &)> &visit)
{
    QByteArray group;
    for (int start = 0; start < content.size();) {
        int end = content.indexOf('\n', start);
        if (end < 0)
            end = content.size();
        const QByteArray line = content.mid(start, end - start).trimmed();
        start = end + 1;
        const int equals = line.indexOf('=');
        if (line.startsWith('#'))
            continue;
        if (const QByteArray name = groupName(line); !name.isNull())
            group = name;
        else if (equals > 0)
            visit(group, line.left(equals).trimmed(), line.mid(equals + 1).trimmed());
    }
}

QByteArrayList splitAt(const QByteArray &text, const char *separators)
{
    QByteArrayList parts;
    QByteArray part;
    const QByteArray at(separators);
    for (const char c : text + at.at(0)) {
        if (!at.contains(c)) {
            part += c;
            continue;
        }
        if (const QByteArray trimmed = part.trimmed(); !trimmed.isEmpty())
            parts.append(trimmed);
        part.clear();
    }
    return parts;
}

struct DirectoryGroup {
    QHash<QByteArray, QByteArray> values;

    int number(const char *key, int otherwise) const
    {
        bool isNumber = false;
        const int number = values.value(key).toInt(&isNumber);
        return isNumber ? number : otherwise;
    }
};

IconDirectory iconDirectory(const QByteArray &path, const DirectoryGroup &group)
{
    IconDirectory directory;
    directory.path = path;
    directory.context = group.values.value("Context");
    const QByteArray type = group.values.value("Type");
    if (type == "Fixed")
        directory.type = IconDirectory::Type::Fixed;
    else if (type == "Scalable")
        directory.type = IconDirectory::Type::Scalable;
    directory.size = group.number("Size", 0);
    directory.scale = group.number("Scale", 1);
    directory.minSize = group.number("MinSize", directory.size);
    directory.maxSize = group.number("MaxSize", directory.size);
    directory.threshold = group.number("Threshold", 2);
    return directory;
}

} // namespace

IconThemeIndex parseIconThemeIndex(const QByteArray &content)
{
    IconThemeIndex theme;
    QByteArrayList paths;
    QHash<QByteArray, DirectoryGroup> groups;
    forEachEntry(content, [&](const QByteArray &group, const QByteArray &key, const QByteArray &value) {
        // Xcursor takes the first line wherever it stands.
        if (key == inheritsKey && theme.cursorInherits.isEmpty())
            theme.cursorInherits = splitAt(value, ",; \t");
        if (group != themeGroup) {
            groups[group].values.insert(key, value);
        } else if (key == inheritsKey) {
            theme.inherits = splitAt(value, ",");
        } else if (key == "Directories") {
            theme.hasDirectories = true;
            paths = splitAt(value, ",");
        }
    });
    for (const QByteArray &path : qAsConst(paths)) {
        const IconDirectory directory = iconDirectory(path, groups.value(path));
        if (directory.size > 0)
            theme.directories.append(directory);
    }
    return theme;
}

bool matchesSize(const IconDirectory &directory, int size)
{
    if (directory.scale != 1)
        return false;
    switch (directory.type) {
    case IconDirectory::Type::Fixed:
        return directory.size == size;
    case IconDirectory::Type::Scalable:
        return directory.minSize <= size && size <= directory.maxSize;
    case IconDirectory::Type::Threshold:
        break;
    }
    return qAbs(qint64(directory.size) - size) <= directory.threshold;
}

int sizeDistance(const IconDirectory &directory, int size)
{
    const qint64 scale = directory.scale;
    qint64 smallest = directory.size * scale;
    qint64 largest = smallest;
    if (directory.type == IconDirectory::Type::Scalable) {
        smallest = directory.minSize * scale;
        largest = directory.maxSize * scale;
    } else if (directory.type == IconDirectory::Type::Threshold) {
        smallest = (qint64(directory.size) - directory.threshold) * scale;
        largest = (qint64(directory.size) + directory.threshold) * scale;
    }
    const qint64 distance = size < smallest ? smallest - size : size > largest ? size - largest : 0;
    return int(qMin<qint64>(distance, INT_MAX));
}

QByteArray withInherits(const QByteArray &content, const QByteArray &name)
{
    const QByteArray newLine = inheritsKey + '=' + name;
    QByteArray result;
    bool inThemeGroup = false;
    bool isPlaced = name.isEmpty();
    int place = -1; // behind the header of the theme's group
    for (int start = 0; start < content.size();) {
        const int newline = content.indexOf('\n', start);
        const int end = newline < 0 ? content.size() : newline + 1;
        const QByteArray line = content.mid(start, end - start);
        const QByteArray ending = line.endsWith("\r\n") ? "\r\n" : "\n";
        const QByteArray trimmed = line.trimmed();
        start = end;
        if (const QByteArray group = groupName(trimmed); !group.isNull()) {
            inThemeGroup = group == themeGroup;
            result += line;
            if (inThemeGroup && place < 0) {
                if (!line.endsWith('\n'))
                    result += '\n';
                place = result.size();
            }
        } else if (inThemeGroup && trimmed.left(trimmed.indexOf('=')).trimmed() == inheritsKey) {
            if (!isPlaced)
                result += newLine + ending;
            isPlaced = true;
        } else {
            result += line;
        }
    }
    if (isPlaced)
        return result;
    if (place >= 0)
        return result.insert(place, newLine + '\n');
    if (!result.isEmpty() && !result.endsWith('\n'))
        result += '\n';
    return result + '[' + themeGroup + "]\n" + newLine + '\n';
}
