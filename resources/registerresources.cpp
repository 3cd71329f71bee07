#include "resources/registerresources.h"

#include <QtPlugin>

Q_IMPORT_PLUGIN(PngReader)

void registerResources()
{
    Q_INIT_RESOURCE(resources);
}
