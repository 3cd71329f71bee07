#include "settings/directories.h"

#include "platform/getqazdir.h"

QString directoryPath(DirectoryKind kind)
{
    return QString::fromLocal8Bit(GetQazDir(int(kind)));
}
