#include "tests/support/fakeprogram.h"

#include <QFile>
#include <QStringList>

#include <cerrno>

#include <sys/wait.h>

FakePrograms::FakePrograms(Path path)
    : m_path("PATH", QFile::encodeName(m_directory.path())
                         + (path == Path::Instead ? QByteArray() : ':' + qgetenv("PATH")))
{}

void FakePrograms::add(const QString &name, const QByteArray &script)
{
    QFile file(m_directory.path() + u'/' + name);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("Can't write %s", qPrintable(file.fileName()));
    // One record a call: each argument ended by a unit separator, the record by a record separator.
    file.write("#!/bin/sh\n{ [ $# -eq 0 ] || printf '%s\\037' \"$@\"; printf '\\036'; } >>'"
               + QFile::encodeName(file.fileName()) + ".calls'\n" + script + "\n");
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QVector<QStringList> FakePrograms::calls(const QString &name) const
{
    QVector<QStringList> result;
    QFile file(m_directory.path() + u'/' + name + QLatin1String(".calls"));
    if (!file.open(QIODevice::ReadOnly))
        return result;
    QStringList records = QString::fromLocal8Bit(file.readAll()).split(QChar(0x1e));
    records.removeLast();
    for (const QString &record : qAsConst(records)) {
        QStringList arguments = record.split(QChar(0x1f));
        arguments.removeLast();
        result.append(arguments);
    }
    return result;
}

bool hasChildProcesses()
{
    siginfo_t info;
    return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0 || errno != ECHILD;
}
