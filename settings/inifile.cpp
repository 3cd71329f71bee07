#include "settings/inifile.h"

#include "base/diagnostics.h"
#include "base/editfile.h"
#include "base/keyfiletext.h"
#include "base/xdgdirectories.h"

#include <QFileInfo>
#include <QSettings>

namespace {

constexpr KeyFileFormat iniFormat{";", true, true};

/// Letters, digits and a few signs stand for themselves, a part of a name ends with a backslash.
QByteArray escapedName(const QString &name)
{
    QByteArray result;
    for (const QChar character : name) {
        const ushort code = character.unicode();
        const char sign = character.toLatin1();
        if (character == QLatin1Char('/'))
            result += '\\';
        else if (code < 0x80 && (character.isLetterOrNumber() || sign == '_' || sign == '-' || sign == '.'))
            result += sign;
        else if (code <= 0xFF)
            result += '%' + QByteArray::number(code, 16).toUpper().rightJustified(2, '0');
        else
            result += "%U" + QByteArray::number(code, 16).toUpper().rightJustified(4, '0');
    }
    return result;
}

QString unescapedName(const QByteArray &text)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const bool isLong = text.mid(i, 2) == "%U";
        const QByteArray digits = isLong ? text.mid(i + 2, 4) : text.mid(i + 1, 2);
        bool isNumber = false;
        const ushort code = digits.toUShort(&isNumber, 16);
        if (text[i] == '%' && isNumber && digits.size() == (isLong ? 4 : 2)) {
            result += QChar(code);
            i += isLong ? 5 : 2;
        } else {
            result += text[i] == '\\' ? QLatin1Char('/') : QLatin1Char(text[i]);
        }
    }
    return result;
}

QByteArray escapedCharacter(ushort code)
{
    constexpr char letters[] = "0......abtnvfr"; // of the codes 0 to 13
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
        const bool isDigit = code < 0x80 && QByteArrayLiteral("0123456789abcdefABCDEF").contains(char(code));
        const QByteArray escaped = afterNumber && isDigit ? "\\x" + QByteArray::number(code, 16)
                                                          : escapedCharacter(code);
        afterNumber = escaped.startsWith("\\x") || escaped == "\\0";
        result += escaped;
    }
    const bool needsQuotes = result.contains(';') || result.contains(',') || result.contains('=')
                             || result.startsWith(' ') || result.endsWith(' ');
    return needsQuotes ? '"' + result + '"' : result;
}

/// The section that a header names; empty for the lines above the first one and for General.
QString sectionOf(const KeyFileText &text, int group)
{
    const QByteArray name = text.part(text.groups()[std::size_t(group)].name);
    if (group == 0 || name.compare("general", Qt::CaseInsensitive) == 0)
        return {};
    return name.compare("%general", Qt::CaseInsensitive) == 0 ? QString::fromLatin1(name.mid(1))
                                                              : unescapedName(name);
}

QByteArray withValue(const KeyFileText &text, const QString &name, const QByteArray &value)
{
    const QString section = name.section(QLatin1Char('/'), 0, 0, QString::SectionSkipEmpty);
    const bool isGeneral = section == name;
    QByteArray group = isGeneral ? QByteArrayLiteral("General") : escapedName(section);
    if (!isGeneral && group.compare("general", Qt::CaseInsensitive) == 0)
        group.prepend('%');
    QByteArray key = escapedName(isGeneral ? name : name.mid(section.size() + 1));
    // What the file has is kept in its own spelling.
    for (int i = 1; i < int(text.groups().size()); ++i) {
        if (sectionOf(text, i) == (isGeneral ? QString() : section))
            group = text.part(text.groups()[std::size_t(i)].name);
    }
    for (const KeyFileText::Entry &entry : text.entries()) {
        const QString stored = sectionOf(text, entry.group) + QLatin1Char('/')
                               + unescapedName(text.part(entry.key));
        if (stored == (isGeneral ? QLatin1Char('/') + name : name)) {
            group = text.groupName(entry);
            key = text.part(entry.key);
        }
    }
    return text.withValues(group, {{key, value}});
}

} // namespace

QVariant iniValue(const QString &path, const QString &key, const QVariant &defaultValue)
{
    // QSettings would wait for a writer of a FIFO.
    return QFileInfo(path).isFile() ? QSettings(path, QSettings::IniFormat).value(key, defaultValue)
                                    : defaultValue;
}

bool writeIniValues(const QString &path, const QString &group, const QMap<QString, QVariant> &values,
                    QString *error)
{
    const auto edit = [&](const QByteArray &content) {
        QByteArray result = content;
        for (auto value = values.cbegin(); value != values.cend(); ++value) {
            const QStringList parts = (group + QLatin1Char('/') + value.key())
                                          .split(QLatin1Char('/'), Qt::SkipEmptyParts);
            result = withValue(KeyFileText(result, iniFormat), parts.join(QLatin1Char('/')),
                               escapedValue(*value));
        }
        return result;
    };
    EditFileOptions options;
    options.newFileMode = 0600;
    const bool isWritten = editFile(path, edit, error, options);
    if (!isWritten)
        printDiagnostic(QStringLiteral("Can't write %1: %2").arg(path, *error));
    return isWritten;
}

QString iniFile(const QString &organization, const QString &application)
{
    const QString file = xdgDirectory("XDG_CONFIG_HOME", "/.config") + QLatin1Char('/') + organization;
    return (application.isEmpty() ? file : file + QLatin1Char('/') + application) + QLatin1String(".conf");
}
