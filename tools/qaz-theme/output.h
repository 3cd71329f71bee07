#pragma once

#include "settings/themeedit.h"

#include <QStringList>

/// A JSON object that keeps the order in which its members are added.
class JsonObject
{
public:
    void add(const QString &name, const QString &text);
    void add(const QString &name, int number);
    void add(const QString &name, bool truth);
    void add(const QString &name, const QStringList &texts);
    void add(const QString &name, const JsonObject &object);
    void add(const QString &name, const QVector<JsonObject> &objects);

    /// On one line, in UTF-8.
    QByteArray text() const;
    /// With one member a line.
    QByteArray lines() const;

private:
    void addRaw(const QString &name, const QByteArray &value);

    QList<QByteArray> m_members;
};

/// Prints one line in the local encoding; control characters of \a text are printed as `\n` or `\xNN`.
void printLine(const QString &text);
void print(const JsonObject &object);

/// Prints one line "qaz-theme: TEXT" to standard error.
void complain(const QString &text);

/// Prints "KEY: BEFORE -> AFTER" for each change, or one object with `value` and `before` of each key.
void printChanges(const ThemeChanges &changes, bool json);
