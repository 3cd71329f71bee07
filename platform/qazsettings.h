#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

#include <memory>

class ThemeFileText;

/// A theme settings file: lines "Key=Value" above the first group. Values are texts.
class QazSettings
{
public:
    /// Binds the store to the file at \a path; nothing is read before sync().
    explicit QazSettings(const QString &path);
    /// Writes the file when a set value differs from what the file holds now. Other programs' changes
    /// to other keys stay. A failure leaves the old file whole and is one line on standard error.
    ~QazSettings();

    /// With \a read, reads the file's current content; values set before stay set.
    void sync(bool read);

    /// The text of \a key as last set or read, else \a defaultValue.
    QVariant value(const QString &key, const QVariant &defaultValue = QVariant()) const;

    /// Sets \a key to the text of \a value; it is in the file after destruction.
    void setValue(const QString &key, const QVariant &value);

private:
    QString m_path;
    std::unique_ptr<ThemeFileText> m_text;
    QMap<QString, QString> m_changes;
};
