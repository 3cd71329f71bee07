#include "base/diagnostics.h"

#include <cstdio>

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
