#pragma once

#include "tests/support/testing.h"

/// The rows of a test's table in the JSON file \a path below tests/: a name, then texts, null where there is none.
inline QVector<QStringList> rowsOf(const QString &path)
{
    QFile file(QAZ_SOURCE_DIR "/tests/"_s + path);
    QVector<QStringList> rows;
    if (file.open(QIODevice::ReadOnly))
        for (const QVariant &row : QJsonDocument::fromJson(file.readAll()).toVariant().toList())
            rows.append(row.toStringList());
    if (rows.isEmpty())
        qFatal("No rows in %s", qPrintable(path));
    return rows;
}
