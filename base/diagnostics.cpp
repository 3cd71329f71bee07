#include "base/diagnostics.h"

#include <cstdio>
#include <cstring>

void printDiagnosticAs(const char *program, const QString &text)
{
    QByteArray line = text.toLocal8Bit();
    line.replace('\n', ' ').replace('\r', ' ');
    std::fprintf(stderr, "%s: %s\n", program, line.constData());
}

void printDiagnostic(const QString &text)
{
    printDiagnosticAs("qaz-admin-theme", text);
}

QString systemErrorText(int number)
{
    return QString::fromLocal8Bit(std::strerror(number));
}

bool failed(QString *error, const QString &reason)
{
    *error = reason;
    return false;
}
