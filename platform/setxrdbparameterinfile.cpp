#include "platform/setxrdbparameterinfile.h"

#include "base/editfile.h"
#include "freedesktop/xresources.h"

#include <QFile>

bool setXrdbParameterInFile(const char *file, const char *parameter, const char *separator, const char *value,
                            bool /*reserved*/)
{
    QByteArray name(parameter);
    if (name.endsWith(':'))
        name.chop(1);
    const QByteArray line = value ? QByteArray(parameter) + separator + value : QByteArray();
    return editFileOrTell(QFile::decodeName(file),
                          [&](const QByteArray &old) { return withXresource(old, name, line); });
}
