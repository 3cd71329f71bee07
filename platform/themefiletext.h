#pragma once

#include "base/keyfiletext.h"

#include <QMap>
#include <QString>

#include <optional>

/// The text of a theme file: gives out the values of the lines "Key=Value" above the first group, and a text
/// with some of them changed, in which every other byte is as it was.
class ThemeFileText
{
public:
    explicit ThemeFileText(const QByteArray &text = {})
        : m_text(text)
    {}

    /// The unescaped value of the last line of \a key; nothing without one.
    std::optional<QString> value(const QString &key) const;
    /// The text with those of \a values set that differ: on the last line of each key, or on new lines below the
    /// last ungrouped one.
    QByteArray withValues(const QMap<QString, QString> &values) const;

private:
    KeyFileText m_text;
};
