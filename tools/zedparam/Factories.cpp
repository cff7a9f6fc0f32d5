#include "Factories.h"

#include "AxComponentDescriptor.h"
#include "AxZedObjectParameters.h"

Factories& installedFactories()
{
    static Factories factories;
    AxComponentDescriptor::setFactory(&factories.components);
    AxZedObjectParameters::setFactory(&factories.records);
    return factories;
}
