#include "platform/setxrdbparameterinfile.h"

#include "base/diagnostics.h"
#include "base/editfile.h"
#include "freedesktop/xresources.h"

#include <QFile>

bool setXrdbParameterInFile(const char *file, const char *parameter, const char *separator, const char *value,
                            bool /*reserved*/)
{
    const QString path = QFile::decodeName(file);
    QByteArray name(parameter);
    if (name.endsWith(':'))
        name.chop(1);
    const QByteArray line = value ? QByteArray(parameter) + separator + value : QByteArray();
    QString error;
    if (editFile(
            path, [&](const QByteArray &old) { return withXresource(old, name, line); }, &error))
        return true;
    printDiagnostic(QStringLiteral("Can't write %1: %2").arg(path, error));
    return false;
}
