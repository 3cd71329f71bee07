#include "platform/qazsettings.h"

#include "base/atomicfile.h"
#include "base/diagnostics.h"
#include "base/editfile.h"
#include "platform/themefiletext.h"

constexpr qint64 sizeLimit = 16 * 1024 * 1024; // bytes

QazSettings::QazSettings(const QString &path)
    : m_path(path)
    , m_text(std::make_unique<ThemeFileText>())
{}

QazSettings::~QazSettings()
{
    const auto setValues = [this](const QByteArray &content) {
        return ThemeFileText(content).withValues(m_changes);
    };
    EditFileOptions options;
    options.limit = sizeLimit;
    if (!m_changes.isEmpty())
        editFileOrTell(m_path, setValues, options);
}

void QazSettings::sync(bool read)
{
    if (!read)
        return;
    const FileContent file = readRegularFile(m_path, sizeLimit);
    if (file.state == FileState::Unreadable)
        printDiagnostic(QStringLiteral("Can't read %1: %2").arg(m_path, file.error));
    m_text = std::make_unique<ThemeFileText>(file.content);
}

QVariant QazSettings::value(const QString &key, const QVariant &defaultValue) const
{
    const auto change = m_changes.constFind(key);
    if (change != m_changes.constEnd())
        return *change;
    const std::optional<QString> text = m_text->value(key);
    return text ? QVariant(*text) : defaultValue;
}

void QazSettings::setValue(const QString &key, const QVariant &value)
{
    m_changes.insert(key, value.toString());
}
