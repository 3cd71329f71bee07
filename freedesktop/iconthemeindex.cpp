#include "freedesktop/iconthemeindex.h"

#include "freedesktop/desktopentry.h"

#include <QHash>

#include <algorithm>
#include <climits>

namespace {

const QByteArray themeGroup = QByteArrayLiteral("Icon Theme");
const QByteArray inheritsKey = QByteArrayLiteral("Inherits");

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
    const KeyFileText text = desktopEntryText(content);
    for (const KeyFileText::Entry &entry : text.entries()) {
        const QByteArray group = text.groupName(entry);
        const QByteArray key = text.part(entry.key);
        const QByteArray value = text.part(entry.value);
        // Xcursor takes the first line wherever it stands.
        if (key == inheritsKey && theme.cursorInherits.isEmpty())
            theme.cursorInherits = listItems(value, ",; \t");
        if (group != themeGroup) {
            groups[group].values.insert(key, value);
        } else if (key == inheritsKey) {
            theme.inherits = listItems(value);
        } else if (key == "Directories") {
            theme.hasDirectories = true;
            paths = listItems(value);
        }
    }
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
    const KeyFileText text = desktopEntryText(content);
    const auto lines = std::count_if(
        text.entries().begin(), text.entries().end(), [&text](const auto &entry) {
            return text.part(entry.key) == inheritsKey && text.groupName(entry) == themeGroup;
        });
    if (lines == 1 && !name.isEmpty())
        return text.withValues(themeGroup, {{inheritsKey, name}});
    // Of several lines some readers take the first one, some the last.
    const QByteArray without = text.withoutKey(themeGroup, inheritsKey);
    return name.isEmpty() ? without : desktopEntryText(without).withValues(themeGroup, {{inheritsKey, name}});
}
