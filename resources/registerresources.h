#pragma once

#include <QtGlobal>

/// Makes the compiled-in images and the user guide available; a static library's are not by themselves.
inline void registerResources()
{
    Q_INIT_RESOURCE(resources);
}
