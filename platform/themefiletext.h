#pragma once

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QString>

/// The text of a theme file: gives out the values of the lines "Key=Value" above the first group, and a text
/// with some of them changed, in which every other byte is as it was.
class ThemeFileText
{
public:
    explicit ThemeFileText(QByteArray text = {});

    bool contains(const QString &key) const;
    /// The unescaped value of the last line of \a key; a null text when there is none.
    QString value(const QString &key) const;
    /// The text with these values set: on the last line of each key, or on new lines below the last ungrouped one.
    QByteArray withValues(const QMap<QString, QString> &values) const;

    static QString unescaped(const QByteArray &text);
    static QByteArray escaped(const QString &value);

private:
    struct Range {
        int begin;
        int end;
    };

    QByteArray m_text;
    QHash<QByteArray, Range> m_values; // where the value of a key's last line stands
    int m_insertAt = 0;                // where new lines go
};
