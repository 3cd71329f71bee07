#pragma once

#include "tools/qaz-theme/arguments.h"

#include <QByteArrayList>
#include <QJsonValue>
#include <QStringList>
#include <QVector>

/// A JSON object that keeps the order in which its members are added.
class JsonObject
{
public:
    void add(const QString &name, const QJsonValue &value);
    void add(const QString &name, const JsonObject &object);
    void add(const QString &name, const QVector<JsonObject> &objects);

    /// On one line, in UTF-8.
    QByteArray text() const;
    /// With one member a line.
    QByteArray lines() const;

private:
    QByteArrayList m_members;
};

/// Prints one line in the local encoding; control characters of \a text are printed as `\n` or `\xNN`.
void printLine(const QString &text);

/// Prints \a object, one member a line, for \a json, and else the \a lines. Success.
Status print(bool json, const JsonObject &object, const QStringList &lines);

/// Prints one line "qaz-theme: TEXT" to standard error.
void complain(const QString &text);
