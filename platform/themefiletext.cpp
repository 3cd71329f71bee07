#include "platform/themefiletext.h"

namespace {

constexpr char byteOrderMark[] = "\xEF\xBB\xBF";

/// Qt takes a byte order mark at the front for a file's; at the front of a value it is part of it.
QString decoded(const QByteArray &text)
{
    return text.startsWith(byteOrderMark) ? QString::fromUtf8('=' + text).mid(1) : QString::fromUtf8(text);
}

/// Blanks at the ends would be cut off.
QByteArray escapedValue(const QString &value)
{
    QByteArray text = escaped(value.toUtf8());
    if (text.endsWith(' '))
        text = text.chopped(1) + "\\s";
    return text.startsWith(' ') ? "\\s" + text.mid(1) : text;
}

} // namespace

std::optional<QString> ThemeFileText::value(const QString &key) const
{
    const std::optional<QByteArray> text = m_text.value({}, key.toUtf8());
    return text ? std::make_optional(decoded(unescaped(*text))) : std::nullopt;
}

QByteArray ThemeFileText::withValues(const QMap<QString, QString> &values) const
{
    QMap<QByteArray, QByteArray> changes;
    for (auto change = values.cbegin(); change != values.cend(); ++change) {
        if (value(change.key()) != *change)
            changes.insert(change.key().toUtf8(), escapedValue(*change));
    }
    return m_text.withValues({}, changes);
}
