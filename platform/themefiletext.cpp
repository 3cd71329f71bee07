#include "platform/themefiletext.h"

#include <string_view>

namespace {

// A backslash and the sign stand for the character. Blanks would be cut off at the ends only.
constexpr std::string_view escapes("\\nrts");
constexpr std::string_view escaped("\\\n\r\t ");

constexpr char byteOrderMark[] = "\xEF\xBB\xBF";

/// Qt takes a byte order mark at the front for a file's; at the front of a value it is part of it.
QString decoded(const QByteArray &text)
{
    return text.startsWith(byteOrderMark) ? QString::fromUtf8('=' + text).mid(1) : QString::fromUtf8(text);
}

QString unescaped(const QByteArray &text)
{
    QByteArray result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const bool isEscape = text.at(i) == '\\' && i + 1 < text.size();
        const std::size_t place = isEscape ? escapes.find(text.at(i + 1)) : escapes.npos;
        result += place == escapes.npos ? text.at(i) : escaped[place];
        i += place == escapes.npos ? 0 : 1;
    }
    return decoded(result);
}

QByteArray escapedText(const QString &value)
{
    const QByteArray text = value.toUtf8();
    QByteArray result;
    result.reserve(text.size() + 2);
    for (int i = 0; i < text.size(); ++i) {
        const std::size_t place = escaped.find(text.at(i));
        const bool isInside = i > 0 && i < text.size() - 1;
        if (place == escaped.npos || (text.at(i) == ' ' && isInside))
            result += text.at(i);
        else
            (result += '\\') += escapes[place];
    }
    return result;
}

} // namespace

std::optional<QString> ThemeFileText::value(const QString &key) const
{
    const std::optional<QByteArray> text = m_text.value({}, key.toUtf8());
    return text ? std::make_optional(unescaped(*text)) : std::nullopt;
}

QByteArray ThemeFileText::withValues(const QMap<QString, QString> &values) const
{
    QMap<QByteArray, QByteArray> changes;
    for (auto change = values.cbegin(); change != values.cend(); ++change) {
        if (value(change.key()) != *change)
            changes.insert(change.key().toUtf8(), escapedText(*change));
    }
    return m_text.withValues({}, changes);
}
