#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

/// The value of \a key ("group/name", or "name" of the group General) in the QSettings INI file at \a path, as
/// QSettings reads it, else \a defaultValue. What is no regular file holds no value.
QVariant iniValue(const QString &path, const QString &key, const QVariant &defaultValue = {});

/// Sets \a values (texts without NUL, numbers or truth values) in \a group of the QSettings INI file at \a path so
/// that QSettings reads them back; an empty group is General, and both may have parts separated by '/'. Every other
/// line stays as it is. On failure the old file stands whole, \a error says why, and one line on standard error says
/// it, too.
[[nodiscard]] bool writeIniValues(const QString &path, const QString &group,
                                  const QMap<QString, QVariant> &values, QString *error);

/// The file in which QSettings keeps what a program with these names stores; for an empty \a application, what all
/// programs of the organisation do.
QString iniFile(const QString &organization, const QString &application = {});
