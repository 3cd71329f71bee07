#include "resources/registerresources.h"

#include <QtGlobal>

void registerResources()
{
    Q_INIT_RESOURCE(resources);
}
