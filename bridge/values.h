#pragma once

#include <QMap>
#include <QString>

#include <memory>

class QazSettings;

/// The values of the theme file, which is never written here, and those that were announced since it was read: the
/// editor announces a value before the file holds it.
class Values
{
public:
    /// Reads the file at \a themeFile.
    explicit Values(const QString &themeFile);
    ~Values();

    /// Reads the file again and forgets what was announced.
    void reload();
    /// Reads the file again; what was announced stands.
    void refresh();
    void announce(const QString &key, const QString &value);

    /// The announced text of \a key, else the file's, else \a defaultText.
    QString text(const char *key, const char *defaultText = "") const;
    /// The file's text alone, for what nobody on the display may choose.
    QString fileText(const char *key, const char *defaultText = "") const;
    /// The number of a text; 0 for none, at most \a limit, never negative.
    int number(const char *key, const char *defaultText, int limit) const;

private:
    QString m_themeFile;
    std::unique_ptr<QazSettings> m_file;
    QMap<QString, QString> m_announced;
};
