#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

/// The value of \a key ("group/name", or "name" of the group General) in the QSettings INI file at \a path, as
/// QSettings reads it, else \a defaultValue. What is no regular file holds no value.
QVariant iniValue(const QString &path, const QString &key, const QVariant &defaultValue = {});

/// Sets \a values (texts without NUL, numbers or truth values, under names of letters and digits) in \a group, General
/// when it is empty, of the QSettings INI file at \a path so that QSettings reads them back. Every other line stays as it
/// is. On failure the old file stands whole, and one line on standard error says why.
void writeIniValues(const QString &path, const QByteArray &group, const QMap<QString, QVariant> &values);

/// The file in which QSettings keeps what a program with these names stores; for an empty \a application, what all
/// programs of the organisation do.
QString iniFile(const QString &organization, const QString &application = {});
