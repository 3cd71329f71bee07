#include "platform/qazdesktopentry.h"

#include "base/atomicfile.h"
#include "base/editfile.h"
#include "freedesktop/desktopentry.h"

#include <QFile>

QazDesktopEntry::QazDesktopEntry(const char *path)
    : m_path(path)
{}

bool QazDesktopEntry::load()
{
    const FileContent file = readRegularFile(QFile::decodeName(m_path));
    m_text = desktopEntryText(file.content);
    return file.state == FileState::Regular;
}

const char *QazDesktopEntry::getUnknownValue(const char *key)
{
    const std::optional<QByteArray> value = m_text.value(desktopEntryGroup, key);
    m_lastValue = value.value_or(QByteArray());
    return value ? m_lastValue.constData() : nullptr;
}

void QazDesktopEntry::setUnknowns(const List<char> &keys, const List<char> &values)
{
    for (int i = 0; i < keys.count(); ++i)
        m_changes.insert(keys.at(i), values.at(i));
}

bool QazDesktopEntry::save(int /*flags*/)
{
    return editFileOrTell(QFile::decodeName(m_path), [this](const QByteArray &content) {
        return desktopEntryText(content).withValues(desktopEntryGroup, m_changes);
    });
}
