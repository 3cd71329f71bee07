#include "settings/inifile.h"

#include "base/editfile.h"
#include "base/keyfiletext.h"
#include "base/xdgdirectories.h"

#include <QFileInfo>
#include <QSettings>

namespace {

constexpr KeyFileFormat iniFormat{";", true, true};

QByteArray escapedCharacter(ushort code)
{
    constexpr char letters[] = ".......abtnvfr"; // of the codes 0 to 13
    if (code == '"' || code == '\\')
        return QByteArray("\\") + char(code);
    if (code < sizeof letters - 1 && letters[code] != '.')
        return QByteArray("\\") + letters[code];
    return code >= 0x20 && code < 0x7F ? QByteArray(1, char(code)) : "\\x" + QByteArray::number(code, 16);
}

QByteArray escapedValue(const QVariant &value)
{
    QString text = value.toString();
    if (text.startsWith(QLatin1Char('@'))) // else it would begin a value of another type
        text.prepend(QLatin1Char('@'));
    QByteArray result;
    bool afterNumber = false;
    for (const QChar character : qAsConst(text)) {
        const ushort code = character.unicode();
        const bool isDigit = QByteArrayLiteral("0123456789abcdefABCDEF").contains(character.toLatin1());
        const QByteArray escaped = afterNumber && isDigit ? "\\x" + QByteArray::number(code, 16)
                                                          : escapedCharacter(code);
        afterNumber = escaped.startsWith("\\x");
        result += escaped;
    }
    const bool needsQuotes = result.contains(';') || result.contains(',') || result.contains('=')
                             || result.startsWith(' ') || result.endsWith(' ');
    return needsQuotes ? '"' + result + '"' : result;
}

/// General's values may stand above the first group, too; what the file has stays where it is.
QByteArray groupFor(const KeyFileText &text, const QByteArray &group, const QByteArray &key)
{
    QByteArray found = group.isEmpty() ? QByteArrayLiteral("General") : group;
    for (const KeyFileText::Entry &entry : text.entries()) {
        const QByteArray name = text.groupName(entry);
        if (group.isEmpty() && text.part(entry.key) == key
            && (name.isEmpty() || name.compare("general", Qt::CaseInsensitive) == 0))
            found = name;
    }
    return found;
}

} // namespace

QVariant iniValue(const QString &path, const QString &key, const QVariant &defaultValue)
{
    // QSettings would wait for a writer of a FIFO.
    return QFileInfo(path).isFile() ? QSettings(path, QSettings::IniFormat).value(key, defaultValue)
                                    : defaultValue;
}

void writeIniValues(const QString &path, const QByteArray &group, const QMap<QString, QVariant> &values)
{
    const auto edit = [&](const QByteArray &content) {
        QByteArray result = content;
        for (auto value = values.cbegin(); value != values.cend(); ++value) {
            const KeyFileText text(result, iniFormat);
            const QByteArray key = value.key().toLatin1();
            result = text.withValues(groupFor(text, group, key), {{key, escapedValue(*value)}});
        }
        return result;
    };
    EditFileOptions options;
    options.newFileMode = 0600;
    editFileOrTell(path, edit, options);
}

QString iniFile(const QString &organization, const QString &application)
{
    const QString file = xdgDirectory("XDG_CONFIG_HOME", "/.config") + QLatin1Char('/') + organization;
    return (application.isEmpty() ? file : file + QLatin1Char('/') + application) + QLatin1String(".conf");
}
