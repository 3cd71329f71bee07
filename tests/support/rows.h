#pragma once

#include "tests/support/textfile.h"

/// The rows of a test's table in the JSON file \a path below tests/: a name, then texts, null where there is none.
inline QVector<QStringList> rowsOf(const QString &path)
{
    QVector<QStringList> rows;
    for (const QVariant &row : QJsonDocument::fromJson(textOf(path)).toVariant().toList())
        rows.append(row.toStringList());
    if (rows.isEmpty())
        qFatal("No rows in %s", qPrintable(path));
    return rows;
}
