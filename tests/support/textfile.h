#pragma once

#include "tests/support/programprocess.h"

/// The content of the file \a name below tests/.
inline QByteArray textOf(const QString &name)
{
    QFile file(QAZ_SOURCE_DIR "/tests/"_s + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("Can't read %s", qPrintable(file.fileName()));
    return file.readAll();
}

/// Compares \a text with the file \a name below tests/. The text is written to the build directory, to see what
/// differs, and to take it over when it is meant.
inline void verifyText(const QString &name, const QByteArray &text)
{
    QFile file(QAZ_BINARY_DIR "/"_s + QFileInfo(name).fileName());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush());
    const QStringList files = {"-u"_s, QAZ_SOURCE_DIR "/tests/"_s + name, file.fileName()};
    QVERIFY2(text == textOf(name), qPrintable(output("/usr/bin/diff"_s, files)));
}
