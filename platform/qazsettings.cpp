#include "platform/qazsettings.h"

#include "base/atomicfile.h"
#include "base/diagnostics.h"
#include "platform/themefiletext.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

namespace {

/// Applies \a changes to the file at \a path as it stands now. False with the reason when it can't be written.
bool writeChanges(const QString &path, const QMap<QString, QString> &changes, QString *error)
{
    const QString target = linkTarget(path);
    if (target.isEmpty()) {
        *error = QString::fromLocal8Bit(std::strerror(ELOOP));
        return false;
    }
    const QString directory = QFileInfo(target).path();
    if (!QDir().mkpath(directory)) {
        *error = QStringLiteral("Can't create directory %1").arg(directory);
        return false;
    }
    const DirectoryLock lock(target);
    if (!lock.isHeld()) {
        *error = lock.error();
        return false;
    }
    const FileContent file = readRegularFile(target);
    if (file.state == FileState::Unreadable) {
        *error = file.error;
        return false;
    }
    const ThemeFileText text(file.content);
    QMap<QString, QString> pending;
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        if (!text.contains(change.key()) || text.value(change.key()) != *change)
            pending.insert(change.key(), *change);
    }
    return pending.isEmpty() || replaceFile(target, text.withValues(pending), error);
}

} // namespace

QazSettings::QazSettings(const QString &path)
    : m_path(path)
    , m_text(std::make_unique<ThemeFileText>())
{}

QazSettings::~QazSettings()
{
    QString error;
    if (!m_changes.isEmpty() && !writeChanges(m_path, m_changes, &error))
        printDiagnostic(QStringLiteral("Can't write %1: %2").arg(m_path, error));
}

void QazSettings::sync(bool read)
{
    if (!read)
        return;
    const FileContent file = readRegularFile(m_path);
    if (file.state == FileState::Unreadable)
        printDiagnostic(QStringLiteral("Can't read %1: %2").arg(m_path, file.error));
    m_text = std::make_unique<ThemeFileText>(file.content);
}

QVariant QazSettings::value(const QString &key, const QVariant &defaultValue) const
{
    const auto change = m_changes.constFind(key);
    if (change != m_changes.constEnd())
        return *change;
    return m_text->contains(key) ? QVariant(m_text->value(key)) : defaultValue;
}

void QazSettings::setValue(const QString &key, const QVariant &value)
{
    m_changes.insert(key, value.toString());
}
