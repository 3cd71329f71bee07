#include "platform/qazdesktopentry.h"

#include "base/atomicfile.h"
#include "base/desktopentrytext.h"
#include "base/diagnostics.h"

#include <QFile>

QazDesktopEntry::QazDesktopEntry(const char *path)
    : m_path(path)
    , m_text(std::make_unique<DesktopEntryText>())
{}

QazDesktopEntry::~QazDesktopEntry() = default;

bool QazDesktopEntry::load()
{
    const FileContent file = readRegularFile(QFile::decodeName(m_path));
    *m_text = DesktopEntryText(file.content);
    return file.state == FileState::Regular;
}

const char *QazDesktopEntry::getUnknownValue(const char *key)
{
    const std::optional<QByteArray> value = m_text->value(key);
    if (!value)
        return nullptr;
    m_lastValue = *value;
    return m_lastValue.constData();
}

void QazDesktopEntry::setUnknowns(const List<char> &keys, const List<char> &values)
{
    for (int i = 0; i < keys.count() && i < values.count(); ++i) {
        const QByteArray value = values.at(i);
        if (value.contains('\n') || value.contains('\r')) {
            printDiagnostic(
                QStringLiteral("Can't store a value with a line break in %1").arg(QFile::decodeName(m_path)));
            continue;
        }
        m_changes.insert(keys.at(i), value);
        m_text->setValue(keys.at(i), value);
    }
}

bool QazDesktopEntry::save(int /*flags*/)
{
    const QString path = QFile::decodeName(m_path);
    const DirectoryLock lock(path);
    // Another program may have edited other keys since load().
    const FileContent file = readRegularFile(path);
    DesktopEntryText text(file.content);
    for (auto change = m_changes.cbegin(); change != m_changes.cend(); ++change)
        text.setValue(change.key(), change.value());

    QString error = file.error;
    const bool saved = file.state != FileState::Unreadable
                       && (text.content() == file.content || replaceFile(path, text.content(), &error));
    if (!saved)
        printDiagnostic(QStringLiteral("Can't write %1: %2").arg(path, error));
    else
        m_changes.clear();
    *m_text = text;
    return saved;
}
