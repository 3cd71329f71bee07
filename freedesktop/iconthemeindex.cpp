#include "freedesktop/iconthemeindex.h"

#include "freedesktop/desktopentry.h"

#include <QHash>

#include <algorithm>

namespace {

const QByteArray themeGroup = QByteArrayLiteral("Icon Theme");
const QByteArray inheritsKey = QByteArrayLiteral("Inherits");

IconDirectory iconDirectory(const QByteArray &path, const QHash<QByteArray, QByteArray> &values)
{
    const QByteArray size = values.value("Size");
    const QByteArray type = values.value("Type");
    const qint64 threshold = type == "Fixed" ? 0 : values.value("Threshold", "2").toInt();
    IconDirectory directory{path, values.value("Context"), values.value("Scale", "1").toInt(),
                            size.toInt() - threshold, size.toInt() + threshold};
    if (type == "Scalable") {
        directory.minSize = values.value("MinSize", size).toInt();
        directory.maxSize = values.value("MaxSize", size).toInt();
    }
    return directory;
}

} // namespace

IconThemeIndex parseIconThemeIndex(const QByteArray &content)
{
    IconThemeIndex theme;
    QByteArrayList paths;
    QHash<QByteArray, QHash<QByteArray, QByteArray>> groups;
    const KeyFileText text = desktopEntryText(content);
    for (const KeyFileText::Entry &entry : text.entries()) {
        const QByteArray group = text.groupName(entry);
        const QByteArray key = text.part(entry.key);
        const QByteArray value = text.part(entry.value);
        // Xcursor takes the first line wherever it stands.
        if (key == inheritsKey && theme.cursorInherits.isEmpty())
            theme.cursorInherits = listItems(value, ",; \t");
        if (group != themeGroup) {
            groups[group].insert(key, value);
        } else if (key == inheritsKey) {
            theme.inherits = listItems(value);
        } else if (key == "Directories") {
            theme.hasDirectories = true;
            paths = listItems(value);
        }
    }
    for (const QByteArray &path : qAsConst(paths)) {
        if (const auto values = groups.value(path); values.value("Size").toInt() > 0)
            theme.directories.append(iconDirectory(path, values));
    }
    return theme;
}

qint64 sizeDistance(const IconDirectory &directory, int size)
{
    if (directory.scale == 1 && directory.minSize <= size && size <= directory.maxSize)
        return -1;
    return std::max(
        {directory.minSize * directory.scale - size, size - directory.maxSize * directory.scale, qint64(0)});
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
